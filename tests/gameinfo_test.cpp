#include <gtest/gtest.h>

#include "gameinfo/composing.h"

using namespace bannersmith;

namespace {

TEST(Composing, PutsTheWordingIntoTheValue) {
    for (const auto& [code, wording] :
         {std::pair{u"GER", u"Erschienen: 1985"}, {u"ger", u"Released: 1985"}, {u"", u"Released: 1985"}}) {
        std::u16string year = u"1985";
        EXPECT_EQ(Make_Year(year, code), wording);
        EXPECT_EQ(year, wording);
    }
    std::u16string players = u"2", rating = u"E";
    EXPECT_EQ(Make_Players(players, u"fra"), u"Players: 1-2");
    EXPECT_EQ(Make_ESRB(rating, u"FRA"), u"Classement ESRB: E");
    EXPECT_EQ(players + rating, u"Players: 1-2Classement ESRB: E");
}

}  // namespace
