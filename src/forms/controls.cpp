#include "forms/controls.h"

#include "system/files.h"

namespace bannersmith {

Result<> FileList::Set_Path(const std::u16string& folder) {
    auto names = List_Files(folder, endings_);
    names_.clear();
    if (!names) return names.Why();
    names_ = std::move(*names);
    return {};
}

}  // namespace bannersmith
