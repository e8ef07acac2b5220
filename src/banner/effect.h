// What an edit would do to a banner, told without doing it.
#pragma once

#include <string>

#include "banner/banner.h"

namespace bannersmith {

/// What an edit looks for in the banner, as it is now, and does not find, so that it changes
/// nothing whatever its value: "no text box T_VCTitle_*". Empty where there is something to change,
/// even if that holds the value already. Throws where memory lacks.
std::string Lacks(const Banner& banner, const Edit& edit);

/// Whether the texts, colours or names that an edit would write stand there already, all of them.
/// Applied all the same it might still make lengths right. Always false for other kinds of edits.
/// Throws where memory lacks.
bool Holds_Already(const Banner& banner, const Edit& edit);

}  // namespace bannersmith
