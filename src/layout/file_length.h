// What concerns the layout as a whole: the length in its header and the padding behind its end.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/result.h"

namespace bannersmith {

/// `tmpFile` with its own length in bytes written at offset 8 (four bytes, big-endian). Data too
/// short to hold that field is returned unchanged.
std::string Set_File_Len(std::string tmpFile);

/// What a padding text asks for.
struct Padding {
    bool append;        ///< true: append `count` bytes; false: fill up to a length of `count` bytes
    std::size_t count;  ///< bytes, at most `MostPadding`
};

/// The most padding that can be asked for: no banner comes near it, and a slip of the keyboard must
/// not fill the disk.
inline constexpr std::size_t MostPadding = std::size_t{256} << 20;

/// The meaning of a padding text: empty for none, "+" and a whole number to append, a whole number
/// to fill up. Fails, naming the padding, for any other text and for numbers above `MostPadding`.
Result<Padding> Read_Padding(std::u16string_view text);

/// `TheFile` with the zero bytes that `padding` asks for behind it; unchanged when it is long
/// enough.
std::string AddPadding(std::string TheFile, const Padding& padding);

/// `TheFile` without its padding: cut behind the closing group section ("gre1", size 8), the last
/// one where there are several; without one, behind the first empty root group ("RootGroup" and
/// eleven zero bytes); with neither, unchanged.
std::string CutPadding(std::string TheFile);

}  // namespace bannersmith
