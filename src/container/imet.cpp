#include "container/imet.h"

#include <algorithm>

#include "base/numbers.h"
#include "container/md5.h"

namespace bannersmith {

namespace {

using namespace std::string_view_literals;

constexpr auto Magic = "IMET"sv;
constexpr std::size_t BlockSize = 0x600, MagicAt = 0x40, SizeAt = 0x44, VersionAt = 0x48;
constexpr std::size_t IconAt = 0x4C, BannerAt = 0x50, SoundAt = 0x54, NamesAt = 0x5C;
constexpr std::size_t DigestAt = 0x5F0, DigestSize = 16, Version = 3;
constexpr std::size_t StoredUnits = LongestNameLine + 1;

std::size_t Line_At(std::size_t language, std::size_t line) {
    return NamesAt + (language * NameLines + line) * StoredUnits * 2;
}

std::u16string Line_Of(std::string_view block, std::size_t language, std::size_t line) {
    std::u16string text;
    const std::size_t at = Line_At(language, line);
    for (std::size_t i = 0; i < StoredUnits; ++i) {
        const char16_t unit = Read_U16(block, at + 2 * i);
        if (unit == 0) break;
        text += unit;
    }
    return text;
}

/// Of the block with zeros in the place of the digest and in front of the magic.
std::string Digest(std::string_view block) {
    std::string zeroed(block);
    zeroed.replace(0, MagicAt, MagicAt, '\0');
    zeroed.replace(DigestAt, DigestSize, DigestSize, '\0');
    return Md5(zeroed);
}

}  // namespace

std::string Too_Long_For_A_Name(std::u16string_view line) {
    if (line.size() <= LongestNameLine) return {};
    return "Has " + std::to_string(line.size()) + " characters, where 20 have room";
}

std::optional<std::size_t> Find_Imet(std::string_view bytes) {
    constexpr std::size_t TagSize = 0x40;
    for (const std::size_t block : {std::size_t{0}, TagSize}) {
        if (bytes.size() > block + MagicAt && bytes.substr(block + MagicAt).starts_with(Magic)) {
            return block;
        }
    }
    return std::nullopt;
}

Result<std::string_view> Read_Imet(std::string_view bytes, std::size_t block) {
    const std::string_view header = bytes.substr(block, BlockSize);
    if (header.size() < BlockSize) return Failure{u"", "IMET header is cut off"};
    if (Read_U32(header, SizeAt) != BlockSize || Read_U32(header, VersionAt) != Version) {
        return Failure{u"", "IMET header is of another size or version than the console's"};
    }
    if (header.substr(DigestAt, DigestSize) != Digest(header)) {
        return Failure{u"", "IMET checksum does not hold"};
    }
    return header;
}

ChannelNames Names_Of(std::string_view block) {
    ChannelNames names;
    for (std::size_t language = 0; language < names.size(); ++language) {
        for (std::size_t line = 0; line < NameLines; ++line) {
            names[language][line] = Line_Of(block, language, line);
        }
    }
    return names;
}

PartSizes Sizes_Of(std::string_view block) {
    return {Read_U32(block, IconAt), Read_U32(block, BannerAt), Read_U32(block, SoundAt)};
}

bool Has_Endless_Name(std::string_view block) {
    const ChannelNames names = Names_Of(block);
    return std::any_of(names.begin(), names.end(), [](const auto& lines) {
        return lines[0].size() > LongestNameLine || lines[1].size() > LongestNameLine;
    });
}

std::string With_Name(std::string block, std::size_t language, std::size_t line,
                      std::u16string_view text) {
    if (Line_Of(block, language, line) == text) return block;
    for (std::size_t i = 0; i < StoredUnits; ++i) {
        Write_U16(block, Line_At(language, line) + 2 * i, i < text.size() ? text[i] : u'\0');
    }
    return block;
}

std::string Sealed(std::string block, const PartSizes& sizes) {
    Write_U32(block, IconAt, static_cast<std::uint32_t>(sizes.icon));
    Write_U32(block, BannerAt, static_cast<std::uint32_t>(sizes.banner));
    Write_U32(block, SoundAt, static_cast<std::uint32_t>(sizes.sound));
    return block.replace(DigestAt, DigestSize, Digest(block));
}

}  // namespace bannersmith
