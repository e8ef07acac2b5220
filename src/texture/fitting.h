// How any picture becomes a texture of a certain size and format.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"
#include "texture/picture.h"
#include "texture/tpl.h"

namespace bannersmith {

/// What happens where the sides of a picture are in another ratio than those of its place.
enum class Fit {
    crop,     ///< it fills the place; what stands over is cut, alike on both sides
    border,   ///< it is whole; what stays free is transparent, which is black without alpha
    stretch,  ///< it is whole and fills the place, distorted
};

/// How colours that a format lacks are made of those that it has.
enum class Dither {
    none,       ///< each texel gets the nearest one
    ordered,    ///< by a pattern of 4 x 4 texels
    diffusion,  ///< what a texel got too much is taken from its neighbours (Floyd-Steinberg)
};

/// How a picture becomes a texture. Without a word about dithering a drawing, which has at most 256
/// colours, is not dithered and anything else is by diffusion.
struct Fitting {
    Fit fit = Fit::crop;
    std::optional<Dither> dither = {};
};

/// `picture` in other sides, all of them at least 1. Colours are mixed by their alpha. A picture
/// that has the size already stays as it is.
Picture Fit_To(const Picture& picture, std::size_t width, std::size_t height, Fit fit);

/// `picture` with the colours alone that the format has, so that each of them is stored as it is.
Picture Dither_For(const TexelFormat& format, Picture picture, Dither dither);

/// A new texture of that size and format. Fails, without a subject, for one that cannot be made.
Result<std::string> Make_Texture(const Picture& picture, const TextureInfo& wanted,
                                 const Fitting& fitting = {});

/// `texture` with that picture in the place of its own, see `With_Picture`. Fails, without a
/// subject, for what is no texture or cannot be written.
Result<std::string> Make_Texture_Like(std::string_view texture, const Picture& picture,
                                      const Fitting& fitting = {});

}  // namespace bannersmith
