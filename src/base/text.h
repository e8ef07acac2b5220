// Texts between UTF-16 code units, which the windows and the layout speak, and bytes, which files
// and terminals speak. The only place where encodings are converted.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace bannersmith {

/// The code units of a UTF-8 text. A byte that belongs to no character becomes the lone surrogate
/// 0xDC00 + byte, so that a file name in another encoding survives the way there and back.
std::u16string From_Utf8(std::string_view bytes);

/// The UTF-8 bytes of a text: the inverse of `From_Utf8`. Any other lone surrogate becomes U+FFFD.
std::string To_Utf8(std::u16string_view text);

/// Whether a text that `From_Utf8` made came from UTF-8 alone, without a byte that belongs to no
/// character.
bool Is_Utf8(std::u16string_view text);

/// The UTF-8 bytes of a text as a terminal can show it: control characters, and bytes that belong
/// to no character, as escapes such as \u001b and \xff.
std::string Printable(std::u16string_view text);

/// `text` if it has at most `most` code units, otherwise its beginning and its end with "..." in
/// between.
std::u16string Shortened(std::u16string_view text, std::size_t most);

/// Each byte as the code unit of the same value.
std::u16string From_Bytes(std::string_view bytes);

/// The inverse of `From_Bytes`: nothing when a code unit is above 0xFF, so stands for no byte.
std::optional<std::string> To_Bytes(std::u16string_view text);

/// `text` without leading and trailing blanks (U+0020 alone).
std::u16string_view Trim(std::u16string_view text);

/// `text` with the letters a to z turned into capitals and everything else as it is.
std::u16string Capitals(std::u16string_view text);

/// `text` with every occurrence of `what`, from left to right and without overlap, replaced by
/// `with`. An empty `what` occurs nowhere.
std::u16string Replace_All(std::u16string_view text, std::u16string_view what,
                           std::u16string_view with);

/// Piece `index` of `text` split at every `separator`; empty when there are fewer pieces.
std::u16string_view Piece_Of(std::u16string_view text, char16_t separator, std::size_t index);

}  // namespace bannersmith
