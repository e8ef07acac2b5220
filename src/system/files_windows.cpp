#include <algorithm>
#include <filesystem>
#include <string>

#include "system/files.h"
#include "system/windows_steps.h"

namespace bannersmith {

namespace {

HANDLE Open_To_Read(const std::wstring& path) {
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

}  // namespace

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

Outcome Read_File(const std::u16string& path, std::string& bytes) {
    return Run_Steps(
        path, [&](const std::filesystem::path& native) { bytes = Read_Whole(native.wstring()); });
}

}  // namespace bannersmith
