// The IMET header in front of a channel's archive: the names that the console's menu shows, the
// sizes of the parts, and a checksum of itself.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"

namespace bannersmith {

/// The languages of the names, in the order of the header, by the codes that layouts use.
inline constexpr std::array<std::u16string_view, 10> NameLanguages = {
    u"JPN", u"ENG", u"GER", u"FRA", u"SPA", u"ITA", u"NED", u"CHS", u"CHT", u"KOR"};

/// A name has two lines of so many code units.
inline constexpr std::size_t NameLines = 2, LongestNameLine = 20;

/// Why a line of a name is too long, "Has 21 characters, where 20 have room"; empty where it is
/// not.
std::string Too_Long_For_A_Name(std::u16string_view line);

/// Lines by language.
using ChannelNames = std::array<std::array<std::u16string, NameLines>, NameLanguages.size()>;

/// Bytes of the parts' contents, unpacked and without header.
struct PartSizes {
    std::size_t icon = 0, banner = 0, sound = 0;
    bool operator==(const PartSizes&) const = default;
};

/// Where the header's block begins in the file `bytes`: at its start or behind a build tag of 64
/// bytes. Nothing in a file without the header.
std::optional<std::size_t> Find_Imet(std::string_view bytes);

/// The block, up to the archive behind it. Fails, with a reason and without a subject, where it is
/// cut off, of another version or size, or where its checksum does not hold: the menu would not
/// show the channel.
Result<std::string_view> Read_Imet(std::string_view bytes, std::size_t block);

/// What a block, as `Read_Imet` returns it, says.
ChannelNames Names_Of(std::string_view block);
PartSizes Sizes_Of(std::string_view block);

/// Whether a line of a name fills its place without a zero behind it.
bool Has_Endless_Name(std::string_view block);

/// The block with a line of a name, at most `LongestNameLine` code units. The line's other units
/// become zero; where the text stands there already, nothing changes.
std::string With_Name(std::string block, std::size_t language, std::size_t line,
                      std::u16string_view text);

/// The block with these sizes, and with its checksum made anew.
std::string Sealed(std::string block, const PartSizes& sizes);

}  // namespace bannersmith
