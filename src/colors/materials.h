// The colours of a layout's materials. A material is found by its 20-byte name field; its colours
// lie right behind it as signed 16-bit big-endian components, of which only the low bytes are used
// here.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "colors/scheme.h"

namespace bannersmith {

/// The names of all materials whose colours a scheme writes, element by element: one each, a text's
/// for each language. ASCII, fewer than 20 bytes.
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

/// The first two colours of a material; nothing when it is missing or ends beyond the data.
std::optional<ColorPair> Get_Mat_Colors(std::string_view data, std::string_view name);

/// `data` with the colours of a scheme file in its materials, element after element; a text's
/// colours go to the material of each language. Materials that the layout lacks are passed over. A
/// scheme that cannot be read whole changes nothing.
Result<std::string> Apply_Color_Scheme(std::string data, const std::u16string& scheme_file);

/// `data` with colours for some elements, by their places in `Elements`, in the same way, and also
/// in the materials of texts that serve all languages or Korean alone, as far as the layout's
/// section chain has them; `Apply_Color_Scheme` leaves these.
std::string Set_Colors(std::string data, const std::map<std::size_t, ColorPair>& colors);

/// The names of the materials to which `Set_Colors` would give the colours of an element.
std::vector<std::string> Materials_Of(std::string_view data, std::size_t element);

}  // namespace bannersmith
