#include "mainwindow/game_info.h"

#include <optional>
#include <utility>

#include "gameinfo/fields.h"
#include "gameinfo/languages.h"

namespace bannersmith {

namespace {

/// The fields by the index of their Set and Set All; nothing is the console's name.
constexpr std::array<Field, 3> SetFields = {Field::title, Field::year, Field::rating};
constexpr std::array<std::optional<Field>, 5> SetAllFields = {
    Field::title, Field::year, Field::players, std::nullopt, Field::rating};

}  // namespace

GameInfo::GameInfo(const Banner& banner, std::function<void(const Edit& edit)> apply)
    : BrlytData(banner.Bytes()), apply_(std::move(apply)) {
    for (std::size_t i = 0; i < cmbRegion.size(); ++i) {
        cmbRegion[i] = DropDownList({LanguageList.begin(), LanguageList.end()});
        cmbRegion[i].Click = [this, i] { cmbRegion_click(static_cast<std::int16_t>(i)); };
    }
}

TextBox& GameInfo::Box_Of_Field(std::size_t field) {
    return *std::array{&txtName, &txtYear, &txtPlayers, &txtESRB}[field];
}

const TextBox& GameInfo::Box_Of_Field(std::size_t field) const {
    return *std::array{&txtName, &txtYear, &txtPlayers, &txtESRB}[field];
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
    Box_Of_Field(index).Set(Bare_Value(field, text, cmbRegion[index].Selected()));
}

void GameInfo::Refill() {
    const auto codes = Codes_For(BrlytData);
    for (DropDownList& list : cmbRegion) {
        list.Select(DropDownList::NoSelection);
        if (list.Count() == static_cast<int>(codes.size())) continue;
        list.Clear();
        list.Add({codes.begin(), codes.end()});
    }
    for (TextBox* box : {&txtName, &txtYear, &txtPlayers, &txtESRB, &txtSystem}) box->Set(u"");
    txtSystem.Set(Read_Box(BrlytData, SystemBox));
    for (std::size_t i = 0; i < cmbRegion.size(); ++i) {
        DropDownList& list = cmbRegion[i];
        while (Box_Of_Field(i).Text().empty() && !list.On_Last_Entry()) {
            list.Select(list.Index() + 1);
        }
    }
}

void GameInfo::Show_Selected() {
    for (std::size_t i = 0; i < cmbRegion.size(); ++i) {
        cmbRegion_click(static_cast<std::int16_t>(i));
    }
    txtSystem.Set(Read_Box(BrlytData, SystemBox));
}

void GameInfo::cmdSet_Click(std::int16_t Index) {
    const auto index = static_cast<std::size_t>(Index);
    if (index >= SetFields.size()) return;
    const auto field = static_cast<std::size_t>(SetFields[index]);
    apply_(SetField{SetFields[index], cmbRegion[field].Selected(), Box_Of_Field(field).Text()});
}

void GameInfo::cmdSetAll_Click(std::int16_t Index) {
    const auto index = static_cast<std::size_t>(Index);
    if (index >= SetAllFields.size()) return;
    if (const auto field = SetAllFields[index]) {
        const TextBox& box = Box_Of_Field(static_cast<std::size_t>(*field));
        apply_(SetFieldEverywhere{*field, box.Text()});
    } else {
        apply_(WriteBox{std::u16string(SystemBox), txtSystem.Text()});
    }
}

std::vector<Edit> GameInfo::Unset_Edits() const {
    std::vector<Edit> edits;
    for (std::size_t i = 0; i < cmbRegion.size(); ++i) {
        const auto field = static_cast<Field>(i);
        const std::u16string& typed = Box_Of_Field(i).Text();
        const std::u16string code = cmbRegion[i].Selected();
        if (code.empty() || typed == Bare_Value(field, Selected_Text(field), code)) continue;
        if (field == Field::players)
            edits.emplace_back(SetFieldEverywhere{field, typed});
        else
            edits.emplace_back(SetField{field, code, typed});
    }
    if (txtSystem.Text() != Read_Box(BrlytData, SystemBox)) {
        edits.emplace_back(WriteBox{std::u16string(SystemBox), txtSystem.Text()});
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
