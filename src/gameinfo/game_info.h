// The five fields of a banner's game information with their language selectors: what is read out of
// the layout, shown as bare values, and written back in each language's wording.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "forms/controls.h"

namespace bannersmith {

/// The language in whose wording the loaded banner's language-neutral boxes are composed; empty for
/// a banner with a name of its own for some language. Set by `GameInfo::Refill`, read by Set and
/// Set All: like `BrlytData` there is one for the whole program.
inline std::u16string NoneRegion;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

/// The language whose wording the neutral year box of `BrlytData` has: Japanese for a text without
/// a colon, also for an empty one; English for words in front of the colon that are no language's.
/// A French text, which has no colon, is told by the words that it begins with.
std::u16string Get_Year_Lang();

/// The bare value in a stored text, as the fields show it.
namespace bare_value {
/// The first four characters of a text that begins with a digit, otherwise its last four.
std::u16string Year(std::u16string_view text);
/// The last character of what stands behind the first colon or in front of the first blank; of a
/// second line the last but one, which has a counter behind the number.
std::u16string Players(std::u16string_view text);
/// What stands between the first and the second colon, without the blanks around it.
std::u16string Rating(std::u16string_view text);
}  // namespace bare_value

/// The fields and selectors of the main window, a view of `BrlytData`: what they hold reaches it
/// only through Set and Set All. The names of the controls are those of the window.
class GameInfo {
 public:
    /// The fields that have a language list, by its place in `cmbRegion`.
    enum Selector : std::size_t { title = 0, year = 1, players = 2, rating = 3 };

    /// Empty fields, and lists of all languages with nothing selected.
    GameInfo();
    GameInfo(const GameInfo&) = delete;
    GameInfo& operator=(const GameInfo&) = delete;

    /// The bare values. Line breaks are shown as "^".
    TextBox txtName, txtYear, txtPlayers, txtESRB, txtSystem;
    /// The language that each field shows; a selection runs `cmbRegion_click`.
    std::array<DropDownList, 4> cmbRegion;

    /// Shows the value of field `Index` for the language that its selector shows: 0 name, 1 year,
    /// 2 players, 3 rating; any other index does nothing, and so does a selector without a
    /// selection. A year stays as it is where the language has no year text; the other fields
    /// become empty.
    void cmbRegion_click(std::int16_t Index);

    /// Empties the fields and fills them from `BrlytData`: each selector stops on the first
    /// language with a value, or on "NONE". Sets `NoneRegion` when the name's selector stops there.
    void Refill();

    /// Shows the console's name as it is in `BrlytData`.
    void Show_System();

    /// Set for one field in the language of its selector: 0 name, 1 year, 2 rating; else nothing.
    void cmdSet_Click(std::int16_t Index);

    /// Set for one field in every language and in the language-neutral box: 0 name, 1 year, 2
    /// players, 3 system, 4 rating; else nothing.
    void cmdSetAll_Click(std::int16_t Index);

    /// The box of a field for the entry that its selector shows. The selector has a selection.
    std::u16string Selected_Box(Selector selector) const;
};

}  // namespace bannersmith
