// Pictures as people have them, and as the rest of this floor works on them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/result.h"

namespace bannersmith {

/// Rows from top to bottom, in each the texels from left to right, of four bytes: red, green, blue,
/// alpha. Colours are not multiplied with alpha.
struct Picture {
    std::size_t width = 0, height = 0;
    std::string texels;

    bool operator==(const Picture&) const = default;
};

constexpr std::size_t TexelSize = 4;

/// Whether `bytes` begin as a picture file that `Read_Picture` knows.
bool Is_Picture(std::string_view bytes);

/// The picture of a PNG or JPEG file; of 16 bits a channel the upper eight. Colour profiles are
/// passed over. Fails, without a subject, for anything else, what is broken or cut off, and sides
/// above 8192 texels.
Result<Picture> Read_Picture(std::string_view bytes);

/// The picture as a PNG file of eight bits a channel, with alpha where any texel is not opaque.
std::string Write_Png(const Picture& picture);

}  // namespace bannersmith
