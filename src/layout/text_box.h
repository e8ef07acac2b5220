// Reading and writing the texts of a layout's text boxes. A layout is one string of bytes, found by
// searching and changed by replacing stretches of it; nothing here keeps a parsed form of it.
//
// Names are byte strings compared byte for byte. Display texts are UTF-16 code units, lone
// surrogates included, in which "^" stands for a line feed.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "layout/pieces.h"

namespace bannersmith {

/// The display text of the box called `name`, or an empty text where there is no such box or its
/// record cannot be read. The box is the last piece of the data split at "txt1" that carries the
/// name followed by two zero bytes, but its record is looked for from the front: the first one with
/// the same section size, the same four bytes after it and the same name is the one read.
std::u16string Get_Text(std::string_view data, std::string_view name);

/// What `Get_Text` returns for each of `names`, in time that grows with the data and the names, not
/// with their product.
std::vector<std::u16string> Get_Texts(std::string_view data,
                                      std::span<const std::string_view> names);

/// `data` with the text of one box replaced, its section size, buffer length and text length made
/// right, and the record padded to a multiple of four bytes. The box is the last piece whose name
/// begins with `name`; a name ending in "_NONE" stands for the language-neutral box of its kind.
/// Every record with exactly the same bytes is replaced as well. An empty text, a missing box, a
/// record that cannot be read and a text that needs more than 65,535 bytes leave `data` unchanged.
/// The file length in the header is not touched.
std::string Set_Text(std::string data, std::string_view name, std::u16string_view text);

/// One text to be written: the name and the text that `Set_Text` takes, and how the box is told by
/// the name. For the exact test a name ending in "_NONE" is one like all others.
struct BoxText {
    std::string name;
    std::u16string text;
    Pieces::Test test = Pieces::Test::prefix;
};

/// The same as `Set_Text` for each entry in turn, each on the result of the one before, but looking
/// for the data's pieces only once.
std::string Set_Texts(std::string data, std::span<const BoxText> texts);

/// Whether `Set_Texts` finds a record for a text of that name and test that can hold one.
bool Has_Text_Box(std::string_view data, std::string_view name, Pieces::Test test);

/// Whether a text for that name and test is written into the record that `Get_Text` reads for
/// `read_name`.
bool Is_Written_Where_It_Is_Read(std::string_view data, std::string_view name, Pieces::Test test,
                                 std::string_view read_name);

/// Passes each named box once through the writer: its text is read with `Get_Text` and written back
/// with `Set_Text`, name after name, looking for the data's pieces only once.
std::string Rewrite_Texts(std::string data, std::span<const std::string> names);

/// The names of the data's text boxes in the order of their records, the same name as often as it
/// occurs: for each "txt1" the 20 bytes where a record has its name, or fewer at the end of the
/// piece, without their zero bytes.
std::vector<std::string> Text_Box_Names(std::string_view data);

/// The display text of stored bytes: pairs of bytes, high byte first, line feeds shown as "^", zero
/// code units left out. A last byte without a partner is left out too.
std::u16string Decode_Text(std::string_view bytes);

/// The stored bytes of a display text: each code unit high byte first, "^" stored as a line feed.
/// No terminator.
std::string Encode_Text(std::u16string_view text);

/// The remainder of `value` divided by `divisor`, both positive.
std::int16_t Get_Remainder(int divisor, int value);

}  // namespace bannersmith
