#include "colors/window/gradients.h"

#include "colors/scheme.h"

namespace bannersmith {

namespace {

Color Band_Color(Color from, Color to, int band, int steps) {
    const auto part = [&](int a, int b) {
        return static_cast<std::uint8_t>(a + (b - a) * band / steps);
    };
    return Make_Color(part(Red_Of(from), Red_Of(to)), part(Green_Of(from), Green_Of(to)),
                      part(Blue_Of(from), Blue_Of(to)));
}

/// Calls `fill` with the two edges and the colour of each band, from the bound `from` to `to`, or
/// over the surface's whole `extent` when both are 0.
template <typename Fill>
void Paint_Bands(float from, float to, float extent, Color colour1, Color colour2,
                 std::int16_t steps, Fill fill) {
    const bool whole = from == 0 && to == 0;
    const float thickness = (whole ? extent : to - from) / static_cast<float>(steps);
    float edge = whole ? 0 : from;
    for (int band = 0; band < steps; ++band) {
        fill(edge, edge + thickness, Band_Color(colour1, colour2, band, steps));
        edge += thickness;
    }
}

}  // namespace

void BackgroundVerticalGradient(Surface& target, Color colour1, Color colour2, std::int16_t steps,
                                float y1, float y2, float x1, float x2) {
    if (x2 == 0) x2 = target.Width();
    Paint_Bands(y1, y2, target.Height(), colour1, colour2, steps,
                [&](float top, float bottom, Color color) {
                    target.Fill({x1, top, x2, bottom, color});
                });
}

void BackgroundHorizontalGradient(Surface& target, Color colour1, Color colour2, std::int16_t steps,
                                  float y1, float y2, float x1, float x2) {
    if (y2 == 0) y2 = target.Height();
    Paint_Bands(x1, x2, target.Width(), colour1, colour2, steps,
                [&](float left, float right, Color color) {
                    target.Fill({left, y1, right, y2, color});
                });
}

}  // namespace bannersmith
