// Files as the system has them: what is found, and what a replaced one keeps.
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

/// A folder with one file, "f".
class ReplaceFile : public testing::Test {
 protected:
    ReplaceFile() { folder_.Write("f", "old"); }

    std::string Native(const std::string& name) const { return (folder_.Path() / name).string(); }
    struct stat Status(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(::stat(Native(name).c_str(), &status), 0);
        return status;
    }
    mode_t Mode(const std::string& name) const { return Status(name).st_mode & 07777; }
    void Set_Mode(const std::string& name, mode_t mode) const { ::chmod(Native(name).c_str(), mode); }
    Result<> Replace(const std::string& name, std::string_view bytes, const Notice& notice = {}) const {
        return Replace_File(folder_.Text() + u"/" + From_Utf8(name), bytes, notice);
    }

    const TempFolder folder_;
};

TEST(Paths, AreConvertedWhereTheyMeetTheFileSystem) {
    const TempFolder folder;
    for (const char* name : {"b.tpl", "A.TPL", "Z.tpl", "a.tplx", ".hidden.tpl", "d.tpl/sub/e"}) folder.Write(name, "");
    fs::create_symlink("self.tpl", folder.Path() / "self.tpl");
    fs::create_symlink("d.tpl/sub/e", folder.Path() / "link");
    FileList list({".tpl"});
    EXPECT_TRUE(list.Set_Path(folder.Text()));
    EXPECT_EQ(list.Names(), (std::vector<std::u16string>{u"A.TPL", u"b.tpl", u"Z.tpl"}));
    EXPECT_FALSE(list.Set_Path(folder.Text() + u"/none"));
    EXPECT_TRUE(list.Names().empty());
    const auto exists = [&](const std::u16string& path) { return Ordinary_File_Exists(folder.Text() + path); };
    EXPECT_TRUE(exists(u"\\d.tpl/sub\\e") && exists(u"/link"));
    EXPECT_TRUE(exists(u"\\d.tpl\\sub\\") && !exists(u"\\d.tpl\\")) << "whether the folder itself holds a file";
    EXPECT_FALSE(exists(u"\\d.tpl\\sub") || exists(std::u16string(u"\\b.tpl\0x", 8)) || Ordinary_File_Exists(u""));
    const auto is_folder = [&](const std::u16string& path) { return Is_Folder(folder.Text() + path).Value_Or(true); };
    EXPECT_TRUE(*Is_Folder(folder.Text() + u"\\d.tpl\\") && !is_folder(u"\\b.tpl") && !is_folder(u"\\none"));
    EXPECT_EQ(Resolve(u"/prog", u"\\x") + Resolve(u"/prog", u"x\\y"), u"/prog\\xx\\y");
    EXPECT_TRUE(Is_Full_Path(u"C:\\x") && Is_Full_Path(u"/x") && !Is_Full_Path(u"\\x"));
}

TEST_F(ReplaceFile, MakesAndReplacesFilesWhole) {
    const std::string longest(255, 'n');
    const mode_t mask = ::umask(0);
    ::umask(mask);
    EXPECT_TRUE(Replace(longest, std::string(100000, 'a')));
    EXPECT_EQ(Mode(longest), 0666 & ~mask);
    if (::geteuid() == 0) { EXPECT_EQ(::chown(Native(longest).c_str(), 65534, 65534), 0); }
    Set_Mode(longest, 03640);
    const struct stat before = Status(longest);
    EXPECT_TRUE(Replace(longest, "short"));
    EXPECT_EQ(folder_.Read(longest), "short");
    EXPECT_EQ(Mode(longest), 01640U);
    EXPECT_TRUE(Status(longest).st_uid == before.st_uid && Status(longest).st_gid == before.st_gid);
    EXPECT_FALSE(Replace(longest + "n", "x"));
    EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"f", longest}));
}

TEST_F(ReplaceFile, AFailedWriteLeavesTheOldFile) {
    struct rlimit before {};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const struct rlimit small { 1000, before.rlim_max };
    const auto handler = ::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    const auto written = Replace("f", std::string(5000, 'x'));
    ::setrlimit(RLIMIT_FSIZE, &before);
    ::signal(SIGXFSZ, handler);
    EXPECT_TRUE(!written && written.Why().reason == "File too large");
    EXPECT_EQ(folder_.Read("f"), "old");
    EXPECT_EQ(folder_.Names(), std::vector<std::string>{"f"});
}

