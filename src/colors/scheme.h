// The colour scheme file (".vccs"): a pair of colours for each of the 19 banner elements.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/color.h"
#include "base/result.h"
#include "colors/elements.h"

namespace bannersmith {

/// First and second colour of one element.
using ColorPair = std::array<Color, 2>;

/// One pair for each element, in the order of `Elements`.
using Scheme = std::array<ColorPair, Elements.size()>;

/// The entry in front of the schemes in every scheme list: the colours that the layout itself has.
inline constexpr std::u16string_view CurrentBrlyt = u"Current Brlyt";

/// What the name of a scheme file ends in.
inline constexpr std::string_view SchemeEnding = ".vccs";

/// The folder of the scheme files, with a separator at its end.
std::u16string Scheme_Folder(std::u16string_view program_folder);

/// The file of the scheme called `name`, which may be there already under an ending in other
/// letters than `SchemeEnding`.
std::u16string Scheme_Path(std::u16string_view program_folder, std::u16string_view name);

/// The name of the scheme in a file whose name has the ending.
std::u16string_view Without_Ending(std::u16string_view file);

/// The contents of a scheme file: 19 lines ended by CR LF, each with red, green and blue of the
/// first and of the second colour, each number between two blanks.
std::string Format_Scheme(const Scheme& scheme);

/// Reads the 114 numbers of a scheme file's contents in sequence, whatever its lines: they are
/// separated by blanks, a comma or line ends, and what follows the last one does not count. Fails
/// for a text that ends early, for something that is no whole number, and for a number outside 0 to
/// 255; the reason names the element, the subject is empty.
Result<Scheme> Parse_Scheme(std::string_view contents);

/// Reads a scheme file whole.
Result<Scheme> Load_Scheme(const std::u16string& path);

}  // namespace bannersmith
