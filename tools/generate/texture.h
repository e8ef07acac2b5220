// Textures (".tpl") of what a function draws.
#pragma once

#include <functional>
#include <string>

#include "texture/picture.h"

namespace bannersmith {

/// The image formats made here, by their numbers in the file.
enum class TextureFormat { i4 = 0, ia4 = 2, ia8 = 3, rgb565 = 4, rgb5a3 = 5 };

/// One pixel: grey or colour, and opacity, each 0 to 1. Formats without colour take the green.
struct Pixel {
    double red = 0, green = 0, blue = 0, alpha = 1;
};

/// A whole texture file of `width` x `height` pixels; `pixel(x, y)` gives
/// each.
std::string Texture_File(TextureFormat format, int width, int height,
                         const std::function<Pixel(int x, int y)>& pixel);

/// A picture as a JPEG file.
std::string Jpeg_File(const Picture& picture);

}  // namespace bannersmith
