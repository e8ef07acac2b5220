#include "colors/scheme_list.h"

#include "colors/scheme.h"

void Fill_Scheme_List(DropDownList& list, FileList& files, std::u16string_view program_folder) {
    list.Clear();
    static_cast<void>(files.Set_Path(Scheme_Folder(program_folder)));  // no folder: no schemes
    list.Add(CurrentBrlyt);
    for (const std::u16string& name : files.Names()) {
        list.Add(std::u16string_view(name).substr(0, name.size() - SchemeEnding.size()));
    }
}
