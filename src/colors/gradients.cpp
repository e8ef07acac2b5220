#include "colors/gradients.h"

#include "colors/scheme.h"

namespace {

Color Band_Color(Color from, Color to, int band, int steps) {
    const auto part = [&](int a, int b) {
        return static_cast<std::uint8_t>(a + (b - a) * band / steps);
    };
    return Make_Color(part(Red_Of(from), Red_Of(to)), part(Green_Of(from), Green_Of(to)),
                      part(Blue_Of(from), Blue_Of(to)));
}

}  // namespace

void BackgroundVerticalGradient(Surface& target, Color colour1, Color colour2, std::int16_t steps,
                                float y1, float y2, float x1, float x2) {
    const bool whole = y1 == 0 && y2 == 0;
    const float height = (whole ? target.Height() : y2 - y1) / static_cast<float>(steps);
    float y = whole ? 0 : y1;
    if (x2 == 0) x2 = target.Width();
    for (int i = 0; i < steps; ++i) {
        target.Fill({x1, y, x2, y + height, Band_Color(colour1, colour2, i, steps)});
        y += height;
    }
}

void BackgroundHorizontalGradient(Surface& target, Color colour1, Color colour2, std::int16_t steps,
                                  float y1, float y2, float x1, float x2) {
    const bool whole = x1 == 0 && x2 == 0;
    const float width = (whole ? target.Width() : x2 - x1) / static_cast<float>(steps);
    float x = whole ? 0 : x1;
    if (y2 == 0) y2 = target.Height();
    for (int i = 0; i < steps; ++i) {
        target.Fill({x, y1, x + width, y2, Band_Color(colour1, colour2, i, steps)});
        x += width;
    }
}
