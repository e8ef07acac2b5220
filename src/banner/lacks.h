#pragma once

#include <string>

#include "banner/banner.h"

namespace bannersmith {

/// What an edit looks for in the banner, as it is now, and does not find, so that it changes
/// nothing whatever its value: "no text box T_VCTitle_*". Empty where there is something to change,
/// even if that holds the value already. Throws where memory lacks.
std::string Lacks(const Banner& banner, const Edit& edit);

}  // namespace bannersmith
