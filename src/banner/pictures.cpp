#include "banner/pictures.h"

#include <algorithm>

#include "base/text.h"
#include "system/files.h"

namespace bannersmith {

Result<Picture> Read_Picture_File(const std::u16string& file) {
    const auto bytes = Read_File(file);
    if (!bytes) return bytes.Why();
    if (Is_Picture(*bytes)) return Read_Picture(*bytes).About(file);
    if (Describe_Texture(*bytes)) return Decode_Texture(*bytes).About(file);
    return Failure{file, "Is neither a PNG nor a JPEG picture nor a texture"};
}

bool Is_Called_A_Picture(std::u16string_view file) {
    const std::u16string name = Capitals(file);
    constexpr std::u16string_view Endings[] = {u".PNG", u".JPG",  u".JPEG", u".GIF",
                                               u".BMP", u".WEBP", u".TIF",  u".TIFF"};
    return std::any_of(std::begin(Endings), std::end(Endings),
                       [&](std::u16string_view ending) { return name.ends_with(ending); });
}

std::string About_Logo(std::string_view old, std::string_view logo, bool made_of_picture) {
    const auto before = Describe_Texture(old);
    const auto now = Describe_Texture(logo);
    if (!before) return {};
    if (!now) return "but the logo is no texture";
    if (*before != *now) return "but the logo is " + now->Text() + " in place of " + before->Text();
    return made_of_picture ? "the logo as " + now->Text() : "";
}

}  // namespace bannersmith
