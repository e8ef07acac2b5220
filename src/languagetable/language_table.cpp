#include "languagetable/language_table.h"

#include <algorithm>
#include <set>
#include <utility>

#include "base/text.h"
#include "forms/say.h"
#include "gameinfo/fields.h"
#include "gameinfo/languages.h"
#include "layout/text_box.h"

namespace bannersmith {

namespace {

/// The pieces of a text between separators.
std::vector<std::u16string> Split_At(std::u16string_view text, char16_t separator) {
    std::vector<std::u16string> pieces;
    for (std::size_t end = 0; end != text.npos; text.remove_prefix(end + 1)) {
        end = text.find(separator);
        pieces.emplace_back(text.substr(0, end));
        if (end == text.npos) break;
    }
    return pieces;
}

/// A cell that holds quotes is copied in quotes, each one twice.
std::u16string Without_Quotes(std::u16string cell) {
    if (cell.size() < 2 || cell.front() != u'"' || cell.back() != u'"') return cell;
    return Replace_All(cell.substr(1, cell.size() - 2), u"\"\"", u"\"");
}

/// The last row ends in a line feed or not.
std::vector<std::vector<std::u16string>> Cells_Of(std::u16string_view block) {
    std::vector<std::vector<std::u16string>> rows;
    const std::u16string text = Replace_All(std::u16string(block), u"\r", u"");
    for (const std::u16string& line : Split_At(text, u'\n')) {
        rows.emplace_back();
        for (std::u16string& cell : Split_At(line, u'\t')) {
            rows.back().push_back(Without_Quotes(std::move(cell)));
        }
    }
    return rows;
}

}  // namespace

LanguageTable::LanguageTable(MainWindowForTable main)
    : cmbShown({Say("Values"), Say("Whole texts")}), main_(std::move(main)) {
    cmbShown.Select(0);
    cmbShown.Click = [this] { Filled.Raise(); };
}

void LanguageTable::Form_Load() {
    main_.form.Set_Enabled(false);
    Fill();
}

void LanguageTable::Form_Unload() {
    main_.form.Set_Enabled(true);
    main_.show_what_is_there_now();
}

void LanguageTable::Fill() {
    const std::string& layout = main_.banner.Bytes();
    const auto boxes = Text_Box_Names(layout);
    const std::set<std::string> has(boxes.begin(), boxes.end());
    rows_.clear();
    texts_.clear();
    for (const std::u16string_view code : Codes_For(layout)) {
        std::vector<std::u16string> names;
        for (std::size_t column = 0; column < Columns; ++column) {
            names.push_back(Box_To_Read(static_cast<Field>(column), code));
        }
        const auto is_there = [&](const std::u16string& name) {
            return has.contains(To_Utf8(name));
        };
        if (std::none_of(names.begin(), names.end(), is_there)) continue;
        const auto texts = Read_Boxes(layout, names);
        rows_.emplace_back(code);
        texts_.emplace_back();
        for (std::size_t column = 0; column < Columns; ++column) {
            if (is_there(names[column])) texts_.back()[column] = texts[column];
        }
    }
    rows_.emplace_back();
    Filled.Raise();
}

std::u16string LanguageTable::Cell(std::size_t row, std::size_t column) const {
    if (!Is_For_All(row)) {
        const auto& text = texts_[row][column];
        if (!text || Shows_Whole_Texts()) return text.value_or(u"");
        return Bare_Value(static_cast<Field>(column), *text, rows_[row]);
    }
    std::optional<std::u16string> common;
    for (std::size_t other = 0; other < texts_.size(); ++other) {
        if (!texts_[other][column]) continue;
        const std::u16string value = Cell(other, column);
        if (common && *common != value) return {};
        common = value;
    }
    return common.value_or(u"");
}

std::u16string LanguageTable::Wording(std::size_t row, std::size_t column,
                                      std::u16string_view typed) const {
    const auto field = static_cast<Field>(column);
    if (Shows_Whole_Texts() || field == Field::title || Is_For_All(row)) return {};
    return Worded(main_.banner.Bytes(), field, rows_[row], typed, main_.banner.Neutral());
}

bool LanguageTable::Can_Edit(std::size_t row, std::size_t column) const {
    if (!Is_For_All(row)) return texts_[row][column].has_value();
    return std::any_of(texts_.begin(), texts_.end(),
                       [&](const auto& texts) { return texts[column].has_value(); });
}

void LanguageTable::Add_Edit(std::vector<Edit>& edits, std::size_t row, std::size_t column,
                             const std::u16string& text) const {
    if (text.empty() || !Can_Edit(row, column) || text == Cell(row, column)) return;
    const auto field = static_cast<Field>(column);
    if (!Shows_Whole_Texts()) {
        edits.emplace_back(Is_For_All(row) ? Edit(SetFieldEverywhere{field, text})
                                           : Edit(SetField{field, rows_[row], text}));
        return;
    }
    for (std::size_t each = 0; each < texts_.size(); ++each) {
        if ((each == row || Is_For_All(row)) && texts_[each][column]) {
            edits.emplace_back(WriteBox{Box_To_Read(field, rows_[each]), text, true});
        }
    }
}

void LanguageTable::Type(std::size_t row, std::size_t column, const std::u16string& text) {
    std::vector<Edit> edits;
    Add_Edit(edits, row, column, text);
    Apply(edits);
}

void LanguageTable::Paste(std::size_t row, std::size_t column, std::u16string_view block) {
    std::vector<Edit> edits;
    for (const auto& line : Cells_Of(block)) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            if (row < rows_.size() && column + i < Columns)
                Add_Edit(edits, row, column + i, line[i]);
        }
        ++row;
    }
    Apply(edits);
}

void LanguageTable::Apply(const std::vector<Edit>& edits) {
    if (edits.empty()) return;
    main_.apply(edits);
    Fill();
}

void LanguageTable::Undo_Click() {
    main_.undo();
    Fill();
}

void LanguageTable::Redo_Click() {
    main_.redo();
    Fill();
}

}  // namespace bannersmith
