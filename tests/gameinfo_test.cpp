#include <gtest/gtest.h>

#include "gameinfo/boxes.h"
#include "gameinfo/composing.h"
#include "gameinfo/game_info.h"
#include "gameinfo/languages.h"
#include "layout/mod_globals.h"
#include "platform/text.h"
#include "support.h"

namespace {

using Texts = std::vector<std::u16string>;

TEST(Composing, WordsEachLanguage) {
    struct Case {
        const char16_t *code, *year, *players, *rating;
    };
    const Case cases[] = {
        {u"ENG", u"Released: 1985", u"Players: 1-2", u"ESRB Rating: E"},
        {u"GER", u"Erschienen: 1985", u"1-2 Spieler", u"ESRB Rating: E"},
        {u"FRA", u"Publi\u00E9 en 1985", u"Joueurs: 1-2", u"Classement ESRB: E"},
        {u"ITA", u"Pubblicato: 1985", u"Giocatori: 1-2", u"ESRB Rating: E"},
        {u"SPA", u"A\u00F1o: 1985", u"Jugadores: 1-2", u"ESRB Rating: E"},
        {u"NED", u"Release: 1985", u"1-2 speler(s)", u"ESRB Rating: E"},
        {u"JPN", u"1985\u5E74\u767A\u58F2", u"\u30D7\u30EC\u30A4\u4EBA\u6570\n1\uFF5E2\u4EBA", u"ESRB Rating: E"},
        {u"NONE", u"Released: 1985", u"Players: 1-2", u"ESRB Rating: E"},
        {u"ger", u"Released: 1985", u"Players: 1-2", u"ESRB Rating: E"},
        {u"", u"Released: 1985", u"Players: 1-2", u"ESRB Rating: E"},
    };
    for (const Case& c : cases) {
        std::u16string year = u"1985", players = u"2", rating = u"E";
        EXPECT_EQ(Make_Year(year, c.code), c.year);
        EXPECT_EQ(Make_Players(players, c.code), c.players);
        EXPECT_EQ(Make_ESRB(rating, c.code), c.rating);
        EXPECT_EQ(year + players + rating, std::u16string(c.year) + c.players + c.rating);
    }
}

TEST(Composing, NormalisesTheValue) {
    std::u16string year, rating;
    EXPECT_EQ(Make_Year(year, u"JPN"), u"????\u5E74\u767A\u58F2");
    EXPECT_EQ(Make_ESRB(rating, u"FRA"), u"Classement ESRB: ????");
    struct Case {
        const char16_t *value, *english, *japanese;
    };
    const Case cases[] = {{u"", u"1-2", u"1\uFF5E2"},
                          {u"1", u"1", u"1"},
                          {u"12", u"1-12", u"1\uFF5E12"},
                          {u" 1", u"1- 1", u"1\uFF5E 1"},
                          {u"1-2", u"1-1-2", u"1\uFF5E1\uFF5E2"}};
    for (const Case& c : cases) {
        std::u16string value = c.value;
        EXPECT_EQ(Make_Players(value, u"ENG"), u"Players: " + std::u16string(c.english));
        value = c.value;
        EXPECT_EQ(Make_Players(value, u"JPN"),
                  u"\u30D7\u30EC\u30A4\u4EBA\u6570\n" + std::u16string(c.japanese) + u"\u4EBA");
    }
}

TEST(BareValue, IsReadBack) {
    struct Case {
        std::u16string (*read)(std::u16string_view);
        const char16_t *text, *value;
    };
    const Case cases[] = {
        {bare_value::Year, u"Released: 1985", u"1985"},
        {bare_value::Year, u"1985\u5E74\u767A\u58F2", u"1985"},
        {bare_value::Year, u"Released: 85", u": 85"},
        {bare_value::Year, u"ab", u"ab"},
        {bare_value::Year, u"85", u"85"},
        {bare_value::Players, u"Players: 1-2", u"2"},
        {bare_value::Players, u"Players: 1-12", u"2"},
        {bare_value::Players, u"a: 3 :b", u"3"},
        {bare_value::Players, u"a:", u""},
        {bare_value::Players, u"1-4 Spieler", u"4"},
        {bare_value::Players, u" 4 Spieler", u""},
        {bare_value::Players, u"x^1\uFF5E2\u4EBA^y", u"2"},
        {bare_value::Players, u"x^1\uFF5E2\u4EBA", u"2"},
        {bare_value::Players, u"x^", u""},
        {bare_value::Players, u"x^y", u""},
        {bare_value::Players, u"x y^1\uFF5E2\u4EBA", u"x"},
        {bare_value::Players, u"a b: 2", u"2"},
        {bare_value::Year, u"0123 and more", u"0123"},
        {bare_value::Year, u"9876 and more", u"9876"},
        {bare_value::Players, u"12", u""},
        {bare_value::Players, u"", u""},
        {bare_value::Rating, u"ESRB Rating:  E10+ ", u"E10+"},
        {bare_value::Rating, u"a: b :c", u"b"},
        {bare_value::Rating, u"E", u""},
        {bare_value::Rating, u"a: \tb", u"\tb"},
    };
    for (const Case& c : cases) EXPECT_EQ(c.read(c.text), c.value) << To_Utf8(c.text);
}

/// The fields after a load of the given boxes.
struct Loaded : GameInfo {
    explicit Loaded(const std::vector<std::string>& boxes) {
        BrlytData = Layout_With(boxes);
        NoneRegion.clear();
        Refill();
    }
    Texts Fields() const {
        return {txtName.Text(), txtYear.Text(), txtPlayers.Text(), txtESRB.Text(), txtSystem.Text()};
    }
    Texts Selections() const {
        Texts texts;
        for (const DropDownList& list : cmbRegion) texts.push_back(list.Selected());
        return texts;
    }
};

TEST(Refill, StopsEachSelectorOnTheFirstValue) {
    const Loaded info({Box("T_PF", u"SYS"), Box("T_VCTitle_JPN", u"J"), Box("T_VCTitle_GER", u"G"),
                       Box("T_Year_ITA", u"Pubblicato: 1990"), Box("T_Play_ENG", u"no value"),
                       Box("T_Play_FRA", u"Joueurs: 1-3"), Box("T_ESRB_NED", u"ESRB Rating: T"),
                       Box("T_Year", u"Released: 1")});
    EXPECT_EQ(info.Fields(), (Texts{u"G", u"1990", u"o", u"T", u"SYS"}));
    EXPECT_EQ(info.Selections(), (Texts{u"GER", u"ITA", u"ENG", u"NED"}));
    EXPECT_EQ(NoneRegion, u"");
}

TEST(Refill, ForgetsTheLayoutBefore) {
    Loaded info({Box("T_VCTitle_ENG", u"Old"), Box("T_Year_ENG", u"Released: 1990"), Box("T_PF", u"S")});
    BrlytData = Layout_With({});
    info.Refill();
    EXPECT_EQ(info.Fields(), (Texts{u"", u"", u"", u"", u""}));
    EXPECT_EQ(info.Selections(), (Texts{u"NONE", u"NONE", u"NONE", u"NONE"}));
    BrlytData = Layout_With({Box("T_VCTitle_ENG", u"New"), Box("T_Play_ENG", u"Players: 1-4")});
    info.Refill();
    EXPECT_EQ(info.Fields(), (Texts{u"New", u"", u"4", u"", u""}));
    NoneRegion.clear();
    BrlytData = Layout_With({Box("T_VCTitle_ENG", u"X")});
    info.Refill();
    EXPECT_EQ(info.Fields(), (Texts{u"X", u"", u"", u"", u""}));
    EXPECT_EQ(NoneRegion, u"") << "only the name's selector counts";
}

TEST(Refill, TellsTheNeutralWording) {
    struct Case {
        const char16_t *year, *language;
    };
    const Case cases[] = {{u"1985\u5E74\u767A\u58F2", u"JPN"},
                          {u"", u"JPN"},
                          {u"Released: 1", u"ENG"},
                          {u"Erschienen: 1", u"GER"},
                          {u"Publi\u00E9 en 1985", u"FRA"},
                          {u"Pubblicato: 1", u"ITA"},
                          {u"A\u00F1o: 1", u"SPA"},
                          {u"Release: 1", u"NED"},
                          {u"released: 1", u"ENG"},
                          {u"Erschienen : 1", u"ENG"}};
    for (const Case& c : cases) {
        const Loaded info({Box("T_VCTitle", u"N"), Box("T_Year", c.year)});
        EXPECT_EQ(NoneRegion, c.language) << To_Utf8(c.year);
        EXPECT_EQ(info.txtName.Text(), u"N");
    }
}

TEST(Selectors, ShowTheirLanguage) {
    Loaded info({Box("T_VCTitle_ENG", u"E"), Box("T_Year_ENG", u"Released: 1990"), Box("T_Play_ENG", u"Players: 1"),
                 Box("T_ESRB_ENG", u"ESRB Rating: E"), Box("T_ESRB_SPA", u"ESRB Rating: M"),
                 Box("T_VCTitle", u"neutral")});
    for (DropDownList& list : info.cmbRegion) list.Pick(4);
    EXPECT_EQ(info.Fields(), (Texts{u"", u"1990", u"", u"M", u""})) << "only the year stays";
    info.cmbRegion[3].Pick(5);
    EXPECT_EQ(info.txtESRB.Text(), u"");
    info.cmbRegion[0].Pick(7);
    EXPECT_EQ(info.txtName.Text(), u"neutral");
    info.txtName.Set(u"typed");
    info.cmbRegion_click(4);
    info.cmbRegion_click(-1);
    EXPECT_EQ(info.txtName.Text(), u"typed");
    info.cmbRegion[0].Pick(7);
    EXPECT_EQ(info.txtName.Text(), u"neutral") << "picking the selected entry shows it again";
    info.cmbRegion[0].Select(DropDownList::NoSelection);
    EXPECT_EQ(info.txtName.Text(), u"neutral");
}

TEST(Set, WritesTheSelectedLanguage) {
    Loaded info({Box("T_VCTitle_ENG", u"E"), Box("T_VCTitle_GER", u"G"), Box("T_Year_GER", u"Erschienen: 1"),
                 Box("T_ESRB_FRA", u"Classement ESRB: E"), Box("T_Year", u"?")});
    info.cmbRegion[0].Select(1);
    info.txtName.Set(u"Neu");
    info.txtYear.Set(u"2001");
    info.txtESRB.Set(u"T");
    for (const int index : {0, 1, 2, 3, -1}) info.cmdSet_Click(static_cast<std::int16_t>(index));
    EXPECT_EQ(Read_Box(u"T_VCTitle_ENG"), u"E");
    EXPECT_EQ(Read_Box(u"T_VCTitle_GER"), u"Neu");
    EXPECT_EQ(Read_Box(u"T_Year_GER"), u"Erschienen: 2001");
    EXPECT_EQ(Read_Box(u"T_ESRB_FRA"), u"Classement ESRB: T");
    info.cmbRegion[1].Select(7);
    info.txtYear.Set(u"2002");
    info.cmdSet_Click(1);
    EXPECT_EQ(Read_Box(u"T_Year"), u"Released: 2002") << "no neutral wording is known";
    info.txtName.Set(u"");
    info.cmdSet_Click(0);
    EXPECT_EQ(Read_Box(u"T_VCTitle_GER"), u"Neu");
}

TEST(SetAll, WritesEveryLanguageAndTheNeutralBox) {
    std::vector<std::string> boxes = {Box("T_PF", u"S")};
    for (const char* prefix : {"T_VCTitle", "T_Year", "T_Play", "T_ESRB"}) {
        boxes.push_back(Box(prefix, u"neutral"));
        boxes.push_back(Box(std::string(prefix) + "_GER", u"old"));
        boxes.push_back(Box(std::string(prefix) + "_JPN", u"old!"));
    }
    Loaded info(boxes);
    info.txtName.Set(u"Name");
    info.txtYear.Set(u"2001");
    info.txtPlayers.Set(u"4");
    info.txtESRB.Set(u"T");
    info.txtSystem.Set(u"New");
    for (const int index : {0, 1, 2, 3, 4, 5, -1}) info.cmdSetAll_Click(static_cast<std::int16_t>(index));
    const std::string once = BrlytData;
    info.txtSystem.Set(u"not set");
    for (const int index : {0, 1, 2, 4}) info.cmdSetAll_Click(static_cast<std::int16_t>(index));
    EXPECT_EQ(BrlytData, once);
    info.txtSystem.Set(u"New");
    for (const int index : {0, 1, 2, 3, 4}) info.cmdSetAll_Click(static_cast<std::int16_t>(index));
    EXPECT_EQ(BrlytData, once);
    EXPECT_EQ(Read_Box(u"T_VCTitle"), u"Name");
    EXPECT_EQ(Read_Box(u"T_Year"), u"Released: 2001");
    EXPECT_EQ(Read_Box(u"T_Year_JPN"), u"2001\u5E74\u767A\u58F2");
    EXPECT_EQ(Read_Box(u"T_Play_GER"), u"1-4 Spieler");
    EXPECT_EQ(Read_Box(u"T_ESRB_JPN"), u"ESRB Rating: T");
    EXPECT_EQ(Read_Box(u"T_PF"), u"New");
}

TEST(SetAll, EndsWithTheNeutralWording) {
    Loaded info(
        {Box("T_VCTitle", u"N"), Box("T_Year", u"1985\u5E74\u767A\u58F2"), Box("T_Play", u"p"), Box("T_ESRB", u"r")});
    ASSERT_EQ(NoneRegion, u"JPN");
    info.txtYear.Set(u"1998");
    info.cmdSet_Click(1);
    EXPECT_EQ(Read_Box(u"T_Year"), u"1998\u5E74\u767A\u58F2");
    info.txtYear.Set(u"1999");
    info.txtPlayers.Set(u"3");
    info.txtName.Set(u"Name");
    for (const int index : {0, 1, 2}) info.cmdSetAll_Click(static_cast<std::int16_t>(index));
    EXPECT_EQ(Read_Box(u"T_VCTitle"), u"Name");
    EXPECT_EQ(Read_Box(u"T_Year"), u"1999\u5E74\u767A\u58F2");
    EXPECT_EQ(Read_Box(u"T_Play"), u"\u30D7\u30EC\u30A4\u4EBA\u6570^1\uFF5E3\u4EBA");

    // The last write uses the plain name, so it lands in the last box that begins with it, too.
    Loaded mixed({Box("T_VCTitle", u"N"), Box("T_Year", u"Erschienen: 1"), Box("T_Year_X", u"x")});
    mixed.txtYear.Set(u"2000");
    mixed.cmdSetAll_Click(1);
    EXPECT_EQ(Read_Box(u"T_Year"), u"Released: 2000");
    EXPECT_EQ(Read_Box(u"T_Year_X"), u"Erschienen: 2000");
}

}  // namespace
