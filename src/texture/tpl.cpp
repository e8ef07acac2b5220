#include "texture/tpl.h"

#include <algorithm>

#include "base/numbers.h"

namespace bannersmith {

namespace {

constexpr std::uint32_t Magic = 0x0020AF30;
constexpr std::size_t FileHeaderSize = 12, CountAt = 4, TableAt = 8;

/// An entry of the table: the offsets of the image's header and of its palette's, 0 for none.
constexpr std::size_t EntrySize = 8, PaletteHeaderAt = 4;

constexpr std::size_t ImageHeaderSize = 0x24, WidthAt = 2, FormatAt = 4, DataAt = 8;
constexpr std::size_t MinFilterAt = 0x14, MagFilterAt = 0x18, MinLodAt = 0x21, MaxLodAt = 0x22;
constexpr std::size_t PaletteHeaderSize = 12, PaletteFormatAt = 4, PaletteDataAt = 8;
constexpr std::size_t NewHeaderAt = 0x14, NewDataAt = 0x40;
constexpr std::uint32_t Linear = 1;

/// The place of a part of `size` bytes that the word at `at` tells of.
std::optional<std::size_t> Place(std::string_view bytes, std::size_t at, std::size_t size) {
    const std::size_t place = Read_U32(bytes, at);
    if (place > bytes.size() || bytes.size() - place < size) return std::nullopt;
    return place;
}

/// Where the parts of a texture lie, all inside its bytes.
struct Places {
    TextureInfo info;
    std::size_t entry, header, data;

    std::size_t Size() const { return info.format->Size_Of(info.width, info.height); }

