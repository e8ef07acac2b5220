#include "mainwindow/game_info.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "forms/say.h"
#include "gameinfo/fields.h"
#include "gameinfo/languages.h"
#include "mainwindow/edit_names.h"

namespace bannersmith {

namespace {

/// The fields by the index of their Set and Set All; nothing is the console's name.
constexpr std::array<Field, 3> SetFields = {Field::title, Field::year, Field::rating};
constexpr std::array<std::optional<Field>, 5> SetAllFields = {
    Field::title, Field::year, Field::players, std::nullopt, Field::rating};

}  // namespace

GameInfo::GameInfo(const Banner& banner, std::function<void(const Edit& edit)> apply)
    : banner_(banner), BrlytData(banner.Bytes()), apply_(std::move(apply)) {
    for (std::size_t field = 0; field < Fields; ++field) {
        Box_Of_Field(field).Change = [this, field] {
            Show_Mark(field);
            Typed.Raise();
        };
    }
    for (std::size_t i = 0; i < cmbRegion.size(); ++i) {
        cmbRegion[i] = DropDownList({LanguageList.begin(), LanguageList.end()});
        cmbRegion[i].Click = [this, i] { cmbRegion_click(static_cast<std::int16_t>(i)); };
    }
}

TextBox& GameInfo::Box_Of_Field(std::size_t field) {
    return *std::array{&txtName, &txtYear, &txtPlayers, &txtESRB, &txtSystem}[field];
}

const TextBox& GameInfo::Box_Of_Field(std::size_t field) const {
    return *std::array{&txtName, &txtYear, &txtPlayers, &txtESRB, &txtSystem}[field];
}

std::u16string GameInfo::Selected_Text(Field field) const {
    const DropDownList& list = cmbRegion[static_cast<std::size_t>(field)];
    return Read_Box(BrlytData, Box_To_Read(field, list.Selected()));
}

void GameInfo::cmbRegion_click(std::int16_t Index) {
    const auto index = static_cast<std::size_t>(Index);
    if (index >= cmbRegion.size()) return;
    if (cmbRegion[index].Index() == DropDownList::NoSelection) return;
    const auto field = static_cast<Field>(index);
    const std::u16string text = Selected_Text(field);
    if (field == Field::year && text.empty()) return;
    Show(index, Bare_Value(field, text, cmbRegion[index].Selected()));
}

/// A text that is set.
void GameInfo::Show(std::size_t field, std::u16string_view value) {
    set_[field] = value;
    Box_Of_Field(field).Set(value);
    Show_Mark(field);
}

bool GameInfo::Is_Unset(std::size_t field) const {
    return BrlytData.empty() ? false : Box_Of_Field(field).Text() != set_[field];
}

void GameInfo::Show_Mark(std::size_t field) {
    const std::u16string mark = Is_Unset(field) ? Say("Typed, but not set yet") : u"";
    Box_Of_Field(field).Set_Mark(mark);
    if (field < cmbRegion.size()) cmbRegion[field].Set_Mark(mark);
}

std::u16string GameInfo::Name_Of(std::size_t field) const {
    if (field == System) return bannersmith::Name_Of(WriteBox{std::u16string(SystemBox), u""});
    const auto kind = static_cast<Field>(field);
    if (kind == Field::players) return bannersmith::Name_Of(kind);
    return bannersmith::Name_Of(SetField{kind, cmbRegion[field].Selected(), u""});
}

GameInfo::Content GameInfo::Take_Content() const {
    Content content;
    for (std::size_t i = 0; i < cmbRegion.size(); ++i) content.languages[i] = cmbRegion[i].Index();
    for (std::size_t i = 0; i < Fields; ++i) content.texts[i] = Box_Of_Field(i).Text();
    return content;
}

void GameInfo::Give_Back(const Content& content) {
    for (std::size_t i = 0; i < cmbRegion.size(); ++i) cmbRegion[i].Select(content.languages[i]);
    for (std::size_t i = 0; i < Fields; ++i) Box_Of_Field(i).Set(content.texts[i]);
}

void GameInfo::Show_Again(std::size_t field) {
    Box_Of_Field(field).Set(set_[field]);
    if (field == System)
        Show(System, Read_Box(BrlytData, SystemBox));
    else
        cmbRegion_click(static_cast<std::int16_t>(field));
}

void GameInfo::Refill() {
    const auto codes = Codes_For(BrlytData);
    for (DropDownList& list : cmbRegion) {
        list.Select(DropDownList::NoSelection);
        if (list.Count() == static_cast<int>(codes.size())) continue;
        list.Clear();
        list.Add({codes.begin(), codes.end()});
    }
    for (std::size_t field = 0; field < Fields; ++field) Show(field, u"");
    Show_Again(System);
    for (std::size_t i = 0; i < cmbRegion.size(); ++i) {
        DropDownList& list = cmbRegion[i];
        while (Box_Of_Field(i).Text().empty() && !list.On_Last_Entry()) {
            list.Select(list.Index() + 1);
        }
    }
}

void GameInfo::Show_Selected() {
    for (std::size_t field = 0; field < Fields; ++field) {
        if (!Is_Unset(field)) Show_Again(field);
    }
}

void GameInfo::cmdSet_Click(std::int16_t Index) {
    const auto index = static_cast<std::size_t>(Index);
    if (index >= SetFields.size()) return;
    const auto field = static_cast<std::size_t>(SetFields[index]);
    Apply(field,
          SetField{SetFields[index], cmbRegion[field].Selected(), Box_Of_Field(field).Text()});
}

void GameInfo::cmdSetAll_Click(std::int16_t Index) {
    const auto index = static_cast<std::size_t>(Index);
    if (index >= SetAllFields.size()) return;
    if (const auto field = SetAllFields[index]) {
        const auto place = static_cast<std::size_t>(*field);
        Apply(place, SetFieldEverywhere{*field, Box_Of_Field(place).Text()});
    } else {
        Apply(System, WriteBox{std::u16string(SystemBox), txtSystem.Text()});
    }
}

void GameInfo::Apply(std::size_t field, const Edit& edit) {
    apply_(edit);
    if (Is_Set_Now(field)) set_[field] = Box_Of_Field(field).Text();
    Show_Mark(field);
}

/// What was typed counts as set where the banner has it in the language shown. A language without
/// such a box shows the value of another one.
bool GameInfo::Is_Set_Now(std::size_t field) const {
    const std::u16string& typed = Box_Of_Field(field).Text();
    if (field == System) return Read_Box(BrlytData, SystemBox) == typed;
    const auto kind = static_cast<Field>(field);
    const std::u16string code = cmbRegion[field].Selected(), text = Selected_Text(kind);
    return text.empty() ? !typed.empty()
                        : text == Worded(BrlytData, kind, code, typed, banner_.Neutral());
}

void GameInfo::Set(std::size_t field) {
    const auto is_in = [field](Field wanted) { return static_cast<std::size_t>(wanted) == field; };
    const auto single = std::find_if(SetFields.begin(), SetFields.end(), is_in);
    if (single != SetFields.end()) {
        return cmdSet_Click(static_cast<std::int16_t>(single - SetFields.begin()));
    }
    const auto all = std::find_if(SetAllFields.begin(), SetAllFields.end(), [&](const auto& one) {
        return one ? is_in(*one) : field == System;
    });
    cmdSetAll_Click(static_cast<std::int16_t>(all - SetAllFields.begin()));
}

std::vector<Edit> GameInfo::Unset_Edits() const {
    std::vector<Edit> edits;
    for (std::size_t i = 0; i < Fields; ++i) {
        if (!Is_Unset(i)) continue;
        const auto field = static_cast<Field>(i);
        const std::u16string& typed = Box_Of_Field(i).Text();
        if (i == System)
            edits.emplace_back(WriteBox{std::u16string(SystemBox), typed});
        else if (field == Field::players)
            edits.emplace_back(SetFieldEverywhere{field, typed});
        else
            edits.emplace_back(SetField{field, cmbRegion[i].Selected(), typed});
    }
    return edits;
}

PreviewTexts GameInfo::Texts() const {
    PreviewTexts texts{txtName.Text(), txtSystem.Text(), {}, {}, {}};
    if (!txtYear.Text().empty()) texts.year = Selected_Text(Field::year);
    if (!txtPlayers.Text().empty()) texts.players = Selected_Text(Field::players);
    if (!txtESRB.Text().empty()) texts.rating = Selected_Text(Field::rating);
    return texts;
}

}  // namespace bannersmith
