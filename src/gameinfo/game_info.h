// The five fields of a banner's game information with their language selectors: what is read out of
// the layout, shown as bare values, and written back in each language's wording.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/controls.h"

/// The language in whose wording the loaded banner's language-neutral boxes are composed; empty for
/// a banner with a name of its own for some language.
inline std::u16string NoneRegion;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

/// The language whose wording the neutral year box of `BrlytData` has: Japanese for a text without
/// a colon, also for an empty one; English for words in front of the colon that are no language's.
/// A French text, which has no colon, is told by the words that it begins with.
std::u16string Get_Year_Lang();

/// The bare value in a stored text, as the fields show it.
namespace bare_value {
/// The first four characters of a text that begins with a digit, otherwise its last four.
std::u16string Year(std::u16string_view text);
/// The last character of what stands behind the first colon, in front of the first blank, or on the
/// second line.
std::u16string Players(std::u16string_view text);
/// What stands between the first and the second colon, without the blanks around it.
std::u16string Rating(std::u16string_view text);
}  // namespace bare_value

/// The fields and selectors of the main window. The names of the controls are those of the window.
class GameInfo {
 public:
    enum Selector : std::size_t { title = 0, year = 1, players = 2, rating = 3 };

    GameInfo();
    GameInfo(const GameInfo&) = delete;
    GameInfo& operator=(const GameInfo&) = delete;

    TextBox txtName, txtYear, txtPlayers, txtESRB, txtSystem;
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
