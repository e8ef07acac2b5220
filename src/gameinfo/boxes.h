// The text boxes of a banner by name, on the loaded layout.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace bannersmith {

/// The name of a field's box in front of the language code.
namespace box_prefix {
inline constexpr std::u16string_view Title = u"T_VCTitle_";
inline constexpr std::u16string_view Year = u"T_Year_";
inline constexpr std::u16string_view Players = u"T_Play_";
inline constexpr std::u16string_view Rating = u"T_ESRB_";
}  // namespace box_prefix

/// The prefixes of the four fields that each language has a box for, in the order in which a save
/// treats them.
inline constexpr std::array<std::u16string_view, 4> FieldPrefixes = {
    box_prefix::Title, box_prefix::Year, box_prefix::Players, box_prefix::Rating};

/// The one box that serves all languages: the name of the console.
inline constexpr std::u16string_view SystemBox = u"T_PF";

/// The name of a field's language-neutral box: the prefix without its underscore.
constexpr std::u16string_view Neutral_Box(std::u16string_view prefix) {
    return prefix.substr(0, prefix.size() - 1);
}

/// A text for a box, by the name as the windows and the command line have it.
struct NamedText {
    std::u16string name;
    std::u16string text;
};

/// The display text of a box of `BrlytData`. A name with a code unit above 0xFF names no box.
std::u16string Read_Box(std::u16string_view name);

/// Writes each text into its box of `BrlytData`, in order. Names that no box can have are passed
/// over.
void Write_Boxes(const std::vector<NamedText>& texts);

/// `Write_Boxes` for one box.
void Write_Box(std::u16string_view name, std::u16string_view text);

}  // namespace bannersmith
