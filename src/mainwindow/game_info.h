// The five fields of the main window with their language selectors.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "banner/banner.h"
#include "colors/window/preview.h"
#include "forms/controls.h"

namespace bannersmith {

/// The fields and selectors, a view of the banner: what they hold reaches it only through Set and
/// Set All. The names of the controls are those of the window.
class GameInfo {
 public:
    /// The fields by their places in the window's arrays: those of `Field`, then the console's
    /// name.
    static constexpr std::size_t Fields = FieldPrefixes.size() + 1, System = FieldPrefixes.size();

    /// Empty fields, and lists of all languages with nothing selected. `banner` must outlive the
    /// object; `apply` applies an edit to it.
    GameInfo(const Banner& banner, std::function<void(const Edit& edit)> apply);
    GameInfo(const GameInfo&) = delete;
    GameInfo& operator=(const GameInfo&) = delete;

    /// The bare values. Line breaks are shown as "^".
    TextBox txtName, txtYear, txtPlayers, txtESRB, txtSystem;
    /// The language that each field shows, by its `Field`; a selection runs `cmbRegion_click`.
    std::array<DropDownList, FieldPrefixes.size()> cmbRegion;

    Event Typed;  ///< a field's text is another one

    /// Whether the field holds a text that was typed and is not set. Its box has a mark then, and
    /// so has its selector.
    bool Is_Unset(std::size_t field) const;
    /// How the field is called, with the code of its language: "Name (ENG)".
    std::u16string Name_Of(std::size_t field) const;
    /// Set, or Set All for a field that has no other.
    void Set(std::size_t field);
    /// Shows the field's value as it is set.
    void Show_Again(std::size_t field);

    /// What is selected and typed; `Give_Back` shows it again. Nothing that is set changes.
    struct Content {
        std::array<int, FieldPrefixes.size()> languages;
        std::array<std::u16string, Fields> texts;
    };
    Content Take_Content() const;
    void Give_Back(const Content& content);

    /// Shows the value of field `Index` for the language that its selector shows: 0 name, 1 year,
    /// 2 players, 3 rating; any other index does nothing, and so does a selector without a
    /// selection. A year stays as it is where the language has no year text; the other fields
    /// become empty.
    void cmbRegion_click(std::int16_t Index);

    /// Empties the fields and fills them from the banner: each selector stops on the first language
    /// with a value, or on "NONE".
    void Refill();

    /// Shows again what the banner has in the selected languages, and the console's name, but where
    /// a text is not set yet.
    void Show_Selected();

    /// Set for one field in the language of its selector: 0 name, 1 year, 2 rating; else nothing.
    void cmdSet_Click(std::int16_t Index);

    /// Set for one field in every language and in the language-neutral box: 0 name, 1 year, 2
    /// players, 3 system, 4 rating; else nothing.
    void cmdSetAll_Click(std::int16_t Index);

    /// What Set would write for each field that differs from what the banner has.
    std::vector<Edit> Unset_Edits() const;

    /// What the colour window's preview shows of the fields.
    PreviewTexts Texts() const;

 private:
    TextBox& Box_Of_Field(std::size_t field);
    const TextBox& Box_Of_Field(std::size_t field) const;
    std::u16string Selected_Text(Field field) const;
    void Show(std::size_t field, std::u16string_view value);
    void Apply(std::size_t field, const Edit& edit);
    bool Is_Set_Now(std::size_t field) const;
    void Show_Mark(std::size_t field);

    const Banner& banner_;
    const std::string& BrlytData;
    std::function<void(const Edit& edit)> apply_;
    std::array<std::u16string, Fields> set_;  ///< what each field shows when nothing was typed
};

}  // namespace bannersmith
