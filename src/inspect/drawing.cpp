#include "inspect/drawing.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>

#include "base/numbers.h"
#include "layout/format.h"
#include "layout/kind.h"
#include "still/part.h"

namespace bannersmith {

namespace {

constexpr unsigned MenuVersion = 8;

/// The most bytes that the menu has room for, by the part's name.
struct PartLimit {
    const char* name;
    std::size_t most;
};
constexpr PartLimit Limits[] = {{"banner.bin", 0x80000}, {"icon.bin", 0x19000}};

void Check_Version(const Banner& banner, std::vector<Warning>& found) {
    const unsigned version = Read_U16(banner.Bytes(), header::Version);
    if (version == MenuVersion) return;
    found.push_back({"the layout has version " + Hex(version) + ", and the console's menu takes " +
                     Hex(MenuVersion) + " alone"});
}

void Check_Sizes(const Banner& banner, std::vector<Warning>& found) {
    const Archive* archive = banner.Source().Packed_In();
    if (archive == nullptr) return;
    for (const StoredPart& part : archive->Parts()) {
        for (const auto& [name, most] : Limits) {
            if (!part.path.ends_with(name)) continue;
            const auto opened = Open_Part(part);
            if (!opened || opened->content.bytes.size() <= most) continue;
            found.push_back({part.path + " has " + std::to_string(opened->content.bytes.size()) +
                             " bytes, and the console's menu takes " + std::to_string(most)});
        }
    }
}

/// A text box by its name, as warnings are told of it.
std::optional<std::size_t> Find_Box(const LayoutInfo& info, const std::string& name) {
    for (std::size_t i = 0; i < info.boxes.size(); ++i) {
        if (info.boxes[i].name == name) return i;
    }
    return {};
}

/// Draws the banner once for each language, as small as a stamp.
void Check_Drawing(const Banner& banner, const LayoutInfo& info, still::Font* font,
                   std::vector<Warning>& found) {
    const auto kind = banner.Source().Is_Icon() ? still::PartKind::icon : still::PartKind::banner;
    auto files = still::Files_For(banner, kind);
    if (!files) return;
    const bool has_textures = files->has_textures;
    still::Still part(std::move(*files));
    std::vector<std::string> languages = still::Languages_Of(part.Layout());
    if (languages.empty()) languages.emplace_back();
    std::set<std::string> told;
    const auto tell = [&](const std::string& text, std::optional<std::size_t> box) {
        if (told.insert(text).second) found.push_back({text, box});
    };
    for (const std::string& language : languages) {
        still::View view;
        view.part = kind;
        view.language = language;
        view.scale = 0.05;
        const still::Drawn drawn = part.Draw(view, part.Start_Frames(), font);
        for (const still::Region& region : drawn.regions) {
            if (has_textures && !region.missing.empty()) tell(region.missing, {});
        }
        for (const still::TextFit& text : drawn.texts) {
            const std::string box = "text box " + text.pane;
            const auto index = Find_Box(info, text.pane);
            if (text.is_too_wide) {
                tell(box + " may be too narrow for its text, which breaks (approximate font)",
                     index);
            }
            if (text.is_too_high) {
                tell(box + " may be too low for its lines (approximate font)", index);
            }
        }
    }
}

}  // namespace

std::vector<Warning> Find_Menu_Warnings(const Banner& banner) {
    std::vector<Warning> found;
    if (!Is_Layout(banner.Bytes())) return found;
    Check_Version(banner, found);
    Check_Sizes(banner, found);
    return found;
}

std::vector<Warning> Find_Drawing_Warnings(const Banner& banner, const LayoutInfo& info,
                                           still::Font* font) {
    std::vector<Warning> found = Find_Menu_Warnings(banner);
    Check_Drawing(banner, info, font, found);
    return found;
}

}  // namespace bannersmith
