#include "banner/source.h"

#include "base/text.h"
#include "layout/kind.h"
#include "system/files.h"

namespace bannersmith {

namespace {

/// The folder `name` beside the folder of the layout file: the layout's path without its last two
/// parts. Empty for a path without a folder and for a layout in a root folder: what would be left
/// is the current folder, which may be anyone's.
std::u16string Folder_Beside(std::u16string_view layout_path, std::u16string_view name) {
    const std::u16string path = With_Backslashes(layout_path);
    const std::size_t last = path.rfind(u'\\');
    if (last == path.npos) return {};
    const std::size_t before = last == 0 ? path.npos : path.rfind(u'\\', last - 1);
    const std::u16string_view last_two =
        std::u16string_view(path).substr(before == path.npos ? 0 : before + 1);
    const std::u16string rest = Replace_All(path, last_two, u"");
    if (rest.empty() && Is_Full_Path(layout_path)) return {};
    return rest + std::u16string(name) + u"\\";
}

/// The first texture beside the layout file whose name begins so, see `BannerSource`.
Result<std::optional<std::u16string>> Find_Beside(const std::u16string& layout_path,
                                                  std::u16string_view beginning) {
    const std::u16string folder = Folder_Beside(layout_path, u"timg");
    if (folder.empty()) return std::optional<std::u16string>();
    const auto is_there = Is_Folder(folder);
    if (!is_there) return is_there.Why();
    if (!*is_there) return std::optional<std::u16string>();
    const auto textures = List_Files(folder, {".tpl"});
    if (!textures) return textures.Why();
    for (const std::u16string& name : *textures) {
        if (name.starts_with(beginning)) return std::optional(folder + name);
    }
    return std::optional<std::u16string>();
}

/// Where the layout would lie in the other part of an unpacked channel: of
/// "meta\banner.bin\arc\blyt\x" it is "meta\icon.bin\arc\blyt\x", and the other way round. Empty
/// for a layout that lies nowhere like that.
std::u16string In_Other_Part(std::u16string_view layout_path) {
    const std::u16string path = With_Backslashes(layout_path);
    std::size_t end = path.size();
    for (int i = 0; i < 3 && end != path.npos; ++i) {
        end = end == 0 ? path.npos : path.rfind(u'\\', end - 1);
    }
    if (end == path.npos || end == 0) return {};
    const std::size_t begin = path.rfind(u'\\', end - 1) + 1;  // of the folder that holds "arc"
    const std::u16string part = path.substr(begin, end - begin);
    std::u16string other = Replace_All(part, u"banner", u"icon");
    if (other == part) other = Replace_All(part, u"icon", u"banner");
    return other == part ? std::u16string() : path.substr(0, begin) + other + path.substr(end);
}

/// By its ending. What stands in such a file and does not begin as an archive is one that is cut
/// off or broken, and no layout.
bool Is_Called_An_Archive(std::u16string_view path) {
    const std::u16string name = Capitals(path);
    return name.ends_with(u".APP") || name.ends_with(u".BNR") || name.ends_with(u".BIN");
}

}  // namespace

std::u16string Layout_File_Of(const std::u16string& path) {
    if (!Is_Folder(path).Value_Or(false)) return path;
    const std::u16string folder = path + (Ends_In_Separator(path) ? u"" : u"\\");
    for (const char16_t* inner : {u"arc\\blyt\\", u"meta\\banner.bin\\arc\\blyt\\"}) {
        const auto layouts = List_Files(folder + inner, {".brlyt"});
        if (layouts && layouts->size() == 1) return folder + inner + layouts->front();
        for (const char16_t* name : {u"banner.brlyt", u"icon.brlyt"}) {
            if (Ordinary_File_Exists(folder + inner + name)) return folder + inner + name;
        }
    }
    for (const char16_t* part : {u"meta\\banner.bin", u"meta\\icon.bin"}) {
        if (Ordinary_File_Exists(folder + part)) return folder + part;
    }
    return path;
}

Result<std::string> BannerSource::Read() {
    auto bytes = Read_File(path_);
    if (!bytes) return std::move(bytes).About(name_);
    archive_.reset();
    if (Is_Layout(*bytes)) return bytes;
    if (Is_Program(*bytes)) return Failure{name_, "Is a program, not a layout file"};
    if (!Archive::Begins_As_One(*bytes)) {
        if (Is_Called_An_Archive(path_)) return Failure{name_, "Is no archive of a channel"};
        return bytes;
    }
    auto archive = Archive::Read(std::move(*bytes)).About(name_);
    if (!archive) return archive.Why();
    if (!archive->Refusal().empty()) return Failure{name_, archive->Refusal()};
    if (!Is_Layout(archive->Layout())) {
        return Failure{name_, archive->Layout_Path() + ": Not a layout file"};
    }
    archive_ = std::move(*archive);
    return std::string(archive_->Layout());
}

bool BannerSource::Holds_Other(std::string_view layout) const {
    const auto now = Read_File(path_);
    return now && *now != (archive_ ? archive_->Bytes() : layout);
}

std::vector<NewContents> BannerSource::Animations() const {
    std::vector<NewContents> animations;
    if (archive_) {
        static_cast<void>(
            archive_->Visit_Files([&](const std::string& path, std::string_view bytes) -> Result<> {
                if (!path.ends_with(".brlan")) return {};
                animations.push_back({From_Utf8(path), std::string(bytes)});
                return {};
            }));
        return animations;
    }
    const std::u16string folder = Folder_Beside(path_, u"anim");
    if (folder.empty() || !Is_Folder(folder).Value_Or(false)) return animations;
    for (const std::u16string& name : List_Files(folder, {".brlan"}).Value_Or({})) {
        animations.push_back({folder + name, Read_File(folder + name).Value_Or("")});
    }
    return animations;
}

std::optional<std::u16string> BannerSource::Folder_Of_Part(bool of_other) const {
    constexpr std::u16string_view Inner = u"timg";
    std::u16string layout = archive_ ? From_Utf8(archive_->Layout_Path()) : path_;
    if (of_other) layout = In_Other_Part(layout);
    std::u16string folder = Folder_Beside(layout, Inner);
    if (folder.empty()) return {};
    folder.resize(folder.size() - Inner.size() - 1);
    return archive_ ? Replace_All(folder, u"\\", u"/") : folder;
}

std::map<std::string, std::string> BannerSource::Files_Of_Part(bool of_other) const {
    std::map<std::string, std::string> files;
    const auto begin = Folder_Of_Part(of_other);
    if (!begin) return files;
    if (archive_) {
        const std::string folder = To_Utf8(*begin);
        static_cast<void>(
            archive_->Visit_Files([&](const std::string& path, std::string_view bytes) -> Result<> {
                if (path.starts_with(folder)) files.emplace(path.substr(folder.size()), bytes);
                return {};
            }));
        return files;
    }
    for (const std::u16string_view inner : {u"blyt", u"anim", u"timg"}) {
        const std::u16string folder = *begin + std::u16string(inner) + u"\\";
        if (!Is_Folder(folder).Value_Or(false)) continue;
        for (const std::u16string& name :
             List_Files(folder, {".brlyt", ".brlan", ".tpl"}).Value_Or({})) {
            auto bytes = Read_File(folder + name);
            if (bytes) files[To_Utf8(inner) + "/" + To_Utf8(name)] = std::move(*bytes);
        }
    }
    return files;
}

bool BannerSource::Is_Icon() const {
    const std::u16string path =
        With_Backslashes(archive_ ? From_Utf8(archive_->Layout_Path()) : path_);
    return Capitals(std::u16string_view(path).substr(path.rfind(u'\\') + 1)).starts_with(u"ICON");
}

Result<std::string> BannerSource::Texture(const std::u16string& path) const {
    if (!archive_) return Read_File(path);
    auto packed = archive_->Find_File(To_Utf8(path));
    if (!packed) return Failure{path, "Cannot be read"};
    return std::move(*packed);
}

Result<std::vector<NewContents>> BannerSource::Plan(
    std::string layout, std::vector<NewContents> textures,
    const std::optional<ChannelNames>& names) const {
    if (!archive_) {
        textures.push_back({path_, std::move(layout)});
        return textures;
    }
    NewFiles files;
    for (NewContents& texture : textures) {
        files[To_Utf8(texture.path)] = std::move(texture.bytes);
    }
    files[archive_->Layout_Path()] = std::move(layout);
    auto archive = archive_->With(files, names).About(name_);
    if (!archive) return archive.Why();
    return std::vector<NewContents>{{path_, std::move(*archive)}};
}

Result<std::optional<std::u16string>> BannerSource::Find_Texture(
    std::u16string_view beginning) const {
    if (archive_) {
        const auto packed = archive_->Find_Texture(To_Utf8(beginning));
        return packed ? std::optional(From_Utf8(*packed)) : std::nullopt;
    }
    if (With_Backslashes(path_).find(u'\\') == path_.npos) {
        return Failure{name_, "Names no folder to look for the logo texture beside"};
    }
    return Find_Beside(path_, beginning);
}

Result<std::vector<std::u16string>> BannerSource::Find_Game_Pictures() const {
    std::vector<std::u16string> found;
    for (const std::u16string_view beginning : {u"VCPic", u"IconVCPic"}) {
        if (archive_) {
            const auto packed = archive_->Find_Texture_Anywhere(To_Utf8(beginning));
            if (packed) found.push_back(From_Utf8(*packed));
            continue;
        }
        for (const std::u16string& layout : {path_, In_Other_Part(path_)}) {
            const auto texture = Find_Beside(layout, beginning);
            if (!texture) return texture.Why();
            if (*texture) found.push_back(**texture);
        }
    }
    return found;
}

}  // namespace bannersmith
