#pragma once

#include <string_view>

#include "forms/controls.h"

namespace bannersmith {

/// Empties `list` and fills it with "Current Brlyt" and the names of the scheme files that `files`,
/// set to the schemes folder, enumerates. Nothing is selected.
void Fill_Scheme_List(DropDownList& list, FileList& files, std::u16string_view program_folder);

}  // namespace bannersmith
