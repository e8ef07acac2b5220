#include "forms/controls.h"

#include "system/files.h"

namespace bannersmith {

Outcome FileList::Set_Path(const std::u16string& folder) {
    return List_Files(folder, ending_, names_);
}

}  // namespace bannersmith
