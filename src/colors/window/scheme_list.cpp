#include "colors/window/scheme_list.h"

#include "colors/scheme.h"

namespace bannersmith {

void Fill_Scheme_List(DropDownList& list, FileList& files, std::u16string_view program_folder) {
    list.Clear();
    static_cast<void>(files.Set_Path(Scheme_Folder(program_folder)));  // no folder: no schemes
    std::vector<std::u16string> entries = {std::u16string(CurrentBrlyt)};
    for (const std::u16string& name : files.Names()) entries.emplace_back(Without_Ending(name));
    list.Add(entries);
}

}  // namespace bannersmith
