#pragma once

#include <vector>

#include "banner/banner.h"
#include "inspect/warnings.h"
#include "layout/sections.h"
#include "still/font.h"

namespace bannersmith {

/// Why the console's menu would not show a banner at all: a layout of a version that it refuses,
/// parts of the channel above its limits. Nothing for what is no layout.
std::vector<Warning> Find_Menu_Warnings(const Banner& banner);

/// The same, and what it would not show as it is meant: textures that are named and missing where
/// others are there, and texts that may not fit their boxes, by the width of their letters in
/// `font`, if it is not null. `banner` is loaded; `info` is what its layout holds.
std::vector<Warning> Find_Drawing_Warnings(const Banner& banner, const LayoutInfo& info,
                                           still::Font* font);

}  // namespace bannersmith
