// The built programs, run as a user runs them: exit status, standard error, and every file.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>

#include "layout/text_box.h"
#include "support.h"

namespace {

namespace fs = std::filesystem;

struct Result {
    int status;
    std::string output, errors;
};

/// A copy of the built program folder, below a path with blanks and Japanese letters.
class Program : public testing::Test {
 protected:
    Program() {
        fs::create_directories(Home().parent_path());
        fs::copy(PROGRAM_FOLDER, Home(), fs::copy_options::recursive);
        folder.Write(HomeName + "/cfgs/vcinfopath.cfg", "\\samples\\german_japanese\\arc\\blyt\\banner.brlyt\r\n");
    }

    fs::path Home() const { return folder.Path() / HomeName; }

    /// Runs a program of the copy from another folder; `arguments` as a shell takes them.
    Result Run(const std::string& program, const std::string& arguments, const std::string& before = "") const {
        const std::string command = before + "cd /; '" + (Home() / program).string() + "' " + arguments + " >'" +
                                    (folder.Path() / "out").string() + "' 2>'" + (folder.Path() / "err").string() + "'";
        const int status = std::system(command.c_str());
        return {WEXITSTATUS(status), folder.Read("out"), folder.Read("err")};
    }

    const std::string HomeName = "home of \u30D0\u30CA\u30FC";
    const TempFolder folder;
    const std::string layout = HomeName + "/samples/german_japanese/arc/blyt/banner.brlyt";
};

TEST_F(Program, EditsAndSaves) {
    const auto names = folder.Names();
    const Result result = Run("bannersmith", "-TITLE Two Words -T_JPN '\u6708 \"x\"' -pad +32");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output + result.errors, "");
    const std::string saved = folder.Read(layout);
    EXPECT_EQ(Get_Text(saved, "T_VCTitle_GER"), u"Two Words");
    EXPECT_EQ(Get_Text(saved, "T_VCTitle_JPN"), u"\u6708 x");
    EXPECT_EQ(saved.substr(saved.size() - 32), std::string(32, '\0'));
    EXPECT_EQ(folder.Names().size(), names.size() + 2) << "only the captured output is new";
    EXPECT_EQ(Run("bannersmith-inspect", "'" + (folder.Path() / layout).string() + "'").status, 0);
}

TEST_F(Program, NeedsItsConfigurationForEditsAlone) {
    fs::remove_all(Home() / "cfgs");
    EXPECT_TRUE(Run("bannersmith-inspect", "--help").output.starts_with("usage: bannersmith-inspect"));
    EXPECT_EQ(Run("bannersmith", "--version").output, "bannersmith " BANNERSMITH_VERSION "\n");
    const Result edit = Run("bannersmith", "-PAD 0");
    EXPECT_EQ(edit.status, 1);
    EXPECT_EQ(edit.output, "");
    EXPECT_TRUE(edit.errors.starts_with("bannersmith: " + Home().string()));
    EXPECT_EQ(Run("bannersmith-inspect", "").status, 2);
}

#ifndef __SANITIZE_ADDRESS__  // which needs more memory than there is here
TEST_F(Program, TellsThatMemoryLacks) {
    folder.Write(HomeName + "/huge", "RLYT");
    fs::resize_file(Home() / "huge", 60 << 20);
    const Result run = Run("bannersmith", "huge -TITLE x", "ulimit -v 100000; ");
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.errors.ends_with("huge: Not enough memory\n")) << run.errors;
}
#endif

TEST_F(Program, InspectTellsByItsStatus) {
    folder.Write("twice", Layout_With({Box("A", u"a"), Box("A", u"bbb")}));
    folder.Write("text", "no layout at all");
    folder.Write("good", Layout_With({Box("A", u"a")}));
    const std::string base = folder.Path().string() + "/";
    EXPECT_EQ(Run("bannersmith-inspect", base + "good").status, 0);
    EXPECT_EQ(Run("bannersmith-inspect", "--json " + base + "good " + base + "twice").status, 1);
    const Result bad = Run("bannersmith-inspect", base + "text " + base + "twice " + base + "none");
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.errors, "bannersmith-inspect: " + base + "text: Not a layout file\nbannersmith-inspect: " + base +
                              "none: No such file or directory\n");
    EXPECT_NE(bad.output.find("warning: text box A"), bad.output.npos);
    EXPECT_EQ(Run("bannersmith-inspect", base + "text " + base + "twice").status, 2);
}

}  // namespace
