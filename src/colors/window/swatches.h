#pragma once

#include "colors/scheme.h"
#include "texture/picture.h"

namespace bannersmith {

/// A small picture by which a scheme can be told: its bar, ground, pattern, lines, title and floor
/// side by side, RGBA.
Picture Swatches_Of(const Scheme& scheme);

}  // namespace bannersmith
