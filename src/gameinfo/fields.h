// The fields of a banner's game information on the bytes of a layout: what stands in the boxes,
// as bare values, and how values are written in each language's wording.
#pragma once

#include <string>
#include <string_view>

#include "gameinfo/boxes.h"

namespace bannersmith {

/// The language whose wording the neutral year box of the layout has: Japanese for a text without a
/// colon, also for an empty one; English for words in front of the colon that are no language's. A
/// French text, which has no colon, is told by the words that it begins with.
std::u16string Get_Year_Lang(std::string_view layout);

/// The language in whose wording the language-neutral boxes of a layout are composed; empty for a
/// layout with a name of its own for some language.
std::u16string Neutral_Language(std::string_view layout);

/// The bare value in a stored text, as the fields show it.
namespace bare_value {
/// The first four characters of a text that begins with a digit, otherwise its last four.
std::u16string Year(std::u16string_view text);
/// The last character of what stands behind the first colon or in front of the first blank; of a
/// second line the last but one, which has a counter behind the number.
std::u16string Players(std::u16string_view text);
/// What stands between the first and the second colon, without the blanks around it.
std::u16string Rating(std::u16string_view text);
/// Of a Korean text of two lines: the number at the end of the second, without the counter behind
/// it, of so many characters at most.
std::u16string Korean_Number(std::u16string_view text, std::size_t most);
}  // namespace bare_value

/// The bare value that a field shows of a stored text of the language. The name is shown as it is.
std::u16string Bare_Value(Field field, std::u16string_view text, std::u16string_view code);

/// Why a value cannot be one of the field, "Is no year, four digits"; empty where it can. A year
/// has four digits, players are 1 to 99, a name or a rating is not empty.
std::string Refused_Value(Field field, std::u16string_view value);

/// The display text that `Set_Field` writes for a value, line feeds as "^".
std::u16string Worded(std::string_view layout, Field field, std::u16string_view code,
                      std::u16string_view value, std::u16string_view neutral);

/// The layout with `value` written into the field's box of one language, in its wording. A Korean
/// year keeps the line above it, which tells of which country's release it is. With the code "NONE"
/// the neutral box is written, in the wording of `neutral`, which is a code or empty.
std::string Set_Field(std::string layout, Field field, std::u16string_view code,
                      std::u16string_view value, std::u16string_view neutral);

/// The layout with `value` written for every language and into the neutral box: first in English
/// wording, as one of the languages, and last in that of `neutral` unless that is empty.
std::string Set_Field_Everywhere(std::string layout, Field field, std::u16string_view value,
                                 std::u16string_view neutral);

}  // namespace bannersmith
