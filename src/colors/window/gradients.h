#pragma once

#include <cstdint>

#include "forms/drawing.h"

namespace bannersmith {

/// Fills a rectangle of `target` with `steps` (none for 0 or less) horizontal bands that fade from
/// `colour1` at the top towards `colour2`. Bounds are in the target's scale; `y1` and `y2` both 0
/// stand for its whole height, `x2` 0 for its width. Band i has, per component, the start plus
/// difference x i / steps, rounded towards zero, so `colour2` itself is not reached.
void BackgroundVerticalGradient(Surface& target, Color colour1, Color colour2, std::int16_t steps,
                                float y1 = 0, float y2 = 0, float x1 = 0, float x2 = 0);

/// The same with vertical bands from left to right: `x1` and `x2` both 0 stand for the whole width,
/// `y2` 0 for the height.
void BackgroundHorizontalGradient(Surface& target, Color colour1, Color colour2, std::int16_t steps,
                                  float y1 = 0, float y2 = 0, float x1 = 0, float x2 = 0);

}  // namespace bannersmith
