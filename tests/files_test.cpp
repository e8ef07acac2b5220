#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <csignal>

#include "base/text.h"
#include "forms/controls.h"
#include "support.h"
#include "system/files.h"
#include "system/replace_files.h"

using namespace bannersmith;

namespace {

namespace fs = std::filesystem;

TEST(Text, SurvivesTheWayThroughUtf8) {
    for (const std::string bytes :
         {"", "plain", "\xE5\xB9\xB4\xF0\x9F\x98\x80", "\xF4\x8F\xBF\xBF", "bad \xFF\xC3 bytes", "\xC3"}) {
        EXPECT_EQ(To_Utf8(From_Utf8(bytes)), bytes);
    }
    EXPECT_EQ(From_Utf8("\xF0\x9F\x98\x80"), u"\xD83D\xDE00");
    EXPECT_EQ(To_Utf8(u"a\xD800"
                      u"b"),
              "a\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(To_Bytes(u"\u00E9"), "\xE9");
    EXPECT_EQ(To_Bytes(u"\u0100"), std::nullopt);
    EXPECT_EQ(To_Bytes(u"\u00FF"), "\xFF");
    EXPECT_EQ(From_Bytes("\xE9\x41"),
              u"\u00E9"
              u"A");
    EXPECT_EQ(Trim(u"  \ta b  "), u"\ta b");
    EXPECT_EQ(Trim(u" \na\t "), u"\na\t");
    EXPECT_EQ(Capitals(u"aZz\u00E9_9"), u"AZZ\u00E9_9");
    EXPECT_EQ(Replace_All(u"aaa", u"aa", u"b"), u"ba");
}

TEST(Paths, AreConvertedWhereTheyMeetTheFileSystem) {
    const TempFolder folder;
    folder.Write("sub/File.TPL", "x");
    EXPECT_TRUE(Ordinary_File_Exists(folder.Text() + u"\\sub/File.TPL"));
    EXPECT_TRUE(Ordinary_File_Exists(folder.Text() + u"\\sub\\")) << "finds any file of the folder";
    EXPECT_FALSE(Ordinary_File_Exists(folder.Text() + u"\\")) << "holds a folder only";
    EXPECT_FALSE(Ordinary_File_Exists(folder.Text() + u"\\sub"));
    EXPECT_FALSE(Ordinary_File_Exists(u""));
    EXPECT_FALSE(Ordinary_File_Exists(folder.Text() + u"\\sub\\File.TPL" + std::u16string(1, 0) + u"x"));
    fs::create_symlink("sub/File.TPL", folder.Path() / "link");
    EXPECT_TRUE(Ordinary_File_Exists(folder.Text() + u"/link"));
    EXPECT_EQ(Is_Folder(folder.Text() + u"\\sub\\").Value_Or(false), true);
    EXPECT_EQ(Is_Folder(folder.Text() + u"\\sub\\File.TPL").Value_Or(true), false);
    EXPECT_EQ(Is_Folder(folder.Text() + u"\\none").Value_Or(true), false);
    EXPECT_EQ(Resolve(u"/prog", u"\\x"), u"/prog\\x");
    EXPECT_EQ(Resolve(u"/prog", u"x\\y"), u"x\\y");
    EXPECT_TRUE(Is_Full_Path(u"C:\\x") && Is_Full_Path(u"/x") && !Is_Full_Path(u"\\x"));
}

TEST(FileList, IsSortedWithoutCase) {
    const TempFolder folder;
    for (const char* name : {"b.tpl", "A.TPL", "Z.tpl", "a.tplx", "a.txt", ".hidden.tpl", "d.tpl/e"}) {
        folder.Write(name, "");
    }
    fs::create_symlink("self.tpl", folder.Path() / "self.tpl");
    FileList list({".tpl"});
    EXPECT_TRUE(list.Set_Path(folder.Text()));
    EXPECT_EQ(list.Names(), (std::vector<std::u16string>{u"A.TPL", u"b.tpl", u"Z.tpl"}));
    EXPECT_FALSE(list.Set_Path(folder.Text() + u"/none"));
    EXPECT_TRUE(list.Names().empty());
}

TEST(Controls, RaiseTheirEventsInTheCall) {
    int changes = 0, clicks = 0;
    TextBox box;
    box.Change = [&] { ++changes; };
    box.Set(u"a");
    box.Set(u"a");
    box.Set(u"");
    EXPECT_EQ(changes, 2);
    DropDownList list({u"x", u"y"});
    list.Click = [&] { ++clicks; };
    list.Select(1);
    list.Select(1);
    EXPECT_EQ(clicks, 1);
    list.Pick(1);
    EXPECT_EQ(clicks, 2) << "a person's pick counts even when nothing changes";
    list.Select(7);
    EXPECT_EQ(list.Index(), DropDownList::NoSelection);
    EXPECT_EQ(list.Selected(), u"");
    list.Select(0);
    list.Clear();
    EXPECT_EQ(clicks, 4) << "emptying raises nothing";
}

TEST(ReplaceFile, MakesAndReplacesFilesWhole) {
    const TempFolder folder;
    const std::u16string file = folder.Text() + u"/f";
    EXPECT_TRUE(Replace_File(file, std::string(100000, 'a')));
    struct stat made {};
    ::stat((folder.Path() / "f").c_str(), &made);
    const mode_t mask = ::umask(0);
    ::umask(mask);
    EXPECT_EQ(made.st_mode & 07777, 0666 & ~mask);
    EXPECT_TRUE(Replace_File(file, "short"));
    EXPECT_EQ(folder.Read("f"), "short");
    if (::geteuid() == 0) { EXPECT_EQ(::chown((folder.Path() / "f").c_str(), 65534, 65534), 0); }
    struct stat owned {};
    ::stat((folder.Path() / "f").c_str(), &owned);
    ::chmod((folder.Path() / "f").c_str(), 03640);
    EXPECT_TRUE(Replace_File(file, "b"));
    struct stat info {};
    ::stat((folder.Path() / "f").c_str(), &info);
    EXPECT_EQ(info.st_mode & 07777, 01640U);
    EXPECT_EQ(info.st_uid, owned.st_uid);
    EXPECT_EQ(info.st_gid, owned.st_gid);
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"f"});
}

