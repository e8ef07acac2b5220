#include <algorithm>
#include <filesystem>
#include <string>

#include "system/files.h"
#include "system/windows_calls.h"

namespace bannersmith {

namespace {

HANDLE Open_To_Read(const std::wstring& path) {
    return ::CreateFileW(path.c_str(), GENERIC_READ, Everyone, nullptr, OPEN_EXISTING,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
}

Result<std::string> Read_Whole(const std::wstring& path) {
    if (auto attributes = Attributes_Of(path); !attributes) return attributes.Why();
    const Handle file(Open_To_Read(path));
    if (!file.Is_Open()) return Error_Of(::GetLastError());
    if (::GetFileType(file.Get()) != FILE_TYPE_DISK) return Because("Not an ordinary file");
    LARGE_INTEGER size{};
    if (!::GetFileSizeEx(file.Get(), &size)) return Error_Of(::GetLastError());
    if (size.QuadPart > LargestFile) return Error_Of(ERROR_FILE_TOO_LARGE);

    std::string bytes(static_cast<std::size_t>(size.QuadPart) + 1, '\0');
    std::size_t filled = 0;
    for (;;) {
        const auto part = static_cast<DWORD>(std::min(bytes.size() - filled, LargestPart));
        DWORD count = 0;
        if (!::ReadFile(file.Get(), bytes.data() + filled, part, &count, nullptr)) {
            return Error_Of(::GetLastError());
        }
        if (count == 0) break;
        filled += count;
        if (filled == bytes.size()) bytes.resize(bytes.size() * 2);
    }
    bytes.resize(filled);
    return bytes;
}

}  // namespace

Result<DWORD> Attributes_Of(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = ::GetLastError();
        if (error != ERROR_FILE_NOT_FOUND) return Error_Of(error);
    } else if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return Because("Is a directory");
    }
    return attributes;
}

/// By opening the folder with that right.
bool Can_Write_Into(const std::u16string& folder) {
    const Handle opened(::CreateFileW(Native_Path(folder).c_str(), FILE_ADD_FILE, Everyone, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    return opened.Is_Open() || ::GetLastError() != ERROR_ACCESS_DENIED;
}

Result<std::string> Read_File(const std::u16string& path) {
    return Run_Steps(
        path, [](const std::filesystem::path& native) { return Read_Whole(native.wstring()); });
}

}  // namespace bannersmith
