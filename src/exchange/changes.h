#pragma once

#include <string>
#include <vector>

#include "banner/banner.h"

namespace bannersmith {

/// Something that a save changes, as people see it.
struct Change {
    std::string kind;   ///< "text", "color", "name", "subtitle", "texture", "renamed", "size"
    std::string where;  ///< the box, the material, the language's line, the texture's path
    std::u16string before, after;
};

/// What `plan` changes of the banner as it was loaded: texts box by box, colours of materials,
/// lines of channel names, textures, names of boxes and materials, and the layout's size with its
/// padding.
std::vector<Change> Changes_Of(const Banner& banner, const SavePlan& plan);

}  // namespace bannersmith
