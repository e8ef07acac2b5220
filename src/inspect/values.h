// What a banner holds, as the values of the options and recipe columns that would write it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/color.h"
#include "colors/scheme.h"
#include "container/imet.h"

namespace bannersmith {

/// A value by the name of its option: "title-ger", "system", "text:BOX", "color:ELEMENT",
/// "name-eng", "subtitle-eng".
struct OptionValue {
    std::string option;
    std::u16string value;
};

/// All values of a banner that its options could write and that UTF-8 can hold, in the order of the
/// layout: of a box whose text is its language's wording of a value the bare value, of any other
/// the raw text. Written again they leave every text, colour and name as it is. A layout whose
/// texts serve all languages has its fields without a language. An element has colours where all of
/// its materials agree. `layout`, for which `Is_Layout` holds, is without its padding.
std::vector<OptionValue> Values_Of(std::string_view layout,
                                   const std::optional<ChannelNames>& names);

/// The option of a language: "title" and "GER" make "title-ger".
std::string Option_Of(std::string_view name, std::u16string_view code);

/// The names of the fields' options.
inline constexpr std::array<std::string_view, FieldPrefixes.size()> FieldOptions = {
    "title", "year", "players", "rating"};

/// "RRGGBB,RRGGBB", each two hexadecimal digits.
std::u16string Colors_Text(const ColorPair& colors);

}  // namespace bannersmith
