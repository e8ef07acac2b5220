#pragma once

#include <string>

namespace bannersmith {

/// The loaded layout: the file's bytes in file order, one element a byte, without the padding
/// behind its closing section. Empty while nothing is loaded. The one copy there is: routines that
/// change a layout take it as an argument and return the new one, and their callers store the
/// result here.
inline std::string BrlytData;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

}  // namespace bannersmith
