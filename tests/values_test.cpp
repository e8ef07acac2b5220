// What texts say: values, schemes, paddings, encodings; and the controls and fades, which hold and draw them.
#include <gtest/gtest.h>

#include "base/text.h"
#include "colors/scheme.h"
#include "colors/window/gradients.h"
#include "forms/controls.h"
#include "gameinfo/fields.h"
#include "layout/file_length.h"

using namespace bannersmith;

namespace {

TEST(Text, SurvivesTheWayThroughUtf8) {
    for (const std::string bytes : {"", "plain", "\xE5\xB9\xB4\xF4\x8F\xBF\xBF", "bad \xFF\xC3 bytes", "\xC3"}) {
        EXPECT_EQ(To_Utf8(From_Utf8(bytes)), bytes);
    }
    EXPECT_EQ(From_Utf8("\xF0\x9F\x98\x80"), u"\xD83D\xDE00");
    EXPECT_EQ(To_Utf8(u"a\xD800z"), "a\xEF\xBF\xBDz");
    EXPECT_EQ(To_Bytes(From_Bytes("\xFF\x41")), "\xFF\x41");
    EXPECT_EQ(To_Bytes(u"\u0100"), std::nullopt);
    EXPECT_TRUE(Trim(u"  \ta b  ") == u"\ta b" && Trim(u"  ").empty() && Trim(u"").empty());
    EXPECT_EQ(Capitals(u"`aZz{\u00E9_9"), u"`AZZ{\u00E9_9");
    EXPECT_EQ(Replace_All(u"aaa", u"aa", u"b"), u"ba");
}

TEST(Padding, IsAWholeNumberUpToItsLimit) {
    EXPECT_EQ(Read_Padding(u"268435456")->count, 268435456U);
    EXPECT_EQ(Read_Padding(u"+99999999999999999999").Why().subject, u"Padding \"+99999999999999999999\"");
}

TEST(BareValue, IsTakenOutOfAnyText) {
    const std::array<const char16_t*, 4> rows[] = {
        {u"Released: 1985", u"1985", u"5", u"1985"}, {u"ab", u"ab", u"", u""},
        {u"0123 and more", u"0123", u"3", u""},      {u"9876 and more", u"9876", u"6", u""},
        {u"a: 3 :b", u"3 :b", u"3", u"3"},           {u" 4 Spieler", u"eler", u"", u""},
        {u"x^1～2人^y", u"2人^y", u"2", u""},        {u"x^", u"x^", u"", u""},
        {u"x y^1～2人", u"1～2人", u"x", u""},       {u"a:  \tE10+ ", u"10+ ", u"+", u"\tE10+"}};
    for (const auto& [text, year, players, rating] : rows) {
        const auto bare = [&](Field field) { return Bare_Value(field, text, u"ENG"); };
        EXPECT_TRUE(bare(Field::year) == year && bare(Field::players) == players) << To_Utf8(text);
        EXPECT_TRUE(bare(Field::rating) == rating && bare(Field::title) == text) << To_Utf8(text);
    }
}

TEST(Scheme, IsReadWholeOrRefused) {
    // So many nines, what stands between them, what stands behind them, and the reason to refuse it all.
    const std::tuple<int, std::string, std::string, std::string> rows[] = {
        {114, " ,\r\n", " and more", ""},
        {113, "\r", "255", ""},
        {113, " ", " \r\n,", "ends after 113 of 114 numbers"},
        {113, " ", "256", "BackMask2: 256 is not between 0 and 255"},
        {113, " ", "-1", "BackMask2: -1 is not between 0 and 255"},
        {113, " ", "99999999999999999999", "BackMask2: 99999999999999999999 is not between 0 and 255"},
        {0, "", "5,,", "PFLINE: \"\" is not a whole number"},
        {13, " ", "1.5", "Shade: \"1.5\" is not a whole number"},
        {2, " ", "+7 +-0", "PFLINE: \"+-0\" is not a whole number"}};
    for (const auto& [count, between, rest, reason] : rows) {
        std::string text;
        for (int i = 0; i < count; ++i) text += "9" + between;
        const auto scheme = Parse_Scheme(text + rest);
        EXPECT_EQ(scheme ? "" : scheme.Why().reason, reason) << text + rest;
        if (scheme) { EXPECT_EQ((*scheme)[18][0], Make_Color(9, 9, 9)); }
    }
    EXPECT_TRUE(Format_Scheme(Scheme{{{Make_Color(1, 20, 255), 0}}}).starts_with(" 1  20  255  0  0  0 \r\n 0  0 "));
}

TEST(Gradients, FadeBandByBand) {
    Surface surface(1000, 500);
    BackgroundVerticalGradient(surface, Make_Color(0, 0, 0), Make_Color(255, 255, 255), 256);
    ASSERT_EQ(surface.Painted().size(), 256U);
    const FilledRectangle first = surface.Painted()[0], last = surface.Painted()[255];
    EXPECT_TRUE(first.color == 0 && first.x2 == 1000 && last.color == Make_Color(254, 254, 254));
    EXPECT_TRUE(first.y1 == 0 && std::abs(first.y2 - 500 / 256.F) < 1e-6 && std::abs(last.y2 - 500) < 0.1);
    surface.Clear();
    BackgroundHorizontalGradient(surface, Make_Color(201, 10, 0), Make_Color(0, 11, 99), 4, 20, 0, 100, 300);
    ASSERT_EQ(surface.Painted().size(), 4U);
    const FilledRectangle& second = surface.Painted()[1];
    EXPECT_EQ(second.color, Make_Color(151, 10, 24)) << "rounded towards the first";
    EXPECT_EQ((std::array{second.x1, second.y1, second.x2, second.y2}), (std::array{150.F, 20.F, 200.F, 500.F}));
}

TEST(Controls, RaiseTheirEventsInTheCall) {
    std::string events;
    TextBox box;
    DropDownList list({u"x", u"y"});
    box.Change = [&] { events += "change "; };
    list.Click = [&] { events += std::to_string(list.Index()) + " "; };
    for (const char16_t* text : {u"a", u"a", u""}) box.Set(text);
    for (const int index : {1, 1, 7, 0}) list.Select(index);
    list.Pick(0);  // which counts even when nothing changes
    list.Clear();  // which raises nothing
    EXPECT_EQ(events, "change change 1 -1 0 0 ");
    EXPECT_EQ(list.Selected(), u"");
}

}  // namespace