TEST_F(ReplaceFile, KeepsAttributesAndAccessListsAndGainsNone) {
    // A list in the kernel's own form: version 2, then tag, rights and identity of each entry.
    std::string list("\2\0\0\0", 4);
    for (const auto& [tag, rights, user] : {std::array{1, 6, -1}, {2, 4, 9}, {4, 4, -1}, {16, 6, -1}, {32, 0, -1}}) {
        list += {static_cast<char>(tag), 0, static_cast<char>(rights), 0};
        list += user < 0 ? std::string(4, '\xFF') : std::string{static_cast<char>(user), 0, 0, 0};
    }
    const char* const access = "system.posix_acl_access";
    const std::pair<const char*, std::string> attributes[] = {
        {"user.note", "kept"}, {"user.other", "as well"}, {access, list}};
    folder_.Write("d/f", "old");
    Set_Mode("d/f", 0640);
    const auto set = [&](const std::string& name, const char* attribute, const std::string& value) {
        return ::setxattr(Native(name).c_str(), attribute, value.data(), value.size(), 0) == 0;
    };
    bool can = set("d", "system.posix_acl_default", list);
    for (const auto& [name, value] : attributes) can = can && set("f", name, value);
    if (!can) GTEST_SKIP() << "none on this file system";
    EXPECT_TRUE(Replace("f", "new", [](const Failure& loss) { ADD_FAILURE() << loss.reason; }));
    for (const auto& [name, value] : attributes) {
        std::string found(value.size(), '\0');
        EXPECT_EQ(::getxattr(Native("f").c_str(), name, found.data(), found.size()), ssize_t(value.size()));
        EXPECT_EQ(found, value) << name;
    }
    EXPECT_TRUE(Replace("d/f", "new"));
    EXPECT_LT(::getxattr(Native("d/f").c_str(), access, nullptr, 0), 0);
    EXPECT_EQ(Mode("d/f"), 0640U);
}

TEST_F(ReplaceFile, KeepsLinks) {
    folder_.Write("real/x", "");
    for (const auto& [to, name] : {std::pair{"f", "one"}, {"one", "two"}, {"real/new", "dangling"}, {"loop", "loop"}}) {
        fs::create_symlink(to, Native(name));
    }
    fs::create_symlink(Native("f"), Native("real/absolute"));
    for (const auto& [link, file] : {std::pair{"two", "f"}, {"dangling", "real/new"}, {"real/absolute", "f"}}) {
        EXPECT_TRUE(Replace(link, link) && fs::is_symlink(Native(link)));
        EXPECT_EQ(folder_.Read(file), link);
    }
    EXPECT_TRUE(fs::is_symlink(Native("one")));
    EXPECT_FALSE(Replace("loop", "x"));
}

TEST_F(ReplaceFile, RefusesWhatIsNoOrdinaryFile) {
    fs::create_directory(Native("dir"));
    ::mkfifo(Native("pipe").c_str(), 0666);
    const auto before = folder_.Names();
    for (const std::string name : {"dir", "pipe", "none/f"}) {
        EXPECT_FALSE(Replace(name, "x")) << name;
        const auto path = folder_.Text() + u"/" + From_Utf8(name);
        const auto bytes = Read_File(path);
        EXPECT_TRUE(!bytes && bytes.Why().subject == path && !bytes.Why().reason.empty()) << name;
    }
    EXPECT_EQ(folder_.Names(), before);
}

/// As a user without privileges, where the test may become one.
TEST_F(ReplaceFile, RespectsPermissionsAndTellsWhatItCannotKeep) {
    folder_.Write("closed/f", "old");
    folder_.Write("readonly", "old");
    for (const auto& [name, mode] : {std::pair{"f", 06666}, {"readonly", 0444}, {"closed/f", 0666}, {"closed", 0555}}) {
        Set_Mode(name, static_cast<mode_t>(mode));
    }
    Set_Mode("", 0777);
    const auto before = folder_.Names();
    const bool privileged = ::geteuid() == 0;
    if (privileged) { ASSERT_EQ(::seteuid(65534), 0); }
    const std::string refusals = Replace("readonly", "x").Why().reason + Replace("closed/f", "x").Why().reason;
    std::string told;
    const auto replaced = Replace("f", "new", [&](const Failure& loss) { told = loss.reason + folder_.Read("f"); });
    if (privileged) { ASSERT_EQ(::seteuid(0), 0); }
    Set_Mode("closed", 0755);
    EXPECT_EQ(refusals, "Permission deniedPermission denied");
    EXPECT_EQ(folder_.Read("readonly") + folder_.Read("closed/f"), "oldold");
    EXPECT_EQ(folder_.Names(), before);
    if (!privileged) GTEST_SKIP() << "the rest needs a file of another user";
    EXPECT_TRUE(replaced);
    EXPECT_EQ(told, "Saved, but could not keep its ownernew") << "and told when it is there";
    EXPECT_EQ(Mode("f"), 0666U) << "without the rights of the one who had it";
}

}  // namespace
