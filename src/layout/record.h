// A text-box record ("txt1" section): where its fields lie and where its text begins.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace bannersmith {

/// Offsets from the first byte of the record's tag. All numbers are unsigned and big-endian.
namespace record {
inline constexpr std::string_view Tag = "txt1";    ///< 4 bytes: what each record begins with
inline constexpr std::size_t SectionSize = 0x04;   ///< 4 bytes: length of the record, tag included
inline constexpr std::size_t Name = 0x0C;          ///< the box's name, zero bytes behind it
inline constexpr std::size_t BufferLength = 0x4C;  ///< 2 bytes: room for the text, in bytes
inline constexpr std::size_t TextLength = 0x4E;    ///< 2 bytes: text and terminator, in bytes
inline constexpr std::size_t FieldsEnd = 0x50;     ///< no text can begin before this offset

/// The bytes at the end of `record` that hold its text, terminator and padding: the text length,
/// and two more where the record ends in four zero bytes, which is how a padded text ends. Nothing
/// for a record that cannot be read: too short for its length fields, an odd text length, or a text
/// that would reach back into those fields.
std::optional<std::size_t> Tail_Length(std::string_view record);

/// The record that starts at `offset` of `data`: as many bytes as its section size says, or what is
/// left of the data. Empty when not even the section size is there.
std::string_view At(std::string_view data, std::size_t offset);
}  // namespace record

}  // namespace bannersmith
