#pragma once

#include <string>

#include "banner/edit.h"

namespace bannersmith {

/// How the windows call an edit where they offer to take it back: "Name (ENG)".
std::u16string Name_Of(const Edit& edit);

/// How they call a field.
std::u16string Name_Of(Field field);

}  // namespace bannersmith
