#include "forms/controls.h"

#include "system/files.h"

namespace bannersmith {

Result<> FileList::Set_Path(const std::u16string& folder) {
    auto names = List_Files(folder, ending_);
    names_ = names ? *names : std::vector<std::u16string>();
    if (!names) return names.Why();
    return {};
}

}  // namespace bannersmith
