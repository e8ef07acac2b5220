#include "texture/texels.h"

#include <algorithm>

#include "base/numbers.h"

namespace bannersmith {

namespace {

std::uint8_t Byte_At(std::string_view bytes, std::size_t at) {
    return static_cast<std::uint8_t>(bytes[at]);
}

/// The four bits of texel `index`, the high ones first.
unsigned Half_Byte(std::string_view block, std::size_t index) {
    return Byte_At(block, index / 2) >> (index % 2 == 0 ? 4 : 0) & 0xF;
}

void Store(std::span<char> block, std::size_t at, unsigned value) {
    block[at] = static_cast<char>(value);
}

void Store_U16(std::span<char> block, std::size_t at, unsigned value) {
    Store(block, at, value >> 8);
    Store(block, at + 1, value & 0xFF);
}

Texel Grey(std::uint8_t intensity, std::uint8_t alpha) {
    return {intensity, intensity, intensity, alpha};
}

Texel From_Rgb565(unsigned color) {
    return {Expand(color >> 11, 31), Expand(color >> 5 & 63, 63), Expand(color & 31, 31), 255};
}

Texel From_Rgb5A3(unsigned color) {
    if ((color & 0x8000) != 0) {
        return {Expand(color >> 10 & 31, 31), Expand(color >> 5 & 31, 31), Expand(color & 31, 31),
                255};
    }
    return {Expand(color >> 8 & 15, 15), Expand(color >> 4 & 15, 15), Expand(color & 15, 15),
            Expand(color >> 12 & 7, 7)};
}

Texel Read_I4(std::string_view block, std::size_t index, const Palette&) {
    const std::uint8_t value = Expand(Half_Byte(block, index), 15);
    return Grey(value, value);
}

void Write_I4(std::span<char> block, std::size_t index, Texel texel) {
    const auto old = static_cast<unsigned char>(block[index / 2]);
    const unsigned value = Reduce(texel[0], 15);
    Store(block, index / 2, index % 2 == 0 ? value << 4 | (old & 0xF) : (old & 0xF0) | value);
}

Texel Read_I8(std::string_view block, std::size_t index, const Palette&) {
    return Grey(Byte_At(block, index), Byte_At(block, index));
}

void Write_I8(std::span<char> block, std::size_t index, Texel texel) {
    Store(block, index, texel[0]);
}

Texel Read_Ia4(std::string_view block, std::size_t index, const Palette&) {
    const unsigned both = Byte_At(block, index);
    return Grey(Expand(both & 0xF, 15), Expand(both >> 4, 15));
}

void Write_Ia4(std::span<char> block, std::size_t index, Texel texel) {
    Store(block, index, Reduce(texel[3], 15) << 4 | Reduce(texel[0], 15));
}

Texel Read_Ia8(std::string_view block, std::size_t index, const Palette&) {
    return Grey(Byte_At(block, 2 * index + 1), Byte_At(block, 2 * index));
}

void Write_Ia8(std::span<char> block, std::size_t index, Texel texel) {
    Store(block, 2 * index, texel[3]);
    Store(block, 2 * index + 1, texel[0]);
}

Texel Read_Rgb565(std::string_view block, std::size_t index, const Palette&) {
    return From_Rgb565(Read_U16(block, 2 * index));
}

void Write_Rgb565(std::span<char> block, std::size_t index, Texel texel) {
    Store_U16(block, 2 * index,
              Reduce(texel[0], 31) << 11 | Reduce(texel[1], 63) << 5 | Reduce(texel[2], 31));
}

Texel Read_Rgb5A3(std::string_view block, std::size_t index, const Palette&) {
    return From_Rgb5A3(Read_U16(block, 2 * index));
}

void Write_Rgb5A3(std::span<char> block, std::size_t index, Texel texel) {
    const bool is_short = Takes_Short_Code(texel);
    const unsigned bits = is_short ? 4 : 5, most = is_short ? 15 : 31;
    const unsigned alpha = is_short ? Reduce(texel[3], 7) << 12 : 0x8000;
    Store_U16(block, 2 * index,
              alpha | Reduce(texel[0], most) << 2 * bits | Reduce(texel[1], most) << bits |
                  Reduce(texel[2], most));
}

constexpr std::size_t GreenBlueAt = 32;  // behind the alphas and reds of all texels

Texel Read_Rgba8(std::string_view block, std::size_t index, const Palette&) {
    const std::size_t at = 2 * index;
    return {Byte_At(block, at + 1), Byte_At(block, GreenBlueAt + at),
            Byte_At(block, GreenBlueAt + at + 1), Byte_At(block, at)};
}

void Write_Rgba8(std::span<char> block, std::size_t index, Texel texel) {
    const std::size_t at = 2 * index;
    Store(block, at, texel[3]);
    Store(block, at + 1, texel[0]);
    Store(block, GreenBlueAt + at, texel[1]);
    Store(block, GreenBlueAt + at + 1, texel[2]);
}

Texel Read_C4(std::string_view block, std::size_t index, const Palette& palette) {
    return palette.At(Half_Byte(block, index));
}

Texel Read_C8(std::string_view block, std::size_t index, const Palette& palette) {
    return palette.At(Byte_At(block, index));
}

Texel Read_C14X2(std::string_view block, std::size_t index, const Palette& palette) {
    return palette.At(Read_U16(block, 2 * index) & 0x3FFF);
}

Texel Mixed(Texel a, Texel b, unsigned weight_a, unsigned weight_b) {
    Texel mixed{0, 0, 0, 255};
    for (std::size_t i = 0; i < 3; ++i) {
        mixed[i] =
            static_cast<std::uint8_t>((a[i] * weight_a + b[i] * weight_b) / (weight_a + weight_b));
    }
    return mixed;
}

/// A block is four of 4 x 4 texels: two colours, then two bits for each texel. The console mixes
/// with eighths where others mix with thirds.
Texel Read_Cmpr(std::string_view block, std::size_t index, const Palette&) {
    const std::size_t x = index % 8, y = index / 8;
    const std::size_t at = 8 * (y / 4 * 2 + x / 4);
    const unsigned first = Read_U16(block, at), second = Read_U16(block, at + 2);
    const Texel a = From_Rgb565(first), b = From_Rgb565(second);
    switch (Byte_At(block, at + 4 + y % 4) >> (6 - 2 * (x % 4)) & 3) {
        case 0:
            return a;
        case 1:
            return b;
        case 2:
            return first > second ? Mixed(a, b, 5, 3) : Mixed(a, b, 1, 1);
        default: {
            Texel last = first > second ? Mixed(a, b, 3, 5) : Mixed(a, b, 1, 1);
            if (first <= second) last[3] = 0;
            return last;
        }
    }
}

constexpr TexelFormat Formats[] = {
    {0, "I4", 8, 8, 32, Keeps::intensity, {15, 15, 15}, Read_I4, Write_I4},
    {1, "I8", 8, 4, 32, Keeps::intensity, {255, 255, 255}, Read_I8, Write_I8},
    {2, "IA4", 8, 4, 32, Keeps::intensity_alpha, {15, 15, 15}, Read_Ia4, Write_Ia4},
    {3, "IA8", 4, 4, 32, Keeps::intensity_alpha, {255, 255, 255}, Read_Ia8, Write_Ia8},
    {4, "RGB565", 4, 4, 32, Keeps::opaque_color, {31, 63, 31}, Read_Rgb565, Write_Rgb565},
    {5, "RGB5A3", 4, 4, 32, Keeps::color_alpha, {31, 31, 31}, Read_Rgb5A3, Write_Rgb5A3},
    {6, "RGBA8", 4, 4, 64, Keeps::color_alpha, {255, 255, 255}, Read_Rgba8, Write_Rgba8},
    {8, "C4", 8, 8, 32, Keeps::color_alpha, {255, 255, 255}, Read_C4, nullptr},
    {9, "C8", 8, 4, 32, Keeps::color_alpha, {255, 255, 255}, Read_C8, nullptr},
    {10, "C14X2", 4, 4, 32, Keeps::color_alpha, {255, 255, 255}, Read_C14X2, nullptr},
    {14, "CMPR", 8, 8, 32, Keeps::color_alpha, {255, 255, 255}, Read_Cmpr, nullptr},
};

template <typename Matches>
const TexelFormat* Find(Matches matches) {
    const auto* found = std::find_if(std::begin(Formats), std::end(Formats), matches);
    return found == std::end(Formats) ? nullptr : found;
}

bool Same_Letters(std::string_view a, std::string_view b) {
    const auto capital = [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return capital(x) == capital(y); });
}

std::size_t Blocks(std::size_t texels, std::size_t block) {
    return (texels + block - 1) / block;
}

}  // namespace

