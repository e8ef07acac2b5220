// Every offset of the layout format that the system reads or writes, in bytes. All numbers of a
// layout are unsigned and big-endian, unless said otherwise.
#pragma once

#include <cstddef>
#include <string_view>

namespace bannersmith {

/// The header at the start of the file.
namespace header {
inline constexpr std::string_view Magic = "RLYT";
inline constexpr std::size_t FileLength = 0x08;  ///< 4 bytes; padding behind the end not counted
inline constexpr std::size_t Length = 0x0C;      ///< 2 bytes: where the first section begins
inline constexpr std::size_t Size = 0x10;        ///< of the whole header
inline constexpr std::size_t LengthEnd = FileLength + 4;  ///< shorter data has no file length
}  // namespace header

/// A section, from its first byte: a tag of four letters, its size, its body.
namespace section {
inline constexpr std::size_t Size = 0x04;  ///< 4 bytes, tag and size included
inline constexpr std::size_t Body = 0x08;
inline constexpr std::string_view Materials = "mat1", Group = "grp1";
}  // namespace section

/// A text box, from the first byte of its section, also called its record.
namespace record {
inline constexpr std::string_view Tag = "txt1";
inline constexpr std::size_t SectionSize = section::Size;
inline constexpr std::size_t Name = 0x0C;  ///< `NameBytes` bytes, zero bytes behind the name
inline constexpr std::size_t NameBytes = 0x10;
inline constexpr std::size_t ListedNameBytes = 20;  ///< as many as the manual editor lists
inline constexpr std::size_t BufferLength = 0x4C;   ///< 2 bytes: room for the text, in bytes
inline constexpr std::size_t TextLength = 0x4E;     ///< 2 bytes: text and terminator, in bytes
inline constexpr std::size_t FieldsEnd = 0x50;      ///< no text can begin before this offset
inline constexpr std::size_t TextOffset = 0x58;     ///< 4 bytes: where the text begins
}  // namespace record

/// The list of materials, from the first byte of its section, and one of them, from its name.
namespace material {
inline constexpr std::size_t Count = section::Body;  ///< 2 bytes
inline constexpr std::size_t List = 0x0C;            ///< 4 bytes each: offset from the section
inline constexpr std::size_t NameBytes = 20;
inline constexpr std::size_t FirstColor = 0x14;   ///< red, green, blue, alpha: signed 16 bits each
inline constexpr std::size_t SecondColor = 0x1C;  ///< the same
inline constexpr std::size_t ColorsEnd = 0x24;
inline constexpr std::size_t Smallest = 0x40;  ///< no material is shorter
}  // namespace material

/// A group of panes, from the first byte of its section.
namespace group {
inline constexpr std::size_t Name = section::Body;
inline constexpr std::size_t NameBytes = 0x10;  ///< of the group and of each member
inline constexpr std::size_t Count = 0x18;      ///< 2 bytes
inline constexpr std::size_t Members = 0x1C;
}  // namespace group

/// What a layout ends with: the closing group, or, in one without, an empty root group.
namespace ending {
inline constexpr std::string_view ClosingGroup{"gre1\0\0\0\x08", 8};
inline constexpr std::string_view EmptyRootGroup{"RootGroup\0\0\0\0\0\0\0\0\0\0\0", 20};
}  // namespace ending

}  // namespace bannersmith
