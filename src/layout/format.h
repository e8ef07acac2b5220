// Every offset of the layout format that the system reads or writes, in bytes. All numbers of a
// layout are unsigned and big-endian, unless said otherwise.
#pragma once

#include <cstddef>
#include <string_view>

namespace bannersmith {

/// The header at the start of the file.
namespace header {
inline constexpr std::string_view Magic = "RLYT";
inline constexpr std::size_t Version = 0x06;     ///< 2 bytes
inline constexpr std::size_t FileLength = 0x08;  ///< 4 bytes; padding behind the end not counted
inline constexpr std::size_t Length = 0x0C;      ///< 2 bytes: where the first section begins
inline constexpr std::size_t Size = 0x10;        ///< of the whole header
inline constexpr std::size_t LengthEnd = FileLength + 4;  ///< shorter data has no file length
}  // namespace header

/// A section, from its first byte: a tag of four letters, its size, its body.
namespace section {
inline constexpr std::size_t Size = 0x04;  ///< 4 bytes, tag and size included
inline constexpr std::size_t Body = 0x08;
inline constexpr std::string_view Screen = "lyt1", Textures = "txl1", Fonts = "fnl1";
inline constexpr std::string_view Materials = "mat1", Group = "grp1";
inline constexpr std::string_view OpenPanes = "pas1", ClosePanes = "pae1";
inline constexpr std::string_view OpenGroups = "grs1", CloseGroups = "gre1";
}  // namespace section

/// The whole screen, from the first byte of its section.
namespace screen {
inline constexpr std::size_t IsCentred = section::Body;  ///< 1: 0,0 is its middle, else a corner
}  // namespace screen

/// A list of names, of textures or fonts, from the first byte of its section.
namespace name_list {
inline constexpr std::size_t Count = section::Body;  ///< 2 bytes
inline constexpr std::size_t List = 0x0C;  ///< 8 bytes each, the first 4 the place from here
inline constexpr std::size_t EntryBytes = 8;
}  // namespace name_list

/// A pane of any kind, from the first byte of its section. Numbers of 4 bytes are IEEE 754 ones.
namespace pane {
inline constexpr std::string_view Plain = "pan1", Picture = "pic1", Window = "wnd1",
                                  Bounds = "bnd1";
inline constexpr std::size_t Flags = 0x08;
inline constexpr unsigned IsVisible = 1, PassesAlpha = 2, KeepsShape = 4;  ///< bits of the flags
inline constexpr std::size_t BasePosition = 0x09;  ///< row x 3 + column of the point at its place
inline constexpr std::size_t Alpha = 0x0A;
inline constexpr std::size_t Name = 0x0C;
inline constexpr std::size_t NameBytes = 0x10;
inline constexpr std::size_t Translation = 0x24;  ///< x, y, z
inline constexpr std::size_t Rotation = 0x30;     ///< about x, y, z, in degrees
inline constexpr std::size_t Scale = 0x3C;        ///< x, y
inline constexpr std::size_t Extent = 0x44;       ///< width, height
inline constexpr std::size_t End = 0x4C;
}  // namespace pane

/// What fills a rectangle, in a picture behind the pane, in a window at its content's place.
namespace surface {
inline constexpr std::size_t Colors =
    0x00;  ///< RGBA of left top, right top, left bottom, right one
inline constexpr std::size_t Material = 0x10;  ///< 2 bytes
inline constexpr std::size_t SetCount = 0x12;  ///< 1 byte
inline constexpr std::size_t Sets = 0x14;      ///< s and t of each corner, in the colours' order
inline constexpr std::size_t SetBytes = 32;
}  // namespace surface

/// A window, from the first byte of its section.
namespace window {
inline constexpr std::size_t Inflation = pane::End;  ///< of the content: left, right, top, bottom
inline constexpr std::size_t FrameCount = 0x5C;      ///< 1 byte
inline constexpr std::size_t Content = 0x60;         ///< 4 bytes: its place in the section
inline constexpr std::size_t Frames = 0x64;          ///< 4 bytes: of a list of 4 bytes a frame
inline constexpr std::size_t FrameFlip = 2;          ///< behind a frame's material, 2 bytes
}  // namespace window

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
inline constexpr std::size_t Material = 0x50, Font = 0x52;  ///< 2 bytes each: which of the list
inline constexpr std::size_t Position = 0x54;    ///< row x 3 + column of the text in the box
inline constexpr std::size_t TextOffset = 0x58;  ///< 4 bytes: where the text begins
inline constexpr std::size_t TopColor = 0x5C, BottomColor = 0x60;  ///< RGBA
inline constexpr std::size_t FontSize = 0x64;                      ///< width, height
inline constexpr std::size_t CharacterSpace = 0x6C, LineSpace = 0x70;
inline constexpr std::size_t UsualTextOffset = 0x74;
}  // namespace record

/// The list of materials, from the first byte of its section, and one of them, from its name.
namespace material {
inline constexpr std::size_t Count = section::Body;  ///< 2 bytes
inline constexpr std::size_t List = 0x0C;            ///< 4 bytes each: offset from the section
inline constexpr std::size_t NameBytes = 20;
inline constexpr std::size_t FirstColor = 0x14;   ///< red, green, blue, alpha: signed 16 bits each
inline constexpr std::size_t SecondColor = 0x1C;  ///< the same
inline constexpr std::size_t ColorsEnd = 0x24;
inline constexpr std::size_t ThirdColor = 0x24;  ///< the same
inline constexpr std::size_t Constants = 0x2C;   ///< four RGBA colours
inline constexpr std::size_t Counts = 0x3C;      ///< 4 bytes: how many of what stands behind it
inline constexpr std::size_t Smallest = 0x40;    ///< no material is shorter
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
