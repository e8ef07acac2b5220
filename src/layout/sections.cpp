#include "layout/sections.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"
#include "layout/record.h"
#include "layout/text_box.h"

namespace bannersmith {

namespace {

constexpr std::size_t SectionHeader = 8, GroupNames = 28, NameWidth = 16;
constexpr std::size_t MaterialName = 20, MaterialColors = 16, MaterialList = 12;
constexpr std::size_t SmallestMaterial = 0x40;
constexpr std::size_t TextOffsetField = 0x58;

std::string Zero_Ended(std::string_view bytes) {
    return std::string(bytes.substr(0, bytes.find('\0')));
}

std::u16string Shown_Text(std::string_view bytes) {
    std::size_t end = 0;
    while (end + 1 < bytes.size() && Read_U16(bytes, end) != 0) end += 2;
    return Decode_Text(bytes.substr(0, end));
}

/// A damaged file can have one for every few bytes, of which nobody reads all.
void Add_Fault(LayoutInfo& info, std::string fault) {
    constexpr std::size_t MostFaults = 1000;
    if (info.faults.size() <= MostFaults) info.faults.push_back(std::move(fault));
}

void Read_Text_Box(const ChainSection& section, LayoutInfo& info) {
    if (section.bytes.size() < record::FieldsEnd) {
        Add_Fault(info, "text box at " + Hex(section.offset) + ": no room for its fields");
        return;
    }
    TextBoxInfo box;
    box.offset = section.offset;
    box.record = section.bytes;
    box.section_size = Read_U32(section.bytes, record::SectionSize);
    box.name = Zero_Ended(box.record.substr(record::Name, NameWidth));
    if (box.record.size() >= TextOffsetField + 4) {
        box.buffer_length = Read_U16(box.record, record::BufferLength);
        box.text_length = Read_U16(box.record, record::TextLength);
        box.text_offset = Read_U32(box.record, TextOffsetField);
        const std::size_t begin = std::min(box.text_offset, box.record.size());
        box.text = Shown_Text(box.record.substr(begin, box.text_length));
    }
    info.boxes.push_back(box);
}

void Read_Materials(const ChainSection& section, LayoutInfo& info) {
    const std::string_view bytes = section.bytes;
    const std::size_t count = bytes.size() >= MaterialList ? Read_U16(bytes, SectionHeader) : 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = MaterialList + 4 * i;
        const std::size_t at = entry + 4 <= bytes.size() ? Read_U32(bytes, entry) : bytes.size();
        const bool outside = at > bytes.size() || bytes.size() - at < MaterialName + MaterialColors;
        if (outside || i * SmallestMaterial > bytes.size()) {
            // The rest of a list that is no list says nothing more, and can be long.
            Add_Fault(info, "material " + std::to_string(i) + " lies outside its section");
            return;
        }
        MaterialInfo material{
            section.offset + at, Zero_Ended(bytes.substr(at, MaterialName)), {}, {}};
        for (std::size_t c = 0; c < 4; ++c) {
            const std::size_t colors = at + MaterialName + 2 * c;
            material.first[c] = static_cast<std::int16_t>(Read_U16(bytes, colors));
            material.second[c] = static_cast<std::int16_t>(Read_U16(bytes, colors + 8));
        }
        info.materials.push_back(material);
    }
}

void Read_Group(const ChainSection& section, LayoutInfo& info) {
    if (section.bytes.size() < GroupNames) return;
    GroupInfo group{Zero_Ended(section.bytes.substr(SectionHeader, NameWidth)), {}};
    const std::size_t count = Read_U16(section.bytes, GroupNames - 4);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = GroupNames + NameWidth * i;
        if (at + NameWidth > section.bytes.size()) break;
        group.members.push_back(Zero_Ended(section.bytes.substr(at, NameWidth)));
    }
    info.groups.push_back(group);
}

void Read_Section(const ChainSection& section, LayoutInfo& info) {
    if (section.tag == record::Tag) Read_Text_Box(section, info);
    if (section.tag == "mat1") Read_Materials(section, info);
    if (section.tag == "grp1") Read_Group(section, info);
}

}  // namespace

std::string Hex(std::size_t number) {
    std::string digits;
    do {
        digits.insert(digits.begin(), "0123456789ABCDEF"[number % 16]);
        number /= 16;
    } while (number > 0);
    return "0x" + digits;
}

LayoutInfo Read_Layout(std::string_view data) {
    LayoutInfo info;
    info.file_size = data.size();
    info.header_length = Read_U32(data, 8);
    const std::string_view layout = data.substr(0, info.header_length);
    std::size_t at = Read_U16(data, 12);
    while (at + SectionHeader <= layout.size()) {
        const std::size_t size = Read_U32(layout, at + 4);
        const ChainSection section{at, layout.substr(at, 4), layout.substr(at, size)};
        if (size < SectionHeader) {
            Add_Fault(info, "section at " + Hex(at) + " has size " + std::to_string(size));
            return info;
        }
        Read_Section(section, info);
        at += size;
    }
    if (at != layout.size()) Add_Fault(info, "the last section does not end with the layout");
    return info;
}

}  // namespace bannersmith
