#include "gameinfo/game_info.h"

#include <algorithm>
#include <vector>

#include "base/text.h"
#include "gameinfo/boxes.h"
#include "gameinfo/composing.h"
#include "gameinfo/languages.h"

namespace bannersmith {

namespace {

/// How a value becomes a language's text. The name has no wording: its text is the value.
using Compose = std::u16string (*)(std::u16string& value, std::u16string_view code);

/// The four fields that have a selector, in the selectors' order.
struct Field {
    TextBox GameInfo::*box;
    std::u16string_view prefix;
    Compose compose;
};

std::u16string As_It_Is(std::u16string& value, std::u16string_view /*code*/) {
    return value;
}

constexpr std::array<Field, 4> Fields = {{
    {&GameInfo::txtName, box_prefix::Title, As_It_Is},
    {&GameInfo::txtYear, box_prefix::Year, Make_Year},
    {&GameInfo::txtPlayers, box_prefix::Players, Make_Players},
    {&GameInfo::txtESRB, box_prefix::Rating, Make_ESRB},
}};

std::u16string Text_For(const GameInfo& info, const Field& field, std::u16string_view code) {
    std::u16string value = (info.*field.box).Text();
    return field.compose(value, code);
}

std::u16string Box_Name(const Field& field, std::u16string_view code) {
    return std::u16string(field.prefix).append(code);
}

void Set_Selected(const GameInfo& info, GameInfo::Selector selector) {
    const Field& field = Fields[selector];
    const std::u16string code = info.cmbRegion[selector].Selected();
    const std::u16string_view wording = code == NoLanguage ? NoneRegion : code;
    Write_Box(Box_Name(field, code), Text_For(info, field, wording));
}

void Set_All(const GameInfo& info, GameInfo::Selector selector) {
    const Field& field = Fields[selector];
    std::vector<NamedText> texts;
    for (const std::u16string& code : info.cmbRegion[selector].Entries()) {
        texts.push_back({Box_Name(field, code), Text_For(info, field, code)});
    }
    // The entry "NONE" has just written the neutral box in English wording; this has the last word.
    if (!NoneRegion.empty()) {
        texts.push_back(
            {std::u16string(Neutral_Box(field.prefix)), Text_For(info, field, NoneRegion)});
    }
    Write_Boxes(texts);
}

std::u16string_view Last_Characters(std::u16string_view text, std::size_t count) {
    return text.substr(text.size() - std::min(text.size(), count));
}

std::u16string_view Players_Piece(std::u16string_view text) {
    if (text.find(u':') != text.npos) return Trim(Piece_Of(text, u':', 1));
    if (text.find(u' ') != text.npos) return Trim(Piece_Of(text, u' ', 0));
    std::u16string_view second_line = Piece_Of(text, u'^', 1);
    if (!second_line.empty()) second_line.remove_suffix(1);
    return second_line;
}

}  // namespace

namespace bare_value {

std::u16string Year(std::u16string_view text) {
    const bool digit_first = !text.empty() && text.front() >= u'0' && text.front() <= u'9';
    return std::u16string(digit_first ? text.substr(0, 4) : Last_Characters(text, 4));
}

std::u16string Players(std::u16string_view text) {
    return std::u16string(Last_Characters(Players_Piece(text), 1));
}

std::u16string Rating(std::u16string_view text) {
    return std::u16string(Trim(Piece_Of(text, u':', 1)));
}

}  // namespace bare_value

std::u16string Get_Year_Lang() {
    struct Word {
        std::u16string_view word, code;
    };
    static constexpr Word Words[] = {
        {year_words::English, u"ENG"}, {year_words::German, u"GER"}, {year_words::Italian, u"ITA"},
        {year_words::Spanish, u"SPA"}, {year_words::Dutch, u"NED"},
    };
    const std::u16string text = Read_Box(Neutral_Box(box_prefix::Year));
    if (text.starts_with(year_words::French)) return u"FRA";
    if (text.find(u':') == text.npos) return std::u16string(Japanese);
    for (const Word& word : Words) {
        if (Piece_Of(text, u':', 0) == word.word) return std::u16string(word.code);
    }
    return u"ENG";
}

GameInfo::GameInfo() {
    for (std::size_t i = 0; i < cmbRegion.size(); ++i) {
        cmbRegion[i] = DropDownList({LanguageList.begin(), LanguageList.end()});
        cmbRegion[i].Click = [this, i] { cmbRegion_click(static_cast<std::int16_t>(i)); };
    }
}

std::u16string GameInfo::Selected_Box(Selector selector) const {
    const Field& field = Fields[selector];
    const DropDownList& list = cmbRegion[selector];
    return list.On_Last_Entry() ? std::u16string(Neutral_Box(field.prefix))
                                : Box_Name(field, list.Selected());
}

void GameInfo::cmbRegion_click(std::int16_t Index) {
    if (Index < 0 || Index >= static_cast<std::int16_t>(cmbRegion.size())) return;
    const auto selector = static_cast<Selector>(Index);
    if (cmbRegion[selector].Index() == DropDownList::NoSelection) return;
    const std::u16string text = Read_Box(Selected_Box(selector));
    switch (selector) {
        case title:
            txtName.Set(text);
            break;
        case year:
            if (!text.empty()) txtYear.Set(bare_value::Year(text));
            break;
        case players:
            txtPlayers.Set(bare_value::Players(text));
            break;
        case rating:
            txtESRB.Set(bare_value::Rating(text));
            break;
    }
}

void GameInfo::Refill() {
    for (DropDownList& list : cmbRegion) list.Select(DropDownList::NoSelection);
    for (TextBox* box : {&txtName, &txtYear, &txtPlayers, &txtESRB, &txtSystem}) box->Set(u"");
    Show_System();
    for (std::size_t i = 0; i < cmbRegion.size(); ++i) {
        DropDownList& list = cmbRegion[i];
        while ((this->*Fields[i].box).Text().empty() && !list.On_Last_Entry()) {
            list.Select(list.Index() + 1);
        }
    }
    if (cmbRegion[title].Selected() == NoLanguage) NoneRegion = Get_Year_Lang();
}

void GameInfo::Show_System() {
    txtSystem.Set(Read_Box(SystemBox));
}

void GameInfo::cmdSet_Click(std::int16_t Index) {
    switch (Index) {
        case 0:
            Set_Selected(*this, title);
            break;
        case 1:
            Set_Selected(*this, year);
            break;
        case 2:
            Set_Selected(*this, rating);
            break;
        default:
            break;
    }
}

void GameInfo::cmdSetAll_Click(std::int16_t Index) {
    switch (Index) {
        case 0:
            Set_All(*this, title);
            break;
        case 1:
            Set_All(*this, year);
            break;
        case 2:
            Set_All(*this, players);
            break;
        case 3:
            Write_Box(SystemBox, txtSystem.Text());
            break;
        case 4:
            Set_All(*this, rating);
            break;
        default:
            break;
    }
}

}  // namespace bannersmith
