#include "layout/sections.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"
#include "layout/record.h"
#include "layout/text_box.h"

namespace bannersmith {

namespace {

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

void Read_Text_Box(const ChainSection& part, LayoutInfo& info) {
    if (part.bytes.size() < record::FieldsEnd) {
        Add_Fault(info, "text box at " + Hex(part.offset) + ": no room for its fields");
        return;
    }
    TextBoxInfo box;
    box.offset = part.offset;
    box.record = part.bytes;
    box.section_size = Read_U32(part.bytes, record::SectionSize);
    box.name = Zero_Ended(box.record.substr(record::Name, record::NameBytes));
    if (box.record.size() >= record::TextOffset + 4) {
        box.buffer_length = Read_U16(box.record, record::BufferLength);
        box.text_length = Read_U16(box.record, record::TextLength);
        box.text_offset = Read_U32(box.record, record::TextOffset);
        const std::size_t begin = std::min(box.text_offset, box.record.size());
        box.text = Shown_Text(box.record.substr(begin, box.text_length));
    }
    info.boxes.push_back(box);
}

void Read_Materials(const ChainSection& part, LayoutInfo& info) {
    const std::string_view bytes = part.bytes;
    const std::size_t count = bytes.size() >= material::List ? Read_U16(bytes, material::Count) : 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = material::List + 4 * i;
        const std::size_t at = entry + 4 <= bytes.size() ? Read_U32(bytes, entry) : bytes.size();
        const bool outside = at > bytes.size() || bytes.size() - at < material::ColorsEnd;
        if (outside || i * material::Smallest > bytes.size()) {
            // The rest of a list that is no list says nothing more, and can be long.
            Add_Fault(info, "material " + std::to_string(i) + " lies outside its section");
            return;
        }
        MaterialInfo found{
            part.offset + at, Zero_Ended(bytes.substr(at, material::NameBytes)), {}, {}};
        for (std::size_t c = 0; c < 4; ++c) {
            const std::size_t colors = at + material::FirstColor + 2 * c;
            found.first[c] = static_cast<std::int16_t>(Read_U16(bytes, colors));
            found.second[c] = static_cast<std::int16_t>(
                Read_U16(bytes, colors + material::SecondColor - material::FirstColor));
        }
        info.materials.push_back(found);
    }
}

void Read_Group(const ChainSection& part, LayoutInfo& info) {
    if (part.bytes.size() < group::Members) return;
    GroupInfo found{Zero_Ended(part.bytes.substr(group::Name, group::NameBytes)), {}};
    const std::size_t count = Read_U16(part.bytes, group::Count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = group::Members + group::NameBytes * i;
        if (at + group::NameBytes > part.bytes.size()) break;
        found.members.push_back(Zero_Ended(part.bytes.substr(at, group::NameBytes)));
    }
    info.groups.push_back(found);
}

void Read_Section(const ChainSection& part, LayoutInfo& info) {
    if (part.tag == record::Tag) Read_Text_Box(part, info);
    if (part.tag == section::Materials) Read_Materials(part, info);
    if (part.tag == section::Group) Read_Group(part, info);
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

SectionChain Read_Chain(std::string_view data) {
    SectionChain chain;
    const std::string_view layout = data.substr(0, Read_U32(data, header::FileLength));
    std::size_t at = Read_U16(data, header::Length);
    while (at + section::Body <= layout.size()) {
        const std::size_t size = Read_U32(layout, at + section::Size);
        if (size < section::Body) {
            chain.fault = "section at " + Hex(at) + " has size " + std::to_string(size);
            return chain;
        }
        chain.sections.push_back({at, layout.substr(at, 4), layout.substr(at, size)});
        at += size;
    }
    if (at != layout.size()) chain.fault = "the last section does not end with the layout";
    return chain;
}

LayoutInfo Read_Layout(std::string_view data) {
    LayoutInfo info;
    info.file_size = data.size();
    info.header_length = Read_U32(data, header::FileLength);
    const SectionChain chain = Read_Chain(data);
    for (const ChainSection& part : chain.sections) Read_Section(part, info);
    if (!chain.fault.empty()) Add_Fault(info, chain.fault);
    return info;
}

}  // namespace bannersmith
