#include <gtest/gtest.h>

#include "base/text.h"
#include "gameinfo/fields.h"

using namespace bannersmith;

namespace {

TEST(BareValue, IsTakenOutOfAnyText) {
    struct Row {
        const char16_t *text, *year, *players, *rating;
    };
    for (const Row& row : {Row{u"Released: 1985", u"1985", u"5", u"1985"},
                           {u"1985年発売", u"1985", u"", u""},
                           {u"Released: 85", u": 85", u"5", u"85"},
                           {u"ab", u"ab", u"", u""},
                           {u"85", u"85", u"", u""},
                           {u"0123 and more", u"0123", u"3", u""},
                           {u"9876 and more", u"9876", u"6", u""},
                           {u"a: 3 :b", u"3 :b", u"3", u"3"},
                           {u"a:", u"a:", u"", u""},
                           {u"1-4 Spieler", u"1-4 ", u"4", u""},
                           {u" 4 Spieler", u"eler", u"", u""},
                           {u"x^1～2人^y", u"2人^y", u"2", u""},
                           {u"x^1～2人", u"1～2人", u"2", u""},
                           {u"x^", u"x^", u"", u""},
                           {u"x y^1～2人", u"1～2人", u"x", u""},
                           {u"ESRB Rating:  E10+ ", u"10+ ", u"+", u"E10+"},
                           {u"a: \tb", u": \tb", u"b", u"\tb"}}) {
        EXPECT_EQ(Bare_Value(Field::year, row.text, u"ENG"), row.year) << To_Utf8(row.text);
        EXPECT_EQ(Bare_Value(Field::players, row.text, u"ENG"), row.players) << To_Utf8(row.text);
        EXPECT_EQ(Bare_Value(Field::rating, row.text, u"ENG"), row.rating) << To_Utf8(row.text);
        EXPECT_EQ(Bare_Value(Field::title, row.text, u"ENG"), row.text);
    }
}

}  // namespace
