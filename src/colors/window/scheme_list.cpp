#include "colors/window/scheme_list.h"

#include "colors/scheme.h"
#include "colors/window/swatches.h"

namespace bannersmith {

void Fill_Scheme_List(DropDownList& list, FileList& files, std::u16string_view program_folder) {
    list.Clear();
    static_cast<void>(files.Set_Path(Scheme_Folder(program_folder)));  // no folder: no schemes
    std::vector<std::u16string> entries = {std::u16string(CurrentBrlyt)};
    for (const std::u16string& name : files.Names()) entries.emplace_back(Without_Ending(name));
    list.Add(entries);
}

std::optional<Picture> Scheme_Picture(std::u16string_view program_folder, const DropDownList& list,
                                      int index) {
    if (index <= 0) return std::nullopt;
    const std::u16string& name = list.Entries()[static_cast<std::size_t>(index)];
    const auto scheme = Load_Scheme(Scheme_Path(program_folder, name));
    return scheme ? std::optional(Swatches_Of(*scheme)) : std::nullopt;
}

}  // namespace bannersmith
