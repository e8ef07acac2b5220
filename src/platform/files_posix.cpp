#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <utility>

#include "platform/file_steps.h"
#include "platform/files.h"

namespace {

[[noreturn]] void Fail(int error) {
    throw StepFailed{std::strerror(error)};
}

/// A file descriptor that closes itself where a failure leaves the steps early.
class Descriptor {
 public:
    explicit Descriptor(int fd) : fd_(fd) {
        if (fd_ < 0) Fail(errno);
    }
    ~Descriptor() {
        if (fd_ >= 0) ::close(fd_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return fd_; }

    /// Some file systems report a failed write only here. After EINTR the descriptor is gone.
    void Close() {
        const int fd = std::exchange(fd_, -1);
        if (::close(fd) != 0 && errno != EINTR) Fail(errno);
    }

 private:
    int fd_;
};

/// Repeats a call that a signal interrupted; fails on any other error.
template <typename Call>
auto Retry(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    if (result < 0) Fail(errno);
    return result;
}

void Require_Regular(const struct stat& info) {
    if (S_ISDIR(info.st_mode)) Fail(EISDIR);
    if (!S_ISREG(info.st_mode)) throw StepFailed{"Not an ordinary file"};
}

std::string Read_Whole(const std::string& path) {
    // Non-blocking, so that a pipe without a writer is refused below and not waited for.
    const Descriptor file(
        Retry([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); }));
    struct stat info {};
    Retry([&] { return ::fstat(file.get(), &info); });
    Require_Regular(info);
    if (info.st_size > LargestFile) Fail(EFBIG);

