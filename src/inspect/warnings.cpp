#include "inspect/warnings.h"

#include <algorithm>

#include "layout/numbers.h"
#include "layout/pieces.h"
#include "layout/record.h"

namespace {

constexpr std::size_t MaterialKey = 20;

std::string Number(std::size_t number) {
    return std::to_string(number);
}

void Check_Header(std::string_view data, const LayoutInfo& info, std::vector<std::string>& found) {
    if (info.header_length > info.file_size) {
        found.push_back("header length " + Number(info.header_length) + " is larger than the file");
    }
    const std::string_view behind = data.substr(std::min(info.header_length, data.size()));
    if (behind.find_first_not_of('\0') != behind.npos) {
        found.push_back("bytes other than zero behind the header length");
    }
}

bool Has_Zero_Inside(const TextBoxInfo& box) {
    const std::size_t end = box.text_offset + box.text_length;
    for (std::size_t at = box.text_offset; at + 3 < end; at += 2) {
        if (Read_U16(box.record, at) == 0) return true;
    }
    return false;
}

/// How the lengths of the record disagree with its bytes; empty when they fit.
std::string Length_Fault(const TextBoxInfo& box) {
    const std::size_t size = box.record.size();
    if (size < box.section_size) return "the record runs past the end of the layout";
    if (size < record::FieldsEnd || box.text_offset < record::FieldsEnd || box.text_offset > size) {
        return "the record has no room for its text";
    }
    const std::size_t stored = size - box.text_offset;
    if (box.text_length % 2 != 0) return "odd text length " + Number(box.text_length);
    if (box.text_length > stored) {
        return "text length " + Number(box.text_length) + " with " + Number(stored) +
               " bytes stored";
    }
    const auto tail = record::Tail_Length(box.record);
    if (!tail || size - *tail != box.text_offset) {
        return "an edit would take the text to begin at another place than the record says";
    }
    if (box.buffer_length < box.text_length) {
        return "buffer length " + Number(box.buffer_length) + " below text length " +
               Number(box.text_length);
    }
    return {};
}

void Check_Box(std::string_view data, const Pieces& pieces, const LayoutInfo& info,
               const TextBoxInfo& box, std::vector<std::string>& found) {
    const auto warn = [&](const std::string& what) {
        found.push_back("text box " + box.name + ": " + what);
    };
    const std::string fault = Length_Fault(box);
    if (!fault.empty()) {
        warn(fault);
    } else if (Has_Zero_Inside(box)) {
        warn("zero code units inside the text");
    }
    if (pieces.Find_Record(data, box.name, Pieces::Test::exact) != box.offset) {
        warn("another record, or none, is read under this name");
    }
    for (const TextBoxInfo& other : info.boxes) {
        if (other.name.size() > box.name.size() && other.name.starts_with(box.name)) {
            warn("its name begins the name " + other.name);
            return;
        }
    }
}

void Check_Material(std::string_view data, const MaterialInfo& material,
                    std::vector<std::string>& found) {
    std::string key = material.name;
    key.resize(MaterialKey, '\0');
    if (data.find(key) == material.offset) return;
    found.push_back("material " + material.name +
                    ": the first place with this name is another one");
}

}  // namespace

std::vector<std::string> Find_Warnings(std::string_view data, const LayoutInfo& info) {
    std::vector<std::string> found;
    Check_Header(data, info, found);
    found.insert(found.end(), info.faults.begin(), info.faults.end());
    for (const MaterialInfo& material : info.materials) Check_Material(data, material, found);
    const Pieces pieces(data);
    for (const TextBoxInfo& box : info.boxes) Check_Box(data, pieces, info, box, found);
    return found;
}
