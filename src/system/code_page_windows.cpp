#include "system/code_page.h"

#include <windows.h>

namespace bannersmith {

std::u16string From_Code_Page(std::string_view bytes) {
    const int size = static_cast<int>(bytes.size());
    std::wstring text(bytes.size(), L'\0');  // no byte becomes more than one code unit
    text.resize(static_cast<std::size_t>(
        ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, text.data(), size)));
    return {text.begin(), text.end()};
}

std::string To_Code_Page(std::u16string_view text) {
    const std::wstring wide(text.begin(), text.end());
    const DWORD exact = ::GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;  // UTF-8 knows no flags
    std::string bytes(text.size() * 4, '\0');  // no code unit becomes more bytes than that
    bytes.resize(static_cast<std::size_t>(
        ::WideCharToMultiByte(CP_ACP, exact, wide.data(), static_cast<int>(wide.size()),
                              bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

}  // namespace bannersmith
