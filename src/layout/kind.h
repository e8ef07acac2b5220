// What a file is by its first bytes.
#pragma once

#include <string_view>

namespace bannersmith {

/// Whether `data` begins as a layout file does: with a whole header (16 bytes), "RLYT" first.
bool Is_Layout(std::string_view data);

/// Why a file that begins as `data` must not be edited as if it were a layout, which would destroy
/// it: it is an archive that holds layouts, or a program of the system. Empty for everything else.
std::string_view Not_To_Be_Edited(std::string_view data);

}  // namespace bannersmith
