#include <gtest/gtest.h>

#include "colors/scheme.h"
#include "colors/window/gradients.h"

using namespace bannersmith;

namespace {

TEST(Scheme, IsReadWholeOrRefused) {
    struct Row {
        int count;  ///< of nines in front of the rest
        std::string between, rest, reason;
    };
    for (const Row& row :
         {Row{114, " ", "", ""},
          {114, ",", "", ""},
          {114, " , ", "", ""},
          {114, "\r", "", ""},
          {114, ",\r\n", "", ""},
          {114, " ", " and more", ""},
          {113, " ", "255", ""},
          {113, " ", "", "ends after 113 of 114 numbers"},
          {113, " ", " \r\n,", "ends after 113 of 114 numbers"},
          {113, " ", "256", "BackMask2: 256 is not between 0 and 255"},
          {113, " ", "-1", "BackMask2: -1 is not between 0 and 255"},
          {113, " ", "1.5", "BackMask2: \"1.5\" is not a whole number"},
          {113, " ", "9x", "BackMask2: \"9x\" is not a whole number"},
          {113, " ", "99999999999999999999", "BackMask2: 99999999999999999999 is not between 0 and 255"},
          {0, "", " \r\n", "ends after 0 of 114 numbers"},
          {0, "", "5,,", "PFLINE: \"\" is not a whole number"},
          {2, "\t", "", "PFLINE: \"9\t9\t\" is not a whole number"},
          {13, " ", "256", "Shade: 256 is not between 0 and 255"},
          {2, " ", "+7 +-0", "PFLINE: \"+-0\" is not a whole number"}}) {
        std::string text;
        for (int i = 0; i < row.count; ++i) text += "9" + row.between;
        const auto scheme = Parse_Scheme(text + row.rest);
        EXPECT_EQ(scheme ? "" : scheme.Why().reason, row.reason) << text + row.rest;
        if (scheme) { EXPECT_EQ((*scheme)[18][0], Make_Color(9, 9, 9)); }
    }
    EXPECT_TRUE(Format_Scheme(Scheme{{{Make_Color(1, 20, 255), 0}}}).starts_with(" 1  20  255  0  0  0 \r\n 0  0 "));
}

TEST(Gradients, FadeBandByBand) {
    Surface surface(1000, 500);
    BackgroundVerticalGradient(surface, Make_Color(0, 0, 0), Make_Color(255, 255, 255), 256);
    const auto& bands = surface.Painted();
    ASSERT_EQ(bands.size(), 256U);
    EXPECT_EQ(bands[0].color + bands[1].color, 0U);
    EXPECT_EQ(bands[255].color, Make_Color(254, 254, 254));
    EXPECT_EQ(bands[0].x2, 1000);
    EXPECT_FLOAT_EQ(bands[0].y2, 500 / 256.F);
    EXPECT_NEAR(bands[255].y2, 500, 0.1);

    surface.Clear();
    BackgroundHorizontalGradient(surface, Make_Color(200, 10, 0), Make_Color(0, 10, 100), 4, 20, 0, 100, 300);
    ASSERT_EQ(surface.Painted().size(), 4U);
    const FilledRectangle& second = surface.Painted()[1];
    EXPECT_EQ(second.color, Make_Color(150, 10, 25));
    EXPECT_EQ(std::vector<float>({second.x1, second.y1, second.x2, second.y2}),
              std::vector<float>({150, 20, 200, 500}));
    surface.Clear();
    BackgroundHorizontalGradient(surface, Make_Color(200, 0, 0), 0, 256);
    EXPECT_EQ(surface.Painted()[1].color, Make_Color(200, 0, 0)) << "rounded towards zero";
}

}  // namespace
