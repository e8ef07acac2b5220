#pragma once

#include <optional>
#include <string_view>

#include "forms/controls.h"

namespace bannersmith {

/// Empties `list` and fills it with "Current Brlyt" and the names of the scheme files that `files`,
/// set to the schemes folder, enumerates. Nothing is selected.
void Fill_Scheme_List(DropDownList& list, FileList& files, std::u16string_view program_folder);

/// The picture by which the scheme of an entry can be told; none for the first entry, and for a
/// file that is no scheme.
std::optional<Picture> Scheme_Picture(std::u16string_view program_folder, const DropDownList& list,
                                      int index);

}  // namespace bannersmith
