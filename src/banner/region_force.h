#pragma once

#include <string>
#include <string_view>

namespace bannersmith {

/// Renames the items of the first of the seven languages that has a title so that they carry the
/// code `region`: behind "T_YEAR_", "T_PLAY_", "T_ESRB_" and "L", wherever in the data they stand,
/// the code is replaced. `tFile` is changed in place, with its length kept, and returned. It stays
/// as it is for "NONE", an empty code, a language that has a title itself, and a layout in which
/// none has one.
std::string& Region_Force(std::string& tFile, std::string_view region);

}  // namespace bannersmith
