// The window of all languages: what the banner says in each of them, side by side.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "banner/banner.h"
#include "forms/controls.h"

namespace bannersmith {

/// What the window needs of the main window.
struct MainWindowForTable {
    Form& form;                                              ///< disabled while this window is open
    const Banner& banner;                                    ///< whose texts are edited
    std::function<void(std::span<const Edit> edits)> apply;  ///< to the banner, as one step
    std::function<void()> undo, redo;                        ///< the last step
    std::function<void()> show_what_is_there_now;            ///< in the main window's fields
};

/// The window as state and events: a row for each language that the banner has, a column for each
/// field, in the order of `Field`. What is typed goes into the banner at once.
class LanguageTable {
 public:
    static constexpr std::size_t Columns = FieldPrefixes.size();

    /// What `main` refers to must outlive this window.
    explicit LanguageTable(MainWindowForTable main);
    LanguageTable(const LanguageTable&) = delete;
    LanguageTable& operator=(const LanguageTable&) = delete;

    Form form;
    DropDownList cmbShown;  ///< bare values, or whole texts as they are stored
    Event Filled;           ///< rows or cells are others

    /// Disables the main window and shows the table.
    void Form_Load();
    /// Enables the main window and shows there what is in the layout now.
    void Form_Unload();

    /// The rows' codes of languages. The last row, without a code, stands for all of them.
    const std::vector<std::u16string>& Rows() const { return rows_; }

    /// What a cell shows; that of the last row is empty where the languages differ.
    std::u16string Cell(std::size_t row, std::size_t column) const;
    /// The text that the banner would show if `typed` were typed into the cell; empty where it is
    /// shown as it is typed.
    std::u16string Wording(std::size_t row, std::size_t column, std::u16string_view typed) const;
    /// Whether the banner has a box for the cell.
    bool Can_Edit(std::size_t row, std::size_t column) const;

    /// Writes what was typed into a cell. An empty text changes nothing, as a box cannot be empty.
    void Type(std::size_t row, std::size_t column, const std::u16string& text);
    /// Writes a block of cells as spreadsheets copy it, tabs between cells and line feeds between
    /// rows, from a cell on to the right and below. What finds no cell is left out.
    void Paste(std::size_t row, std::size_t column, std::u16string_view block);

    /// Takes back the last change of the banner, or brings it again.
    void Undo_Click();
    void Redo_Click();

 private:
    void Fill();
    bool Shows_Whole_Texts() const { return cmbShown.Index() == 1; }
    bool Is_For_All(std::size_t row) const { return row + 1 == rows_.size(); }
    void Add_Edit(std::vector<Edit>& edits, std::size_t row, std::size_t column,
                  const std::u16string& text) const;
    void Apply(const std::vector<Edit>& edits);

    MainWindowForTable main_;
    std::vector<std::u16string> rows_;
    /// As they are stored, by row and column; nothing where there is no box.
    std::vector<std::array<std::optional<std::u16string>, Columns>> texts_;
};

}  // namespace bannersmith
