#pragma once

#include <string>
#include <string_view>

namespace bannersmith {

/// The text that bytes of the system's code page stand for: the ANSI code page on Windows, UTF-8
/// elsewhere.
std::u16string From_Code_Page(std::string_view bytes);

/// A text in the system's code page. What that page does not have becomes its substitute, mostly
/// "?".
std::string To_Code_Page(std::u16string_view text);

}  // namespace bannersmith