    std::string bytes(static_cast<std::size_t>(info.st_size) + 1, '\0');
    std::size_t filled = 0;
    for (;;) {
        const auto count =
            Retry([&] { return ::read(file.get(), bytes.data() + filled, bytes.size() - filled); });
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
        if (filled == bytes.size()) bytes.resize(bytes.size() * 2);
    }
    bytes.resize(filled);
    return bytes;
}

/// The file that `path` leads to through any number of links, which need not exist.
std::string Follow_Links(std::string path) {
    constexpr int MostLinks = 40;
    for (int links = 0; links < MostLinks; ++links) {
        struct stat info {};
        if (::lstat(path.c_str(), &info) != 0) {
            if (errno == ENOENT) return path;
            Fail(errno);
        }
        if (!S_ISLNK(info.st_mode)) return path;
        const std::filesystem::path target = std::filesystem::read_symlink(path);
        path = (std::filesystem::path(path).parent_path() / target).string();
    }
    Fail(ELOOP);
}

/// The attributes of `old`, access control lists among them, that `fresh` could not be given.
std::string Copy_Attributes(const std::string& old, int fresh) {
    constexpr std::size_t LargestValue = 1 << 16;
    const auto size = ::listxattr(old.c_str(), nullptr, 0);
    if (size <= 0) return {};
    std::string names(static_cast<std::size_t>(size), '\0'), lost;
    const auto listed = ::listxattr(old.c_str(), names.data(), names.size());
    if (listed < 0) return "attributes";
    for (const char* name = names.data(); name < names.data() + listed;
         name += std::strlen(name) + 1) {
        std::string value(LargestValue, '\0');
        const auto length = ::getxattr(old.c_str(), name, value.data(), value.size());
        if (length < 0 ||
            ::fsetxattr(fresh, name, value.data(), static_cast<std::size_t>(length), 0) != 0) {
            lost.append(lost.empty() ? "" : ", ").append(name);
        }
    }
    return lost;
}

/// A file beside the target that removes itself at the end.
class TemporaryFile {
 public:
    explicit TemporaryFile(const std::string& folder)
        : path_(folder + "/.bannersmith-XXXXXX"),
          file_(Retry([&] { return ::mkostemp(path_.data(), O_CLOEXEC); })) {}
    ~TemporaryFile() { Remove(); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    void Write(std::string_view bytes) {
        while (!bytes.empty()) {
            const auto count =
                Retry([&] { return ::write(file_.get(), bytes.data(), bytes.size()); });
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }

    /// Returns what could not be taken over.
    std::string Take_Over(const std::string& target, const struct stat& old) {
        std::string lost;
        // Changing the owner clears mode bits and lists, so it is first. Only a privileged user may
        // give files away, but the group may be another one of the user's own.
        if (::fchown(file_.get(), old.st_uid, old.st_gid) != 0) {
            const bool group_kept = ::fchown(file_.get(), static_cast<uid_t>(-1), old.st_gid) == 0;
            lost = group_kept ? "owner" : "owner and group";
        }
        // The folder may have given it a list that the old file has not; there mostly is none.
        static_cast<void>(::fremovexattr(file_.get(), "system.posix_acl_access"));
        Retry([&] { return ::fchmod(file_.get(), old.st_mode & 07777); });
        const std::string attributes = Copy_Attributes(target, file_.get());
        if (!attributes.empty()) lost.append(lost.empty() ? "" : ", ").append(attributes);
        return lost;
    }

    void Take_Mode_Of_New_Files() {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        Retry([&] { return ::fchmod(file_.get(), 0666 & ~mask); });
    }

    void Sync() {
        Retry([&] { return ::fsync(file_.get()); });
    }

    /// Puts the file in the place of `target`. True: the old one is now the temporary file. False:
    /// there was none, or the file system cannot let two files trade places.
    bool Trade_Places(const std::string& target, bool target_exists) {
        file_.Close();
        if (target_exists) {
            if (Exchange(target)) return true;
            if (errno != EINVAL && errno != ENOSYS && errno != ENOTSUP) Fail(errno);
        }
        Retry([&] { return ::rename(path_.c_str(), target.c_str()); });
        path_.clear();
        return false;
    }

    bool Exchange(const std::string& target) {
        return ::renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, target.c_str(), RENAME_EXCHANGE) == 0;
    }

    /// Returns the file's name if it stays although it was to be removed.
    std::string Remove() {
        const std::string path = std::exchange(path_, {});
        const auto gone = [&] { return ::unlink(path.c_str()) == 0; };
        return path.empty() || gone() || gone() ? std::string() : path;
    }

 private:
    std::string path_;
    Descriptor file_;
};

/// Folders of some file systems cannot be synced at all, which is no failure.
bool Sync_Folder(const Descriptor& folder) {
    int result = ::fsync(folder.get());
    while (result != 0 && errno == EINTR) result = ::fsync(folder.get());
    return result == 0 || errno == EINVAL || errno == ENOTSUP;
}

std::string Folder_Of(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

/// A file that is not safe from a power failure was not saved: the old one comes back.
[[noreturn]] void Undo(TemporaryFile& fresh, const std::string& target, bool old_is_there,
                       bool target_existed) {
    const std::string reason = std::string("Its folder cannot be synced: ") + std::strerror(errno);
    const bool undone =
        old_is_there ? fresh.Exchange(target) : !target_existed && ::unlink(target.c_str()) == 0;
    throw StepFailed{undone ? reason : "Written, but not safe from a power failure. " + reason};
}

/// Returns what was lost although the file was replaced.
std::string Replace(const std::string& path, std::string_view bytes, Durability durability) {
    const std::string target = Follow_Links(path);
    const std::string folder_path = Folder_Of(target);
    const Descriptor folder(
        Retry([&] { return ::open(folder_path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));

    struct stat old {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (!exists && errno != ENOENT) Fail(errno);
    if (exists) {
        Require_Regular(old);
        Retry([&] { return ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS); });
    }

    TemporaryFile fresh(folder_path);
    fresh.Write(bytes);
    std::string lost;
    if (exists) {
        lost = fresh.Take_Over(target, old);
    } else {
        fresh.Take_Mode_Of_New_Files();
    }
    if (durability == Durability::synced) fresh.Sync();
    const bool old_is_there = fresh.Trade_Places(target, exists);
    if (durability == Durability::synced && !Sync_Folder(folder)) {
        Undo(fresh, target, old_is_there, exists);
    }
    const std::string left = fresh.Remove();
    if (!lost.empty()) lost = "Saved, but could not keep its " + lost;
    if (!left.empty())
        lost += (lost.empty() ? "Saved, but" : ", and") + (" the old file stays as " + left);
    return lost;
}

}  // namespace

Outcome Read_File(const std::u16string& path, std::string& bytes) {
    return Run_Steps(
        path, [&](const std::filesystem::path& native) { bytes = Read_Whole(native.string()); });
}

Outcome Replace_File(const std::u16string& path, std::string_view bytes, Durability durability,
                     const Notice& notice) {
    // A limit on file sizes is then an error of the write, not the end of the process.
    std::signal(SIGXFSZ, SIG_IGN);
    return Run_Steps(path, [&](const std::filesystem::path& native) {
        const std::string lost = Replace(native.string(), bytes, durability);
        if (!lost.empty() && notice) notice({path, lost});
    });
}