TEST(ReplaceFile, AFailedWriteLeavesTheOldFile) {
    const TempFolder folder;
    folder.Write("f", "old");
    struct rlimit before {};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const struct rlimit small { 1000, before.rlim_max };
    const auto handler = ::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    const auto written = Replace_File(folder.Text() + u"/f", std::string(5000, 'x'));
    ::setrlimit(RLIMIT_FSIZE, &before);
    ::signal(SIGXFSZ, handler);
    EXPECT_TRUE(!written && written.Why().reason == "File too large");
    EXPECT_EQ(folder.Read("f"), "old");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"f"});
}

/// A list in the kernel's own form: version 2, then tag, rights and identity of each entry.
std::string Access_List() {
    const auto entry = [](char tag, char rights, int user) {
        return std::string{tag, 0, rights, 0} + (user < 0 ? std::string(4, '\xFF') : std::string{char(user), 0, 0, 0});
    };
    return "\2" + std::string(3, '\0') + entry(1, 6, -1) + entry(2, 4, 9) + entry(4, 4, -1) + entry(16, 6, -1) +
           entry(32, 0, -1);
}

TEST(ReplaceFile, KeepsAttributesAndAccessLists) {
    const std::pair<const char*, std::string> attributes[] = {
        {"user.note", "kept"}, {"user.other", "as well"}, {"system.posix_acl_access", Access_List()}};
    const TempFolder folder;
    folder.Write("f", "old");
    const std::string file = (folder.Path() / "f").string();
    for (const auto& [name, value] : attributes) {
        if (::setxattr(file.c_str(), name, value.data(), value.size(), 0) != 0) {
            GTEST_SKIP() << name << ": none on this file system";
        }
    }
    const auto nothing_lost = [](const Failure& loss) { ADD_FAILURE() << loss.reason; };
    EXPECT_TRUE(Replace_File(folder.Text() + u"/f", "new", nothing_lost));
    for (const auto& [name, value] : attributes) {
        std::string found(100, '\0');
        found.resize(static_cast<std::size_t>(std::max<ssize_t>(0, ::getxattr(file.c_str(), name, found.data(), 100))));
        EXPECT_EQ(found, value) << name;
    }
    EXPECT_EQ(folder.Read("f"), "new");
}

TEST(ReplaceFile, GainsNoAccessListFromItsFolder) {
    const TempFolder folder;
    folder.Write("d/f", "old");
    ::chmod((folder.Path() / "d/f").c_str(), 0640);
    const std::string list = Access_List();
    if (::setxattr((folder.Path() / "d").c_str(), "system.posix_acl_default", list.data(), list.size(), 0) != 0) {
        GTEST_SKIP() << "no access lists on this file system";
    }
    EXPECT_TRUE(Replace_File(folder.Text() + u"/d/f", "new"));
    EXPECT_LT(::getxattr((folder.Path() / "d/f").c_str(), "system.posix_acl_access", nullptr, 0), 0);
    struct stat info {};
    ::stat((folder.Path() / "d/f").c_str(), &info);
    EXPECT_EQ(info.st_mode & 07777, 0640U);
}

