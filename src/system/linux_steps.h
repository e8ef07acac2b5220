// Calls of a POSIX system as steps that end with the first failure.
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "system/file_steps.h"

namespace bannersmith {

/// Ends the step with the system's words for `error`.
[[noreturn]] inline void Fail(int error) {
    throw StepFailed{std::strerror(error)};
}

/// A file descriptor that closes itself where a failure leaves the steps early.
class Descriptor {
 public:
    Descriptor() = default;
    /// Of a call that opens something; fails where that has failed.
    explicit Descriptor(int fd) : fd_(fd) {
        if (fd_ < 0) Fail(errno);
    }
    Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(fd_, other.fd_);
        return *this;
    }
    ~Descriptor() {
        if (fd_ >= 0) ::close(fd_);
    }

    int get() const { return fd_; }

    /// Some file systems report a failed write only here. After EINTR the descriptor is gone.
    void Close() {
        const int fd = std::exchange(fd_, -1);
        if (::close(fd) != 0 && errno != EINTR) Fail(errno);
    }

 private:
    int fd_ = -1;
};

/// Repeats a call that a signal interrupted; fails on any other error.
template <typename Call>
auto Retry(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    if (result < 0) Fail(errno);
    return result;
}

/// Fails for what is no regular file.
inline void Require_Regular(const struct stat& info) {
    if (S_ISDIR(info.st_mode)) Fail(EISDIR);
    if (!S_ISREG(info.st_mode)) throw StepFailed{"Not an ordinary file"};
}

/// Reads a regular file whole.
std::string Read_Whole(const std::string& path);

}  // namespace bannersmith
