#include "texture/tpl.h"

#include <algorithm>
#include <iterator>

#include "base/numbers.h"

namespace bannersmith {

namespace {

constexpr std::uint32_t Magic = 0x0020AF30;
constexpr std::size_t FileHeaderSize = 12, CountAt = 4, TableAt = 8;
constexpr std::size_t ImageHeaderSize = 0x24, WidthAt = 2, FormatAt = 4, DataAt = 8;

/// How a format stores its texels: in blocks of so many texels, of so many bytes.
struct Format {
    std::uint32_t number;
    std::string_view name;
    std::size_t block_width, block_height, block_bytes;
};

constexpr Format Formats[] = {
    {0, "I4", 8, 8, 32},     {1, "I8", 8, 4, 32},     {2, "IA4", 8, 4, 32},   {3, "IA8", 4, 4, 32},
    {4, "RGB565", 4, 4, 32}, {5, "RGB5A3", 4, 4, 32}, {6, "RGBA8", 4, 4, 64}, {8, "C4", 8, 8, 32},
    {9, "C8", 8, 4, 32},     {10, "C14X2", 4, 4, 32}, {14, "CMPR", 8, 8, 32},
};

std::size_t Blocks(std::size_t texels, std::size_t block) {
    return (texels + block - 1) / block;
}

/// The place of a part of `size` bytes that the word at `at` tells of.
std::optional<std::size_t> Place(std::string_view bytes, std::size_t at, std::size_t size) {
    const std::size_t place = Read_U32(bytes, at);
    if (place > bytes.size() || bytes.size() - place < size) return std::nullopt;
    return place;
}

}  // namespace

std::optional<TextureInfo> Describe_Texture(std::string_view bytes) {
    if (bytes.size() < FileHeaderSize || Read_U32(bytes, 0) != Magic ||
        Read_U32(bytes, CountAt) == 0) {
        return std::nullopt;
    }
    const auto table = Place(bytes, TableAt, 8);
    const auto image = table ? Place(bytes, *table, ImageHeaderSize) : std::nullopt;
    if (!image) return std::nullopt;
    const std::uint32_t number = Read_U32(bytes, *image + FormatAt);
    const auto* format = std::find_if(std::begin(Formats), std::end(Formats),
                                      [&](const Format& each) { return each.number == number; });
    if (format == std::end(Formats)) return std::nullopt;
    const std::size_t height = Read_U16(bytes, *image), width = Read_U16(bytes, *image + WidthAt);
    const std::size_t size = Blocks(width, format->block_width) *
                             Blocks(height, format->block_height) * format->block_bytes;
    if (!Place(bytes, *image + DataAt, size)) return std::nullopt;
    return TextureInfo{format->name, width, height};
}

}  // namespace bannersmith
