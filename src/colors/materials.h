// The colours of a layout's materials. A material is found by its 20-byte name field; its colours
// lie right behind it as signed 16-bit big-endian components, of which only the low bytes are used
// here.
#pragma once

#include <string>
#include <string_view>

#include "colors/scheme.h"
#include "platform/failure.h"

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
