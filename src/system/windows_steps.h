// Calls of Windows as steps that end with the first failure.
#pragma once

#include <windows.h>

#include <string>
#include <utility>

#include "system/file_steps.h"
#include "system/windows_error.h"

namespace bannersmith {

/// The most that one call reads or writes.
inline constexpr std::size_t LargestPart = std::size_t{1} << 24;

/// All other programs may do with an open file what they like.
inline constexpr DWORD Everyone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Ends the step with the system's words for `error`.
[[noreturn]] inline void Fail(DWORD error) {
    throw StepFailed{Error_Text(error)};
}

/// Fails where a call has failed.
inline void Require(BOOL done) {
    if (!done) Fail(::GetLastError());
}

/// A file handle that closes itself where a failure leaves the steps early.
class Handle {
 public:
    /// Of a call that opens something; fails where that has failed.
    explicit Handle(HANDLE handle) : handle_(handle) {
        if (handle_ == INVALID_HANDLE_VALUE) Fail(::GetLastError());
    }
    ~Handle() {
        if (handle_ != INVALID_HANDLE_VALUE) ::CloseHandle(handle_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    HANDLE get() const { return handle_; }
    void Close() { Require(::CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE))); }

 private:
    HANDLE handle_;
};

/// The attributes of a regular file, or INVALID_FILE_ATTRIBUTES where there is no file.
DWORD Attributes_Of(const std::wstring& path);

}  // namespace bannersmith
