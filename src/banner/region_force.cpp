#include "banner/region_force.h"

#include "base/text.h"
#include "gameinfo/boxes.h"
#include "gameinfo/languages.h"
#include "layout/text_box.h"

namespace bannersmith {

namespace {

bool Has_Title(std::string_view data, std::string_view code) {
    return !Get_Text(data, To_Utf8(box_prefix::Title).append(code)).empty();
}

/// The first language with a title; empty when there is none.
std::string Titled_Language(std::string_view data) {
    for (const std::u16string_view language : Languages) {
        std::string code = To_Utf8(language);
        if (Has_Title(data, code)) return code;
    }
    return {};
}

/// Overwrites each occurrence of `old` with `fresh`, which is as long, from left to right.
void Overwrite_All(std::string& data, std::string_view old, std::string_view fresh) {
    for (std::size_t at = data.find(old); at != data.npos; at = data.find(old, at + old.size())) {
        data.replace(at, fresh.size(), fresh);
    }
}

}  // namespace

std::string Forced_From(std::string_view layout, std::string_view region) {
    if (region.empty() || region == To_Utf8(NoLanguage) || Has_Title(layout, region)) return {};
    return Titled_Language(layout);
}

std::string& Region_Force(std::string& tFile, std::string_view region) {
    const std::string source = Forced_From(tFile, region);
    if (source.empty()) return tFile;
    for (const std::string_view stem : ForcedStems) {
        Overwrite_All(tFile, std::string(stem) + source, std::string(stem).append(region));
    }
    return tFile;
}

}  // namespace bannersmith