    /// Whether texels could be written without a header under them.
    bool Data_Stands_Alone() const {
        const auto apart = [&](std::size_t begin, std::size_t size) {
            return data >= begin + size || data + Size() <= begin;
        };
        return apart(0, FileHeaderSize) && apart(entry, EntrySize) &&
               apart(header, ImageHeaderSize);
    }
};

std::optional<Places> Find_Places(std::string_view bytes) {
    if (bytes.size() < FileHeaderSize || Read_U32(bytes, 0) != Magic ||
        Read_U32(bytes, CountAt) == 0) {
        return std::nullopt;
    }
    const auto entry = Place(bytes, TableAt, EntrySize);
    const auto header = entry ? Place(bytes, *entry, ImageHeaderSize) : std::nullopt;
    if (!header) return std::nullopt;
    const TexelFormat* format = Find_Texel_Format(Read_U32(bytes, *header + FormatAt));
    if (format == nullptr) return std::nullopt;
    Places places{
        {format, Read_U16(bytes, *header + WidthAt), Read_U16(bytes, *header)}, *entry, *header, 0};
    const auto data = Place(bytes, *header + DataAt, places.Size());
    if (!data) return std::nullopt;
    places.data = *data;
    return places;
}

bool Has_Palette(const TexelFormat& format) {
    return format.name.starts_with('C') && format.name != "CMPR";
}

Result<Palette> Read_Palette(std::string_view bytes, const Places& places) {
    if (!Has_Palette(*places.info.format)) return Palette{};
    const auto header = Place(bytes, places.entry + PaletteHeaderAt, PaletteHeaderSize);
    if (!header || *header == 0) return Failure{u"", "Texture has no palette"};
    const std::size_t size = std::size_t{2} * Read_U16(bytes, *header);
    const auto data = Place(bytes, *header + PaletteDataAt, size);
    const std::uint32_t format = Read_U32(bytes, *header + PaletteFormatAt);
    if (!data || format > 2) return Failure{u"", "Palette of the texture is broken"};
    return Palette{bytes.substr(*data, size), format};
}

Result<> Check_Sides(const TextureInfo& info) {
    const auto [least, most] = std::minmax(info.width, info.height);
    if (least > 0 && most <= LongestTextureSide) return {};
    return Failure{u"", "Texture of " + std::to_string(info.width) + " x " +
                            std::to_string(info.height) +
                            " texels, where each side has from 1 to 1024"};
}

/// Visits every texel of the picture and of the filler in its last blocks: the texel's column and
/// row, the place of its block and its index there.
template <typename Visit>
void Each_Texel(const TextureInfo& info, Visit visit) {
    const TexelFormat& format = *info.format;
    std::size_t block = 0;
    for (std::size_t top = 0; top < info.height; top += format.block_height) {
        for (std::size_t left = 0; left < info.width; left += format.block_width) {
            for (std::size_t i = 0; i < format.block_width * format.block_height; ++i) {
                visit(left + i % format.block_width, top + i / format.block_width, block, i);
            }
            block += format.block_bytes;
        }
    }
}

/// Fills `data`, the image's bytes. Filler repeats the texels at the edge.
void Write_Texels(std::span<char> data, const TextureInfo& info, const Picture& picture) {
    const TexelFormat& format = *info.format;
    Each_Texel(info, [&](std::size_t x, std::size_t y, std::size_t block, std::size_t index) {
        const std::size_t at =
            TexelSize * (std::min(y, info.height - 1) * info.width + std::min(x, info.width - 1));
        Texel texel;
        std::copy_n(picture.texels.begin() + static_cast<std::ptrdiff_t>(at), TexelSize,
                    texel.begin());
        format.write(data.subspan(block, format.block_bytes), index, Seen_As(format, texel));
    });
}

}  // namespace

std::string TextureInfo::Text() const {
    return std::string(format->name) + " " + std::to_string(width) + " x " + std::to_string(height);
}

std::optional<TextureInfo> Describe_Texture(std::string_view bytes) {
    const auto places = Find_Places(bytes);
    return places ? std::optional(places->info) : std::nullopt;
}

Result<Picture> Decode_Texture(std::string_view bytes) {
    const auto places = Find_Places(bytes);
    if (!places) return Failure{u"", "Is no texture, or is cut off"};
    const auto& [format, width, height] = places->info;
    if (const auto checked = Check_Sides(places->info); !checked) return checked.Why();
    const auto palette = Read_Palette(bytes, *places);
    if (!palette) return palette.Why();
    const std::string_view data = bytes.substr(places->data, places->Size());
    Picture picture{width, height, std::string(TexelSize * width * height, '\0')};
    Each_Texel(places->info, [&](std::size_t x, std::size_t y, std::size_t block,
                                 std::size_t index) {
        if (x >= picture.width || y >= picture.height) return;
        const TexelFormat& texels = *places->info.format;
        const Texel texel = texels.read(data.substr(block, texels.block_bytes), index, *palette);
        std::copy(texel.begin(), texel.end(),
                  picture.texels.begin() +
                      static_cast<std::ptrdiff_t>(TexelSize * (y * picture.width + x)));
    });
    return picture;
}

Result<> Can_Be_Made(const TextureInfo& wanted) {
    if (wanted.format->write != nullptr) return Check_Sides(wanted);
    return Failure{
        u"", "Texture in the format " + std::string(wanted.format->name) + ", which is only read"};
}

std::string Encode_Texture(const TexelFormat& format, const Picture& picture) {
    const TextureInfo info{&format, picture.width, picture.height};
    std::string texture(NewDataAt + format.Size_Of(picture.width, picture.height), '\0');
    Write_U32(texture, 0, Magic);
    Write_U32(texture, CountAt, 1);
    Write_U32(texture, TableAt, FileHeaderSize);
    Write_U32(texture, FileHeaderSize, NewHeaderAt);
    Write_U16(texture, NewHeaderAt, static_cast<std::uint16_t>(picture.height));
    Write_U16(texture, NewHeaderAt + WidthAt, static_cast<std::uint16_t>(picture.width));
    Write_U32(texture, NewHeaderAt + FormatAt, format.number);
    Write_U32(texture, NewHeaderAt + DataAt, NewDataAt);
    Write_U32(texture, NewHeaderAt + MinFilterAt, Linear);
    Write_U32(texture, NewHeaderAt + MagFilterAt, Linear);
    Write_Texels(std::span(texture).subspan(NewDataAt), info, picture);
    return texture;
}

Result<std::string> With_Picture(std::string texture, const Picture& picture) {
    const auto places = Find_Places(texture);
    if (texture[places->header + MinLodAt] != texture[places->header + MaxLodAt]) {
        return Failure{u"", "Texture has levels of detail, which are only read"};
    }
    if (!places->Data_Stands_Alone()) return Failure{u"", "Texture is broken"};
    Write_Texels(std::span(texture).subspan(places->data, places->Size()), places->info, picture);
    return texture;
}

}  // namespace bannersmith
