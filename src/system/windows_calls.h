// Calls of Windows.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>
#include <utility>

#include "system/file_steps.h"
#include "system/windows_error.h"

namespace bannersmith {

/// The most that one call reads or writes.
inline constexpr std::size_t LargestPart = std::size_t{1} << 24;

/// All other programs may do with an open file what they like.
inline constexpr DWORD Everyone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// The system's words for an error code.
inline Failure Error_Of(DWORD error) {
    return Because(Error_Text(error));
}

/// Fails where a call has failed.
inline Result<> Require(BOOL done) {
    if (!done) return Error_Of(::GetLastError());
    return {};
}

/// A file handle that closes itself.
class Handle {
 public:
    /// Of a call that opens something.
    explicit Handle(HANDLE handle) : handle_(handle) {}
    ~Handle() {
        if (Is_Open()) ::CloseHandle(handle_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }

    bool Is_Open() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }
    Result<> Close() {
        return Require(::CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)));
    }

 private:
    HANDLE handle_;
};

/// The attributes of a regular file, or INVALID_FILE_ATTRIBUTES where there is no file.
Result<DWORD> Attributes_Of(const std::wstring& path);

}  // namespace bannersmith
