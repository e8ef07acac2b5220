// How the console's texture formats store texels: in blocks of 32 or 64 bytes, from left to right
// and from top to bottom, in each block the texels row by row.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace bannersmith {

/// Red, green, blue, alpha.
using Texel = std::array<std::uint8_t, 4>;

/// The colours of a texture with indices: 16-bit numbers in the format IA8, RGB565 or RGB5A3.
struct Palette {
    std::string_view bytes;
    std::uint32_t format = 0;  ///< 0 IA8, 1 RGB565, 2 RGB5A3

    /// Entry `index`; a transparent texel behind the end.
    Texel At(std::size_t index) const;
};

/// What a format can keep of a colour.
enum class Keeps {
    intensity,        ///< one number, which is red, green, blue and alpha
    intensity_alpha,  ///< one number for red, green and blue, one for alpha
    opaque_color,     ///< red, green, blue; all is opaque
    color_alpha,
};

/// One format.
struct TexelFormat {
    std::uint32_t number;   ///< in the header of an image
    std::string_view name;  ///< as people call it
    std::size_t block_width, block_height, block_bytes;
    Keeps keeps;

    /// The greatest numbers that it stores for red, green and blue: 31 for five bits. For RGB5A3
    /// those of an opaque texel; any other one's are 15.
    std::array<std::uint8_t, 3> most;

    /// Texel `index` of a block.
    Texel (*read)(std::string_view block, std::size_t index, const Palette& palette);

    /// Stores texel `index` of a block, one that `Seen_As` made, each value as the nearest that the
    /// format has. Null for a format that is only read.
    void (*write)(std::span<char> block, std::size_t index, Texel texel);

    /// The bytes that so many texels take.
    std::size_t Size_Of(std::size_t width, std::size_t height) const;
};

/// All formats.
std::span<const TexelFormat> Texel_Formats();

/// The format of that number, or of that name in any letters; null for none.
const TexelFormat* Find_Texel_Format(std::uint32_t number);
const TexelFormat* Find_Texel_Format(std::string_view name);

/// The least alpha that RGB5A3 stores as opaque.
constexpr std::uint8_t LeastOpaque = 224;

/// What a format makes of a texel before it rounds. An intensity is the luminance (ITU-R BT.601);
/// one that is alpha, too, is not above the alpha, so that what is transparent stays so. What has
/// no alpha is put before black. For RGB5A3 an alpha of 224 and more is opaque.
Texel Seen_As(const TexelFormat& format, Texel texel);

/// Whether RGB5A3 stores such a texel in its short code, of four bits a colour and an alpha: one
/// that is not opaque, and an opaque one that this code alone has exactly.
bool Takes_Short_Code(Texel seen);

/// The value, 0 to 255, that is seen where `stored`, 0 to `most`, is drawn, its bits repeated; and
/// the number whose drawn value is nearest to `value`. `most` is 7, 15, 31, 63 or 255.
std::uint8_t Expand(unsigned stored, unsigned most);
unsigned Reduce(unsigned value, unsigned most);

}  // namespace bannersmith
