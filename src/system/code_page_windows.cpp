#include "system/code_page.h"

#include <windows.h>

#include <cstdlib>

namespace bannersmith {

namespace {

/// The system's, as other programs write by it. That of the process is UTF-8, by its manifest.
UINT Code_Page() {
    constexpr int MostDigits = 8;
    wchar_t number[MostDigits] = {};
    ::GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE, number, MostDigits);
    const auto page = static_cast<UINT>(std::wcstoul(number, nullptr, 10));
    return page == 0 ? CP_UTF8 : page;  // some languages have none
}

}  // namespace

std::u16string From_Code_Page(std::string_view bytes) {
    const int size = static_cast<int>(bytes.size());
    std::wstring text(bytes.size(), L'\0');  // no byte becomes more than one code unit
    text.resize(static_cast<std::size_t>(
        ::MultiByteToWideChar(Code_Page(), 0, bytes.data(), size, text.data(), size)));
    return {text.begin(), text.end()};
}

std::string To_Code_Page(std::u16string_view text) {
    const std::wstring wide(text.begin(), text.end());
    const UINT page = Code_Page();
    const DWORD exact = page == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;  // UTF-8 knows no flags
    std::string bytes(text.size() * 4, '\0');  // no code unit becomes more bytes than that
    bytes.resize(static_cast<std::size_t>(
        ::WideCharToMultiByte(page, exact, wide.data(), static_cast<int>(wide.size()), bytes.data(),
                              static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

}  // namespace bannersmith
