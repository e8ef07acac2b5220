#include "banner/source.h"

#include "base/text.h"
#include "layout/kind.h"
#include "system/files.h"

namespace bannersmith {

namespace {

/// The folder "timg" beside the folder of the layout file: the layout's path, which has a
/// separator, without its last two parts. Empty for a layout in a root folder: what would be left
/// of its path is the current folder, which may be anyone's.
std::u16string Texture_Folder(std::u16string_view layout_path) {
    const std::u16string path = With_Backslashes(layout_path);
    const std::size_t last = path.rfind(u'\\');
    const std::size_t before = last == 0 ? path.npos : path.rfind(u'\\', last - 1);
    const std::u16string_view last_two =
        std::u16string_view(path).substr(before == path.npos ? 0 : before + 1);
    const std::u16string rest = Replace_All(path, last_two, u"");
    if (rest.empty() && Is_Full_Path(layout_path)) return {};
    return rest + u"timg\\";
}

}  // namespace

Result<std::string> FolderSource::Read() const {
    auto bytes = Read_File(path_);
    if (!bytes) return std::move(bytes).About(name_);
    const std::string_view reason = Not_To_Be_Edited(*bytes);
    if (!reason.empty()) return Failure{name_, std::string(reason)};
    return bytes;
}

bool FolderSource::Holds_Other(std::string_view as_read) const {
    const auto now = Read_File(path_);
    return now && *now != as_read;
}

Result<std::optional<std::u16string>> FolderSource::Find_Texture(
    std::u16string_view beginning) const {
    if (With_Backslashes(path_).find(u'\\') == path_.npos) {
        return Failure{name_, "Names no folder to look for the logo texture beside"};
    }
    const std::u16string folder = Texture_Folder(path_);
    if (folder.empty()) return std::optional<std::u16string>();
    const auto is_there = Is_Folder(folder);
    if (!is_there) return is_there.Why();
    if (!*is_there) return std::optional<std::u16string>();
    const auto textures = List_Files(folder, ".tpl");
    if (!textures) return textures.Why();
    for (const std::u16string& name : *textures) {
        if (name.starts_with(beginning)) return std::optional(folder + name);
    }
    return std::optional<std::u16string>();
}

}  // namespace bannersmith
