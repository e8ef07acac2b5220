// Calls of a POSIX system.
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <utility>

#include "system/file_steps.h"

namespace bannersmith {

/// The system's words for an error number.
inline Failure Error_Of(int error) {
    return Because(std::strerror(error));
}

/// A file descriptor that closes itself; negative where a call that opens something has failed.
class Descriptor {
 public:
    Descriptor() = default;
    explicit Descriptor(int fd) : fd_(fd) {}
    Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(fd_, other.fd_);
        return *this;
    }
    ~Descriptor() {
        if (fd_ >= 0) ::close(fd_);
    }

    bool Is_Open() const { return fd_ >= 0; }
    int Get() const { return fd_; }

    /// Some file systems report a failed write only here. After EINTR the descriptor is gone.
    Result<> Close() {
        const int fd = std::exchange(fd_, -1);
        if (::close(fd) != 0 && errno != EINTR) return Error_Of(errno);
        return {};
    }

 private:
    int fd_ = -1;
};

/// The result of a call, which is repeated while a signal interrupts it.
template <typename Call>
auto Repeat(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

/// Fails where a call, repeated while a signal interrupts it, returns an error.
template <typename Call>
Result<> Require(Call call) {
    if (Repeat(call) < 0) return Error_Of(errno);
    return {};
}

/// Fails for what is no regular file.
inline Result<> Require_Regular(const struct stat& info) {
    if (S_ISDIR(info.st_mode)) return Error_Of(EISDIR);
    if (!S_ISREG(info.st_mode)) return Because("Not an ordinary file");
    return {};
}

/// Reads a regular file whole.
Result<std::string> Read_Whole(const std::string& path);

}  // namespace bannersmith
