// The section chain of a layout, followed by its size fields: a read-only view for whoever shows or
// checks a layout. The editor finds what it needs by searching.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace bannersmith {

/// One section: where it begins and its bytes, tag and size field included.
struct ChainSection {
    std::size_t offset = 0;
    std::string_view tag;
    std::string_view bytes;
};

/// The chain as far as it goes.
struct SectionChain {
    std::vector<ChainSection> sections;
    std::string fault;  ///< what breaks it; empty for a whole one
};

/// The sections of `data`, a file of the family that layouts belong to: its own length at offset 8,
/// the place of its first section at 12, each section's size behind its tag. `data` has at least
/// that header. A section that the data ends in is the last one, as far as it is there.
SectionChain Read_Chain(std::string_view data);

/// A text box as its own fields describe it.
struct TextBoxInfo {
    std::size_t offset = 0;
    std::string name;
    std::u16string text;  ///< up to the first zero code unit, line feeds shown as "^"
    unsigned buffer_length = 0, text_length = 0;
    std::size_t text_offset = 0;   ///< where the record says that its text begins
    std::size_t section_size = 0;  ///< as stored, also where the data ends before
    std::string_view record;       ///< what the data holds of it
};

/// A material by its name field and the two colours behind it.
struct MaterialInfo {
    std::size_t offset = 0;  ///< of the name, from the start of the data
    std::string name;
    std::array<std::int16_t, 4> first{}, second{};  ///< red, green, blue, alpha
};

/// A group of panes.
struct GroupInfo {
    std::string name;
    std::vector<std::string> members;  ///< the panes' names
};

/// What a layout file holds, in file order, as far as it is sound. The records of its text boxes
/// point into the data.
struct LayoutInfo {
    std::size_t file_size = 0;      ///< bytes of the file
    std::size_t header_length = 0;  ///< bytes of the layout as its header says, offset 8
    std::vector<TextBoxInfo> boxes;
    std::vector<MaterialInfo> materials;
    std::vector<GroupInfo> groups;
    std::vector<std::string> faults;  ///< what is wrong with the chain itself
};

/// "0x" and the number's digits, as the faults name places.
std::string Hex(std::size_t number);

/// Follows the chain of `data`, for which `Is_Layout` holds, as far as it goes.
LayoutInfo Read_Layout(std::string_view data);

}  // namespace bannersmith