Texel Palette::At(std::size_t index) const {
    if (2 * index + 2 > bytes.size()) return {};
    const unsigned entry = Read_U16(bytes, 2 * index);
    if (format == 0) {
        return Grey(static_cast<std::uint8_t>(entry & 0xFF), static_cast<std::uint8_t>(entry >> 8));
    }
    return format == 1 ? From_Rgb565(entry) : From_Rgb5A3(entry);
}

std::size_t TexelFormat::Size_Of(std::size_t width, std::size_t height) const {
    return Blocks(width, block_width) * Blocks(height, block_height) * block_bytes;
}

std::span<const TexelFormat> Texel_Formats() {
    return Formats;
}

const TexelFormat* Find_Texel_Format(std::uint32_t number) {
    return Find([&](const TexelFormat& format) { return format.number == number; });
}

const TexelFormat* Find_Texel_Format(std::string_view name) {
    return Find([&](const TexelFormat& format) { return Same_Letters(format.name, name); });
}

Texel Seen_As(const TexelFormat& format, Texel texel) {
    const std::uint8_t alpha = texel[3];
    const auto luminance =
        static_cast<std::uint8_t>((299 * texel[0] + 587 * texel[1] + 114 * texel[2] + 500) / 1000);
    const auto before_black = [&](std::uint8_t value) {
        return static_cast<std::uint8_t>((value * alpha + 127) / 255);
    };
    switch (format.keeps) {
        case Keeps::intensity:
            return Grey(std::min(luminance, alpha), std::min(luminance, alpha));
        case Keeps::intensity_alpha:
            return Grey(luminance, alpha);
        case Keeps::opaque_color:
            return {before_black(texel[0]), before_black(texel[1]), before_black(texel[2]), 255};
        default:
            if (format.name == "RGB5A3" && alpha >= LeastOpaque) texel[3] = 255;
            return texel;
    }
}

bool Takes_Short_Code(Texel seen) {
    const auto has_all = [&](unsigned most) {
        return std::all_of(seen.begin(), seen.begin() + 3, [&](std::uint8_t value) {
            return Expand(Reduce(value, most), most) == value;
        });
    };
    return seen[3] != 255 || (has_all(15) && !has_all(31));
}

std::uint8_t Expand(unsigned stored, unsigned most) {
    switch (most) {
        case 7:
            return static_cast<std::uint8_t>(stored << 5 | stored << 2 | stored >> 1);
        case 15:
            return static_cast<std::uint8_t>(stored * 17);
        case 31:
            return static_cast<std::uint8_t>(stored << 3 | stored >> 2);
        case 63:
            return static_cast<std::uint8_t>(stored << 2 | stored >> 4);
        default:
            return static_cast<std::uint8_t>(stored);
    }
}

unsigned Reduce(unsigned value, unsigned most) {
    return (2 * value * most + 255) / 510;
}

}  // namespace bannersmith
