#include "platform/controls.h"

#include "platform/files.h"

void FileList::Set_Path(const std::u16string& folder) {
    names_ = List_Files(folder, ending_);
}
