// Where the text of a text-box record ("txt1" section) lies.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "layout/format.h"

namespace bannersmith {

namespace record {

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
