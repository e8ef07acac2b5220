// What is told of a save that does what was asked, where the console shows less than one might
// think.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "system/replace_files.h"

namespace bannersmith {

/// What forcing `region` upon the layout loses: a group of the language that gives its items, which
/// is told by a name that the force does not change, and animations that go on naming a box that is
/// renamed. "region force leaves the group ENG, and banner_Start.brlan names T_ESRB_ENG". Empty
/// where nothing is lost. `animations`: paths and bytes.
std::string Lost_By_Force(std::string_view layout, std::string_view region,
                          std::span<const NewContents> animations);

/// The text materials that no scheme colours, as they serve all languages or Korean alone: "the
/// scheme leaves the colors of T_Year, T_Play". Empty where the layout has none.
std::string Left_By_Scheme(std::string_view layout);

/// One entry for each box that a group of another language shows, too, and whose text differs
/// between the two layouts: "the ESRB text of ENG is shown for SPA, too".
std::vector<std::string> Shared_Texts(std::string_view before, std::string_view after);

}  // namespace bannersmith
