// The colours of a layout's materials. A material is found by its 20-byte name field; its colours
// lie right behind it as signed 16-bit big-endian components, of which only the low bytes are used
// here.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"
#include "colors/scheme.h"
#include "gameinfo/boxes.h"
#include "gameinfo/game_info.h"

namespace bannersmith {

/// Where the colours of an element lie: in one material, or, for a text, in one of each language.
struct ElementMaterial {
    std::u16string_view name;  ///< of a text's materials what stands in front of the language code
    std::optional<GameInfo::Selector> text = {};  ///< the field that the text belongs to
};

/// One for each element, in the order of `ElementKeys`.
inline constexpr std::array<ElementMaterial, ElementCount> ElementMaterials = {{
    {u"PFLine"},
    {SystemBox},
    {u"Shade"},
    {u"Back0"},
    {u"Back1"},
    {u"Back2"},
    {u"Back3"},
    {u"Back4"},
    {u"YearLine"},
    {u"PlayLine"},
    {box_prefix::Title, GameInfo::title},
    {box_prefix::Players, GameInfo::players},
    {box_prefix::Year, GameInfo::year},
    {box_prefix::Rating, GameInfo::rating},
    {u"VCPic"},
    {u"VCPicBase"},
    {u"VCPicSha"},
    {u"BackMask1"},
    {u"BackMask2"},
}};

/// The names of all materials whose colours a scheme can write: those of `ElementMaterials`, a
/// text's for each language. ASCII, fewer than 20 bytes.
std::vector<std::string> Written_Materials();

/// For each of `names` the first place in `data` where the name, filled up with zero bytes to 20,
/// occurs, which is where its colours are written; in one pass over the data.
std::vector<std::optional<std::size_t>> Find_Materials(std::string_view data,
                                                       std::span<const std::string> names);

/// Writes the first two colours of the material called `name`, at most 20 bytes of ASCII, into
/// `data` and returns a reference to it. The material is the first place where the name, filled up
/// with zero bytes to 20, occurs. Bytes 21 to 33 from there are written: the six low bytes, zero
/// for the high bytes between them and for the first colour's alpha. The high byte of the first red
/// stays. A material that is missing or would end beyond the data leaves `data` unchanged.
std::string& Set_Mat_Colors(std::string& data, std::string_view name, const ColorPair& colors);

/// Reads the first two colours of a material into `colors`. False, with `colors` as it was, when
/// the material is missing or ends beyond the data.
bool Get_Mat_Colors(std::string_view data, std::string_view name, ColorPair& colors);

/// Reads the scheme called `name` and writes its colours into the materials of `BrlytData`, element
/// after element; a scheme's text colours go to the material of each language. Materials that the
/// layout lacks are passed over. A scheme that cannot be read whole changes nothing.
Outcome Apply_Color_Scheme(std::u16string_view program_folder, std::u16string_view name);

}  // namespace bannersmith
