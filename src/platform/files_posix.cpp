#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <utility>

#include "platform/files.h"
#include "platform/native_path.h"
#include "platform/text.h"

namespace {

/// Thrown and caught inside this file: the error number of the step that failed.
struct StepFailed {
    std::string reason;
};

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

/// A file beside the target that removes itself unless it was renamed.
class TemporaryFile {
 public:
    explicit TemporaryFile(const std::string& folder)
        : path_(folder + "/.bannersmith-XXXXXX"),
          file_(Retry([&] { return ::mkostemp(path_.data(), O_CLOEXEC); })) {}
    ~TemporaryFile() {
        if (!path_.empty()) ::unlink(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    void Write(std::string_view bytes) {
        while (!bytes.empty()) {
            const auto count =
                Retry([&] { return ::write(file_.get(), bytes.data(), bytes.size()); });
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }

    void Take_Over(const struct stat& old) {
        // The owner can be kept only by a privileged user; changing it clears mode bits, so it is
        // first.
        if (::fchown(file_.get(), old.st_uid, old.st_gid) != 0 && errno != EPERM) Fail(errno);
        Retry([&] { return ::fchmod(file_.get(), old.st_mode & 07777); });
    }

    void Take_Mode_Of_New_Files() {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        Retry([&] { return ::fchmod(file_.get(), 0666 & ~mask); });
    }

    void Sync() {
        Retry([&] { return ::fsync(file_.get()); });
    }

    void Rename_To(const std::string& target) {
        file_.Close();
        Retry([&] { return ::rename(path_.c_str(), target.c_str()); });
        path_.clear();
    }

 private:
    std::string path_;
    Descriptor file_;
};

/// Folders of some file systems cannot be synced at all, which is no failure.
void Sync_Folder(const Descriptor& folder) {
    if (::fsync(folder.get()) != 0 && errno != EINVAL && errno != ENOTSUP && errno != EINTR) {
        throw StepFailed{std::string("Written, but its folder cannot be synced: ") +
                         std::strerror(errno)};
    }
}

std::string Folder_Of(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

void Replace(const std::string& path, std::string_view bytes, Durability durability) {
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
    if (exists) {
        fresh.Take_Over(old);
    } else {
        fresh.Take_Mode_Of_New_Files();
    }
    if (durability == Durability::synced) fresh.Sync();
    fresh.Rename_To(target);
    if (durability == Durability::synced) Sync_Folder(folder);
}

template <typename Steps>
Outcome Run(const std::u16string& path, Steps steps) {
    try {
        steps(Native_Path(path).string());
        return std::nullopt;
    } catch (const StepFailed& failed) {
        return Failure{path, failed.reason};
    } catch (const std::filesystem::filesystem_error& failed) {
        return Failure{path, failed.code().message()};
    }
}

}  // namespace

Outcome Read_File(const std::u16string& path, std::string& bytes) {
    return Run(path, [&](const std::string& native) { bytes = Read_Whole(native); });
}

Outcome Replace_File(const std::u16string& path, std::string_view bytes, Durability durability) {
    return Run(path, [&](const std::string& native) { Replace(native, bytes, durability); });
}

std::u16string Program_Folder() {
    std::error_code ignored;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored);
    return From_Utf8(program.parent_path().string());
}
