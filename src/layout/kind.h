// What a file is by its first bytes.
#pragma once

#include <string_view>

namespace bannersmith {

/// Whether `data` begins as a layout file does: with a whole header (16 bytes), "RLYT" first.
bool Is_Layout(std::string_view data);

/// Whether `data` begins as a program of the system does, which an edit would destroy.
bool Is_Program(std::string_view data);

}  // namespace bannersmith
