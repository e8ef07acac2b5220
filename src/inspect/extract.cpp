#include "inspect/extract.h"

#include <algorithm>

#include "base/text.h"
#include "system/files.h"
#include "system/replace_files.h"

namespace bannersmith {

Result<> Extract_Files(const Archive& archive, const std::u16string& folder) {
    return archive.Visit_Files([&](const std::string& path, std::string_view bytes) -> Result<> {
        const std::u16string name = From_Utf8(path.empty() ? "content.bin" : path);
        const std::u16string file = folder + u"/" + name;
        if (name.find_first_of(u":*?\"<>|\x7F") != name.npos ||
            std::any_of(name.begin(), name.end(), [](char16_t unit) { return unit < 0x20; })) {
            return Failure{file, "Is no name for a file"};
        }
        if (Ordinary_File_Exists(file)) return Failure{file, "Is there already"};
        if (auto made = Make_Folders_Of(file); !made) return made;
        return Replace_File(file, bytes);
    });
}

}  // namespace bannersmith
