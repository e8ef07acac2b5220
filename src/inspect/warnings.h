#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "layout/sections.h"

namespace bannersmith {

/// Something about a layout that an edit would not rewrite cleanly.
struct Warning {
    std::string text;                     ///< a line of UTF-8 that can be shown
    std::optional<std::size_t> box = {};  ///< the text box that it is about, by its index
};

/// What is to be known before the layout `data` is edited, `info` being what it holds: first of the
/// file as a whole, then of colours, then of text boxes in file order. Empty for a layout that is
/// safe to edit. What a damaged file has thousands of is told a thousand times.
std::vector<Warning> Find_Warnings(std::string_view data, const LayoutInfo& info);

/// Those of them that concern an edit that writes colours, and those of one that writes texts.
std::vector<Warning> Find_Color_Warnings(std::string_view data, const LayoutInfo& info);
std::vector<Warning> Find_Text_Warnings(std::string_view data, const LayoutInfo& info);

/// The first warning of what an edit has touched, as the saved layout has it: "bannersmith-inspect
/// warns of what was written: ...". Empty for none. Both begin as layouts; `colored`, whether the
/// edit wrote colours.
std::string Warning_Of_Edit(std::string_view loaded, std::string_view saved, bool colored);

}  // namespace bannersmith
