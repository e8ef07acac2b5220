// The colour scheme file (".vccs"): a pair of colours for each of the 19 banner elements.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/color.h"
#include "base/failure.h"

namespace bannersmith {

/// First and second colour of one element.
using ColorPair = std::array<Color, 2>;

/// How many elements of a banner have colours of their own.
inline constexpr std::size_t ElementCount = 19;

/// The elements' keys in the order of the scheme file's lines.
inline constexpr std::array<std::u16string_view, ElementCount> ElementKeys = {
    u"PFLINE", u"T_PF",      u"Shade",    u"Back0",     u"Back1",    u"Back2",  u"Back3",
    u"Back4",  u"YearLine",  u"PlayLine", u"T_VCTitle", u"T_Play",   u"T_Year", u"T_ESRB",
    u"VCPic",  u"VCPicBase", u"VCPicSha", u"BackMask1", u"BackMask2"};

/// One pair for each element, in the order of `ElementKeys`.
using Scheme = std::array<ColorPair, ElementCount>;

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
/// separated by blanks, a comma or line ends, and what follows the last one does not count. A text
/// that ends early, something that is no whole number, and a number outside 0 to 255 give a reason,
/// which names the element, and leave `scheme` as it was.
std::string Parse_Scheme(std::string_view contents, Scheme& scheme);

/// Reads the file of the scheme called `name` whole. On failure `scheme` is left as it was.
Outcome Load_Scheme(std::u16string_view program_folder, std::u16string_view name, Scheme& scheme);

}  // namespace bannersmith