TEST(ReplaceFile, TakesNamesUpToTheLimit) {
    const TempFolder folder;
    EXPECT_TRUE(Replace_File(folder.Text() + u"/" + std::u16string(255, u'n'), "x"));
    EXPECT_TRUE(Replace_File(folder.Text() + u"/" + std::u16string(255, u'n'), "y"));
    EXPECT_EQ(folder.Read(std::string(255, 'n')), "y");
    EXPECT_FALSE(Replace_File(folder.Text() + u"/" + std::u16string(256, u'n'), "x"));
    EXPECT_EQ(folder.Names().size(), 1U);
}

TEST(ReplaceFile, KeepsLinks) {
    const TempFolder folder;
    folder.Write("real/f", "old");
    fs::create_symlink("real/f", folder.Path() / "one");
    fs::create_symlink("one", folder.Path() / "two");
    fs::create_symlink("real/new", folder.Path() / "dangling");
    fs::create_symlink("loop", folder.Path() / "loop");
    EXPECT_TRUE(Replace_File(folder.Text() + u"/two", "fresh"));
    EXPECT_EQ(folder.Read("real/f"), "fresh");
    EXPECT_TRUE(fs::is_symlink(folder.Path() / "two") && fs::is_symlink(folder.Path() / "one"));
    EXPECT_TRUE(Replace_File(folder.Text() + u"/dangling", "made"));
    EXPECT_EQ(folder.Read("real/new"), "made");
    fs::create_symlink(folder.Path() / "real/f", folder.Path() / "real/absolute");
    EXPECT_TRUE(Replace_File(folder.Text() + u"/real/absolute", "again"));
    EXPECT_EQ(folder.Read("real/f"), "again");
    EXPECT_FALSE(Replace_File(folder.Text() + u"/loop", "x"));
}

TEST(ReplaceFile, RefusesWhatIsNoOrdinaryFile) {
    const TempFolder folder;
    folder.Write("dir/inside", "x");
    ::mkfifo((folder.Path() / "pipe").c_str(), 0666);
    const auto before = folder.Names();
    for (const std::u16string name : {u"/dir", u"/pipe", u"/none/f"}) {
        EXPECT_FALSE(Replace_File(folder.Text() + name, "x")) << To_Utf8(name);
        const auto bytes = Read_File(folder.Text() + name);
        ASSERT_FALSE(bytes);
        EXPECT_EQ(bytes.Why().subject, folder.Text() + name);
        EXPECT_NE(bytes.Why().reason, "");
    }
    EXPECT_EQ(folder.Names(), before);
}

/// Runs as a user without privileges from here to the end of the scope, where the test may.
class Unprivileged {
 public:
    Unprivileged() {
        if (privileged_) { EXPECT_EQ(::seteuid(65534), 0); }
    }
    ~Unprivileged() {
        if (privileged_) { EXPECT_EQ(::seteuid(0), 0); }
    }
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;

 private:
    const bool privileged_ = ::geteuid() == 0;
};

TEST(ReplaceFile, TellsWhatItCannotKeep) {
    const TempFolder folder;
    folder.Write("f", "old");
    ::chmod((folder.Path() / "f").c_str(), 06666);
    ::chmod(folder.Path().c_str(), 0777);
    if (::geteuid() != 0) GTEST_SKIP() << "needs a file of another user";
    std::string told;
    const Unprivileged user;
    EXPECT_TRUE(Replace_File(folder.Text() + u"/f", "new",
                             [&](const Failure& loss) { told = loss.reason + " " + folder.Read("f"); }));
    EXPECT_EQ(told, "Saved, but could not keep its owner new") << "and told when it is there";
    struct stat info {};
    ::stat((folder.Path() / "f").c_str(), &info);
    EXPECT_EQ(info.st_mode & 07777, 0666U) << "without the rights of the one who had it";
}

TEST(ReplaceFile, RespectsPermissions) {
    const TempFolder folder;
    folder.Write("open/readonly", "old");
    folder.Write("closed/f", "old");
    ::chmod((folder.Path() / "open/readonly").c_str(), 0444);
    ::chmod((folder.Path() / "open").c_str(), 0777);
    ::chmod((folder.Path() / "closed/f").c_str(), 0666);
    ::chmod((folder.Path() / "closed").c_str(), 0555);
    ::chmod(folder.Path().c_str(), 0755);
    const auto before = folder.Names();
    {
        const Unprivileged user;
        for (const std::u16string name : {u"/open/readonly", u"/closed/f"}) {
            const auto written = Replace_File(folder.Text() + name, "x");
            ASSERT_FALSE(written) << To_Utf8(name);
            EXPECT_EQ(written.Why().reason, "Permission denied");
        }
    }
    EXPECT_EQ(folder.Read("open/readonly") + folder.Read("closed/f"), "oldold");
    ::chmod((folder.Path() / "closed").c_str(), 0755);
    EXPECT_EQ(folder.Names(), before);
}

}  // namespace
