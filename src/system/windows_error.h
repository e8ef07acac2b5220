#pragma once

#include <string>

namespace bannersmith {

/// The system's text for an error code of Windows, as UTF-8 without a full stop and a line end.
std::string Error_Text(unsigned long code);

}  // namespace bannersmith
