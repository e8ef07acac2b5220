#include <gtest/gtest.h>

#include "colors/scheme.h"
#include "colors/window/gradients.h"

using namespace bannersmith;

namespace {

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
