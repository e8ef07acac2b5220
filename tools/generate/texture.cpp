#include "generate/texture.h"

#include <algorithm>
#include <cmath>

#include "generate/layout_builder.h"

namespace bannersmith {

namespace {

/// `value` (0 to 1) on a scale from 0 to `most`.
unsigned Level(double value, unsigned most) {
    return static_cast<unsigned>(std::lround(std::clamp(value, 0.0, 1.0) * most));
}

unsigned Rgb5a3(const Pixel& p) {
    if (p.alpha > 0.95) {
        return 0x8000U | Level(p.red, 31) << 10 | Level(p.green, 31) << 5 | Level(p.blue, 31);
    }
    return Level(p.alpha, 7) << 12 | Level(p.red, 15) << 8 | Level(p.green, 15) << 4 |
           Level(p.blue, 15);
}

void Append_Pixel(ByteWriter& out, TextureFormat format, const Pixel& p, const Pixel& next) {
    switch (format) {
        case TextureFormat::i4:
            out.U8(Level(p.green, 15) << 4 | Level(next.green, 15));
            break;
        case TextureFormat::ia4:
            out.U8(Level(p.alpha, 15) << 4 | Level(p.green, 15));
            break;
        case TextureFormat::ia8:
            out.U8(Level(p.alpha, 255)).U8(Level(p.green, 255));
            break;
        case TextureFormat::rgb565:
            out.U16(Level(p.red, 31) << 11 | Level(p.green, 63) << 5 | Level(p.blue, 31));
            break;
        case TextureFormat::rgb5a3:
            out.U16(Rgb5a3(p));
            break;
    }
}

}  // namespace

std::string Texture_File(TextureFormat format, int width, int height,
                         const std::function<Pixel(int x, int y)>& pixel) {
    constexpr std::uint32_t Magic = 0x0020AF30, TableOffset = 0x0C, HeaderOffset = 0x14;
    constexpr std::uint32_t DataOffset = 0x40, Clamp = 0, Linear = 1;
    ByteWriter file;
    file.U32(Magic).U32(1).U32(TableOffset).U32(HeaderOffset).U32(0);
    file.U16(static_cast<unsigned>(height)).U16(static_cast<unsigned>(width));
    file.U32(static_cast<std::uint32_t>(format)).U32(DataOffset);
    file.U32(Clamp).U32(Clamp).U32(Linear).U32(Linear).F32(0).U8(0).U8(0).U8(0).U8(0);
    file.Align(DataOffset);

    const bool nibbles = format == TextureFormat::i4;  // two pixels a byte, in larger blocks
    const bool bytes = format == TextureFormat::ia4;
    const int across = nibbles || bytes ? 8 : 4, down = nibbles ? 8 : 4, step = nibbles ? 2 : 1;
    for (int top = 0; top < height; top += down) {
        for (int left = 0; left < width; left += across) {
            for (int y = top; y < top + down; ++y) {
                for (int x = left; x < left + across; x += step) {
                    Append_Pixel(file, format, pixel(x, y), pixel(x + step - 1, y));
                }
            }
        }
    }
    return file.Data();
}

}  // namespace bannersmith
