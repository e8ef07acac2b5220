#include "still/part.h"

#include <algorithm>
#include <memory>

#include "base/text.h"
#include "layout/file_length.h"
#include "layout/kind.h"

namespace bannersmith::still {

namespace {

using Files = std::map<std::string, std::string>;

bool Same_Name(const std::string& a, const std::string& b) {
    return Capitals(From_Utf8(a)) == Capitals(From_Utf8(b));
}

/// A file by its path, in any letters.
const std::string* Find(const Files& files, const std::string& path) {
    const auto exact = files.find(path);
    if (exact != files.end()) return &exact->second;
    for (const auto& [name, bytes] : files) {
        if (Same_Name(name, path)) return &bytes;
    }
    return nullptr;
}

/// The one file of a folder with an ending.
const std::string* Find_Only(const Files& files, const std::string& folder, const char* ending) {
    const std::string* only = nullptr;
    for (const auto& [name, bytes] : files) {
        if (!name.starts_with(folder) || !name.ends_with(ending)) continue;
        if (only != nullptr) return nullptr;
        only = &bytes;
    }
    return only;
}

void Choose_Animations(const Files& files, const std::string& part, PartFiles& chosen) {
    const auto find = [&](const std::string& end) { return Find(files, "anim/" + part + end); };
    const std::string* loop = find(".brlan");
    const std::string* start = nullptr;
    if (loop == nullptr) {
        start = find("_Start.brlan");
        loop = find("_Loop.brlan");
    }
    if (loop == nullptr && start == nullptr) loop = find("_Whole.brlan");
    if (loop == nullptr && start == nullptr) loop = Find_Only(files, "anim/", ".brlan");
    if (start != nullptr) chosen.start = *start;
    if (loop != nullptr) chosen.loop = *loop;
}

}  // namespace

Result<PartFiles> Files_For(const Banner& banner, PartKind part) {
    const std::string name = part == PartKind::icon ? "icon" : "banner";
    const bool is_other = (part == PartKind::icon) != banner.Source().Is_Icon();
    const auto files = std::make_shared<const Files>(banner.Files_Of_Part(is_other));
    PartFiles chosen;
    if (is_other) {
        const std::string* layout = Find(*files, "blyt/" + name + ".brlyt");
        if (layout == nullptr) layout = Find_Only(*files, "blyt/", ".brlyt");
        if (layout != nullptr) chosen.layout = *layout;
    } else {
        chosen.layout = Set_File_Len(banner.Bytes());  // which only a save makes right
    }
    if (!Is_Layout(chosen.layout)) {
        return Failure{banner.Source().Name(), "Has no layout of the channel's " + name};
    }
    Choose_Animations(*files, name, chosen);
    chosen.has_textures = files->lower_bound("timg/") != files->lower_bound("timg0");
    chosen.texture = [files](const std::string& texture) -> std::optional<std::string> {
        const std::string* bytes = Find(*files, "timg/" + texture);
        return bytes != nullptr ? std::optional(*bytes) : std::nullopt;
    };
    return chosen;
}

}  // namespace bannersmith::still
