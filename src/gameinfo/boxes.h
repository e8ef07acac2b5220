// The text boxes of a banner by name.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "layout/pieces.h"

namespace bannersmith {

/// The fields that each language has a box for, in the order in which a save treats them.
enum class Field : std::size_t { title, year, players, rating };

/// The name of a field's box in front of the language code.
namespace box_prefix {
inline constexpr std::u16string_view Title = u"T_VCTitle_";
inline constexpr std::u16string_view Year = u"T_Year_";
inline constexpr std::u16string_view Players = u"T_Play_";
inline constexpr std::u16string_view Rating = u"T_ESRB_";
}  // namespace box_prefix

/// The prefix of each field.
inline constexpr std::array<std::u16string_view, 4> FieldPrefixes = {
    box_prefix::Title, box_prefix::Year, box_prefix::Players, box_prefix::Rating};

/// The one box that serves all languages: the name of the console.
inline constexpr std::u16string_view SystemBox = u"T_PF";

/// The prefix of a field's boxes.
constexpr std::u16string_view Prefix_Of(Field field) {
    return FieldPrefixes[static_cast<std::size_t>(field)];
}

/// The name of a field's language-neutral box: the prefix without its underscore.
constexpr std::u16string_view Neutral_Box(std::u16string_view prefix) {
    return prefix.substr(0, prefix.size() - 1);
}

/// The name of a field's box of one language. With the code "NONE" it is the one under which the
/// neutral box is written.
std::u16string Box_Of(Field field, std::u16string_view code);

/// The name under which the same box is read: that of the neutral box for the code "NONE".
std::u16string Box_To_Read(Field field, std::u16string_view code);

/// The codes of the languages that a list offers for the layout: those of `LanguageList`, and in
/// front of its last one `Korean` where the layout has a box of that language.
std::vector<std::u16string_view> Codes_For(std::string_view layout);

/// A text for a box, by the name as the windows and the command line have it.
struct NamedText {
    std::u16string name;
    std::u16string text;
};

/// The display text of a box of the layout. A name with a code unit above 0xFF names no box.
std::u16string Read_Box(std::string_view layout, std::u16string_view name);

/// The same for each of `names`, in time that grows with the layout and the names, not with their
/// product.
std::vector<std::u16string> Read_Boxes(std::string_view layout,
                                       const std::vector<std::u16string>& names);

/// The layout with each text written into its box, in order. Names that no box can have are passed
/// over. The name of a neutral box never leads to one of the language `Korean`.
std::string Write_Boxes(std::string layout, const std::vector<NamedText>& texts);

/// `Write_Boxes` for one box.
std::string Write_Box(std::string layout, std::u16string_view name, std::u16string_view text);

/// The same for the box of exactly that name, where `Write_Box` also takes one whose name only
/// begins with it.
std::string Write_Exact_Box(std::string layout, std::u16string_view name, std::u16string_view text);

/// How `Write_Box` tells the box of a name: a neutral one never stands for one of `Korean`.
Pieces::Test Writing_Test(std::u16string_view name);

/// Whether `Write_Box` for `name` takes the very box that `Read_Box` takes for `read_name`.
bool Is_Same_Box(std::string_view layout, std::u16string_view name, std::u16string_view read_name);

/// Whether `Write_Box`, and whether `Write_Exact_Box`, finds a box of the layout.
bool Has_Box(std::string_view layout, std::u16string_view name);
bool Has_Exact_Box(std::string_view layout, std::u16string_view name);

}  // namespace bannersmith
