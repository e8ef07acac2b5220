#include "inspect/extract.h"

#include <algorithm>

#include "base/text.h"
#include "system/files.h"
#include "system/replace_files.h"

namespace bannersmith {

namespace {

/// Names that some system does not take as those of files: devices, characters that mean something
/// else there, and what it would leave away at the end.
bool Is_No_Name(std::u16string_view name) {
    const std::u16string stem = Capitals(name.substr(0, name.find(u'.')));
    constexpr std::u16string_view Devices[] = {u"CON", u"PRN", u"AUX", u"NUL"};
    const bool numbered =
        stem.size() == 4 && (stem.starts_with(u"COM") || stem.starts_with(u"LPT"));
    return numbered ||
           std::find(std::begin(Devices), std::end(Devices), stem) != std::end(Devices) ||
           name.find_first_of(u":*?\"<>|\x7F") != name.npos || name.ends_with(u'.') ||
           name.ends_with(u' ') ||
           std::any_of(name.begin(), name.end(), [](char16_t unit) { return unit < 0x20; });
}

/// The path below the folder of a file of the archive. Fails for one that is no file's everywhere.
Result<std::u16string> Path_Below(const std::u16string& folder, const std::string& path) {
    const std::u16string below = From_Utf8(path.empty() ? "content.bin" : path);
    const std::u16string file = folder + u"/" + below;
    for (std::size_t i = 0; !Piece_Of(below, u'/', i).empty(); ++i) {
        if (Is_No_Name(Piece_Of(below, u'/', i))) return Failure{file, "Is no name for a file"};
    }
    return file;
}

}  // namespace

Result<> Extract_Files(const Archive& archive, const std::u16string& folder) {
    auto named = archive.Visit_Files([&](const std::string& path, std::string_view) -> Result<> {
        const auto file = Path_Below(folder, path);
        if (!file) return file.Why();
        if (Leads_Through_Link(folder, *file)) return Failure{*file, "Leads out by a link"};
        return Ordinary_File_Exists(*file) ? Result<>(Failure{*file, "Is there already"})
                                           : Result<>();
    });
    if (!named && !named.Why().subject.empty()) return named;
    return archive.Visit_Files([&](const std::string& path, std::string_view bytes) -> Result<> {
        const auto file = Path_Below(folder, path);
        if (!file) return file.Why();
        if (auto made = Make_Folders_Of(*file); !made) return made;
        return Replace_File(*file, bytes);
    });
}

}  // namespace bannersmith
