// The pictures of a banner that its users replace: its logo and the picture of the game.
#pragma once

#include <string>
#include <string_view>

#include "base/result.h"
#include "texture/fitting.h"

namespace bannersmith {

/// What the name of the banner's logo texture begins with.
inline constexpr std::u16string_view LogoTexture = u"my_Back";

/// The picture that a file shows: PNG, JPEG, or a texture. The failure has the file's name.
Result<Picture> Read_Picture_File(const std::u16string& file);

/// Whether the ending of a file's name is one of pictures, also of kinds that cannot be read here.
bool Is_Called_A_Picture(std::u16string_view file);

/// What is to be said of a logo texture in the place of `old`: how it differs, which the console
/// may draw wrongly then, "but the logo is I4 256 x 64 in place of I4 512 x 64"; of one that was
/// made of a picture what it became, "the logo as I4 512 x 64". Empty where there is nothing to be
/// said, and where `old` was no texture to begin with.
std::string About_Logo(std::string_view old, std::string_view logo, bool made_of_picture);

}  // namespace bannersmith
