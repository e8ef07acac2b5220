#pragma once

#include <array>
#include <string>
#include <string_view>

namespace bannersmith {

/// Renames the items of the first of the seven languages that has a title so that they carry the
/// code `region`: behind "T_YEAR_", "T_PLAY_", "T_ESRB_" and "L", wherever in the data they stand,
/// the code is replaced. `tFile` is changed in place, with its length kept, and returned. It stays
/// as it is for "NONE", an empty code, a language that has a title itself, and a layout in which
/// none has one.
std::string& Region_Force(std::string& tFile, std::string_view region);

/// The beginnings of the names that it changes, the language's code behind them.
inline constexpr std::array<std::string_view, 4> ForcedStems = {"T_YEAR_", "T_PLAY_", "T_ESRB_",
                                                                "L"};

/// The language whose items `Region_Force` would make those of `region`; empty where it would do
/// nothing.
std::string Forced_From(std::string_view layout, std::string_view region);

}  // namespace bannersmith
