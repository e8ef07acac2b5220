#pragma once

#include <vector>

#include "banner/banner.h"
#include "inspect/warnings.h"
#include "layout/sections.h"
#include "still/font.h"

namespace bannersmith {

/// What the console's menu would not show as it is meant: a layout of a version that it refuses,
/// parts of the channel above its limits, textures that are named and missing where others are
/// there, and texts that may not fit their boxes, by the width of their letters in `font`, if it is
/// not null. `banner` is loaded; `info` is what its layout holds.
std::vector<Warning> Find_Drawing_Warnings(const Banner& banner, const LayoutInfo& info,
                                           still::Font* font);

}  // namespace bannersmith
