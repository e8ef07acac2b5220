#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>

#include "platform/file_steps.h"
#include "platform/files.h"
#include "platform/windows_error.h"

namespace {

/// The most that one call reads or writes.
constexpr std::size_t LargestPart = std::size_t{1} << 24;

[[noreturn]] void Fail(DWORD error) {
    throw StepFailed{Error_Text(error)};
}

void Require(BOOL done) {
    if (!done) Fail(::GetLastError());
}

/// A file handle that closes itself where a failure leaves the steps early.
class Handle {
 public:
    explicit Handle(HANDLE handle) : handle_(handle) {
        if (handle_ == INVALID_HANDLE_VALUE) Fail(::GetLastError());
    }
    ~Handle() {
        if (handle_ != INVALID_HANDLE_VALUE) ::CloseHandle(handle_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    HANDLE get() const { return handle_; }

 private:
    HANDLE handle_;
};

/// The attributes of a regular file, or INVALID_FILE_ATTRIBUTES where there is no file.
DWORD Attributes_Of(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = ::GetLastError();
        if (error != ERROR_FILE_NOT_FOUND) Fail(error);
    } else if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        throw StepFailed{"Is a directory"};
    }
    return attributes;
}

HANDLE Open_To_Read(const std::wstring& path) {
    constexpr DWORD Everyone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return ::CreateFileW(path.c_str(), GENERIC_READ, Everyone, nullptr, OPEN_EXISTING,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
}

std::string Read_Whole(const std::wstring& path) {
    Attributes_Of(path);
    const Handle file(Open_To_Read(path));
    if (::GetFileType(file.get()) != FILE_TYPE_DISK) throw StepFailed{"Not an ordinary file"};
    LARGE_INTEGER size{};
    Require(::GetFileSizeEx(file.get(), &size));
    if (size.QuadPart > LargestFile) Fail(ERROR_FILE_TOO_LARGE);

    std::string bytes(static_cast<std::size_t>(size.QuadPart) + 1, '\0');
    std::size_t filled = 0;
    for (;;) {
        const std::size_t part = std::min(bytes.size() - filled, LargestPart);
        DWORD count = 0;
        Require(::ReadFile(file.get(), bytes.data() + filled, static_cast<DWORD>(part), &count,
                           nullptr));
        if (count == 0) break;
        filled += count;
        if (filled == bytes.size()) bytes.resize(bytes.size() * 2);
    }
    bytes.resize(filled);
    return bytes;
}

/// Fails while another program keeps the file from being replaced, before anything is written.
void Require_Replaceable(const std::wstring& path) {
    constexpr DWORD Everyone = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Handle file(::CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, Everyone, nullptr,
                                    OPEN_EXISTING, 0, nullptr));
    if (::GetFileType(file.get()) != FILE_TYPE_DISK) throw StepFailed{"Not an ordinary file"};
}

/// The file that `path` leads to where it is a link to one that exists.
std::wstring Follow_Links(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    const bool link =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    return link ? std::filesystem::canonical(path).wstring() : path;
}

/// A file beside the target that removes itself at the end.
class TemporaryFile {
 public:
    explicit TemporaryFile(const std::filesystem::path& folder)
        : path_(Free_Name(folder)), file_(Make(path_)) {}
    ~TemporaryFile() {
        if (!path_.empty()) {
            ::CloseHandle(file_);
            ::DeleteFileW(path_.c_str());
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    void Write(std::string_view bytes) {
        while (!bytes.empty()) {
            const auto part = static_cast<DWORD>(std::min(bytes.size(), LargestPart));
            DWORD count = 0;
            Require(::WriteFile(file_, bytes.data(), part, &count, nullptr));
            bytes.remove_prefix(count);
        }
    }

    void Sync() { Require(::FlushFileBuffers(file_)); }

    /// Puts the file in the place of `target`. The replacement of a file that is there takes over
    /// its access control list, attributes and streams.
    void Take_Place_Of(const std::wstring& target, bool target_exists) {
        Require(::CloseHandle(std::exchange(file_, INVALID_HANDLE_VALUE)));
        if (target_exists) {
            Replace(target);
        } else {
            Require(::MoveFileExW(path_.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH));
        }
        path_.clear();
    }

 private:
    static std::wstring Free_Name(const std::filesystem::path& folder) {
        const std::wstring name = L".bannersmith-" + std::to_wstring(::GetCurrentProcessId()) +
                                  L"-" + std::to_wstring(::GetTickCount64());
        return (folder / name).wstring();
    }

    static HANDLE Make(const std::wstring& path) {
        const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file == INVALID_HANDLE_VALUE) Fail(::GetLastError());
        return file;
    }

    /// The old file keeps a second name until the new one is in its place, so that it can come
    /// back from every failure in between.
    void Replace(const std::wstring& target) const {
        const std::wstring old = path_ + L"-old";
        if (::ReplaceFileW(target.c_str(), path_.c_str(), old.c_str(), 0, nullptr, nullptr)) {
            ::DeleteFileW(old.c_str());
            return;
        }
        const DWORD error = ::GetLastError();
        if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2) {
            ::MoveFileExW(old.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH);
        }
        Fail(error);
    }

    std::wstring path_;
    HANDLE file_;
};

void Replace(const std::wstring& path, std::string_view bytes, Durability durability) {
    const std::wstring target = Follow_Links(path);
    const bool exists = Attributes_Of(target) != INVALID_FILE_ATTRIBUTES;
    if (exists) Require_Replaceable(target);

    TemporaryFile fresh(std::filesystem::path(target).parent_path());
    fresh.Write(bytes);
    if (durability == Durability::synced) fresh.Sync();
    fresh.Take_Place_Of(target, exists);
}

}  // namespace

Outcome Read_File(const std::u16string& path, std::string& bytes) {
    return Run_Steps(
        path, [&](const std::filesystem::path& native) { bytes = Read_Whole(native.wstring()); });
}

Outcome Replace_File(const std::u16string& path, std::string_view bytes, Durability durability,
                     const Notice& /*notice*/) {
    return Run_Steps(path, [&](const std::filesystem::path& native) {
        Replace(native.wstring(), bytes, durability);
    });
}
