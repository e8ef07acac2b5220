#include "banner/effect.h"

#include <algorithm>

#include "banner/pictures.h"
#include "banner/region_force.h"
#include "base/text.h"
#include "colors/materials.h"
#include "gameinfo/fields.h"

namespace bannersmith {

namespace {

std::string No_Box(std::u16string_view name) {
    return "no text box " + Printable(name);
}

struct Lacking {
    const Banner& banner;

    std::string operator()(const SetField& edit) const {
        const std::u16string box = Box_Of(edit.field, edit.code);
        return Has_Box(banner.Bytes(), box) ? "" : No_Box(box);
    }

    std::string operator()(const SetFieldEverywhere& edit) const {
        const auto codes = Codes_For(banner.Bytes());
        const bool found = std::any_of(codes.begin(), codes.end(), [&](std::u16string_view code) {
            return Has_Box(banner.Bytes(), Box_Of(edit.field, code));
        });
        return found ? "" : No_Box(Box_Of(edit.field, u"*"));
    }

    std::string operator()(const WriteBox& edit) const {
        const bool found = edit.exact ? Has_Exact_Box(banner.Bytes(), edit.name)
                                      : Has_Box(banner.Bytes(), edit.name);
        return found ? "" : No_Box(edit.name);
    }

    std::string operator()(const ApplyScheme& /*edit*/) const {
        const auto places = Find_Materials(banner.Bytes(), Written_Materials());
        const bool found = std::any_of(places.begin(), places.end(),
                                       [](const auto& place) { return place.has_value(); });
        return found ? "" : "no material that a scheme colors";
    }

    std::string operator()(const SetColors& edit) const {
        std::string wanted;
        for (const auto& [element, colors] : edit.pairs) {
            if (!Materials_Of(banner.Bytes(), element).empty()) return {};
            wanted += (wanted.empty() ? "" : ", ") + To_Utf8(Elements[element].material);
        }
        return "no material " + wanted;
    }

    std::string operator()(const ReplaceLogo& /*edit*/) const {
        const auto texture = banner.Source().Find_Texture(LogoTexture);
        return texture && !*texture ? "no texture my_Back*" : "";
    }

    std::string operator()(const ReplacePicture& /*edit*/) const {
        const auto textures = banner.Source().Find_Game_Pictures();
        return textures && textures->empty() ? "no texture VCPic*" : "";
    }

    std::string operator()(const ForceRegion& edit) const {
        const std::string code = To_Utf8(edit.code);
        return Forced_From(banner.Bytes(), code).empty()
                   ? "no language whose items would become those of " + code
                   : "";
    }

    std::string operator()(const SetPadding& /*edit*/) const { return {}; }

    std::string operator()(const SetChannelName& /*edit*/) const {
        return banner.Names() ? "" : "no channel names";
    }

    std::string operator()(const SetChannelNames& /*edit*/) const {
        const auto names = banner.Names();
        const bool found =
            names && std::any_of(names->begin(), names->end(),
                                 [](const auto& lines) { return !lines[0].empty(); });
        return found ? "" : "no channel names";
    }
};

struct Holding {
    const Banner& banner;

    bool operator()(const SetField& edit) const { return Holds(edit.field, edit.code, edit.value); }

    bool operator()(const SetFieldEverywhere& edit) const {
        const auto codes = Codes_For(banner.Bytes());
        return std::all_of(codes.begin(), codes.end(), [&](std::u16string_view code) {
            return !Has_Box(banner.Bytes(), Box_Of(edit.field, code)) ||
                   Holds(edit.field, code, edit.value);
        });
    }

    bool operator()(const WriteBox& edit) const {
        return Read_Box(banner.Bytes(), edit.name) == edit.text;
    }

    bool operator()(const SetColors& edit) const {
        for (const auto& [element, colors] : edit.pairs) {
            for (const std::string& name : Materials_Of(banner.Bytes(), element)) {
                if (Get_Mat_Colors(banner.Bytes(), name) != colors) return false;
            }
        }
        return true;
    }

    bool operator()(const SetChannelName& edit) const {
        const auto names = banner.Names();
        const auto language = std::find(NameLanguages.begin(), NameLanguages.end(), edit.code);
        return names && language != NameLanguages.end() && edit.line < NameLines &&
               (*names)[static_cast<std::size_t>(language - NameLanguages.begin())][edit.line] ==
                   edit.text;
    }

    bool operator()(const SetChannelNames& edit) const {
        const auto names = banner.Names();
        return names && std::all_of(names->begin(), names->end(), [&](const auto& lines) {
                   return lines[0].empty() || lines[0] == edit.text;
               });
    }

    template <typename Other>
    bool operator()(const Other& /*edit*/) const {
        return false;
    }

 private:
    bool Holds(Field field, std::u16string_view code, const std::u16string& value) const {
        return Read_Box(banner.Bytes(), Box_To_Read(field, code)) ==
               Worded(banner.Bytes(), field, code, value, banner.Neutral());
    }
};

}  // namespace

std::string Lacks(const Banner& banner, const Edit& edit) {
    return std::visit(Lacking{banner}, edit);
}

bool Holds_Already(const Banner& banner, const Edit& edit) {
    return std::visit(Holding{banner}, edit);
}

}  // namespace bannersmith
