#include "system/process.h"

#include <windows.h>
// The system's own declarations come first.
#include <io.h>
#include <shellapi.h>

#include "base/text.h"
#include "system/windows_error.h"

namespace bannersmith {

namespace {

std::u16string To_Text(const wchar_t* text) {
    std::u16string units;
    for (; *text != 0; ++text) units += static_cast<char16_t>(*text);
    return units;
}

bool Is_Blank(wchar_t unit) {
    return unit == L' ' || unit == L'\t';
}

}  // namespace

std::u16string Command_Line(int /*argc*/, char** /*argv*/) {
    const wchar_t* at = ::GetCommandLineW();
    bool quoted = false;
    for (; *at != 0 && (quoted || !Is_Blank(*at)); ++at) quoted ^= *at == L'"';
    while (Is_Blank(*at)) ++at;
    return To_Text(at);
}

std::vector<std::u16string> Arguments(int /*argc*/, char** /*argv*/) {
    std::vector<std::u16string> arguments;
    int count = 0;
    wchar_t** const list = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    for (int i = 1; list != nullptr && i < count; ++i) arguments.push_back(To_Text(list[i]));
    ::LocalFree(list);
    return arguments;
}

/// A console would take the bytes for those of its own code page.
bool Print(const std::string& text, std::FILE* stream) {
    const HANDLE handle = ::GetStdHandle(stream == stderr ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    if (!::GetConsoleMode(handle, &mode)) {
        const bool whole = std::fwrite(text.data(), 1, text.size(), stream) == text.size();
        return std::fflush(stream) == 0 && whole;
    }
    const std::u16string units = From_Utf8(text);
    const std::wstring wide(units.begin(), units.end());
    DWORD written = 0;
    const auto size = static_cast<DWORD>(wide.size());
    return ::WriteConsoleW(handle, wide.data(), size, &written, nullptr) != 0 && written == size;
}

bool Is_Terminal(std::FILE* stream) {
    return ::_isatty(::_fileno(stream)) != 0;
}

std::u16string Program_Folder() {
    constexpr std::size_t LongestPath = 32768;
    std::wstring path(LongestPath, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return To_Text(path.substr(0, path.find_last_of(L'\\')).c_str());
}

Result<> Start_Program(const std::u16string& name, char** argv) {
    const std::u16string path = Program_Folder() + u"\\" + name + u".exe";
    const std::wstring program(path.begin(), path.end());
    const std::u16string rest = Command_Line(0, argv);
    std::wstring command_line = L"\"" + program + L"\"";
    if (!rest.empty()) command_line += L" " + std::wstring(rest.begin(), rest.end());
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started{};
    if (!::CreateProcessW(program.c_str(), command_line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                          nullptr, &start, &started)) {
        return Failure{path, Error_Text(::GetLastError())};
    }
    ::CloseHandle(started.hThread);
    ::CloseHandle(started.hProcess);
    return {};
}

std::string Error_Text(unsigned long code) {
    constexpr DWORD LongestText = 512;
    std::wstring text(LongestText, L'\0');
    text.resize(::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                 nullptr, code, 0, text.data(), LongestText, nullptr));
    text.erase(text.find_last_not_of(L"\r\n .") + 1);
    if (text.empty()) return "Error " + std::to_string(code);
    return To_Utf8(std::u16string(text.begin(), text.end()));
}

}  // namespace bannersmith
