#include "inspect/warnings.h"

#include <algorithm>
#include <map>
#include <span>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "colors/materials.h"
#include "gameinfo/boxes.h"
#include "layout/pieces.h"
#include "layout/record.h"

namespace bannersmith {

namespace {

constexpr std::size_t MostWarnings = 1000;

std::string Number(std::size_t number) {
    return std::to_string(number);
}

std::string Shown_Name(std::string_view name) {
    return Printable(From_Utf8(name));
}

void Check_Header(std::string_view data, const LayoutInfo& info, std::vector<Warning>& found) {
    if (info.header_length > info.file_size) {
        found.push_back(
            {"header length " + Number(info.header_length) + " is larger than the file"});
    }
    const std::string_view behind = data.substr(std::min(info.header_length, data.size()));
    if (behind.find_first_not_of('\0') != behind.npos) {
        found.push_back({"bytes other than zero behind the header length"});
    }
}

/// The text box whose record holds the place, if one does. They are in the order of their offsets.
const TextBoxInfo* Box_At(std::span<const TextBoxInfo> boxes, std::size_t place) {
    const auto behind =
        std::upper_bound(boxes.begin(), boxes.end(), place,
                         [](std::size_t at, const TextBoxInfo& box) { return at < box.offset; });
    if (behind == boxes.begin()) return nullptr;
    const TextBoxInfo& box = *std::prev(behind);
    return place - box.offset < box.record.size() ? &box : nullptr;
}

/// Reading leaves zero units out. At the end they are no loss.
bool Has_Zero_Inside(const TextBoxInfo& box) {
    const std::size_t end = std::min(box.text_offset + box.text_length, box.record.size());
    bool zero = false;
    for (std::size_t at = box.text_offset; at + 1 < end; at += 2) {
        const bool is_zero = Read_U16(box.record, at) == 0;
        if (zero && !is_zero) return true;
        zero = zero || is_zero;
    }
    return false;
}

/// How the lengths of the record disagree with its bytes; empty when they fit.
std::string Length_Fault(const TextBoxInfo& box) {
    const std::size_t size = box.record.size();
    if (size < box.section_size) return "the record runs past the end of the layout";
    if (box.text_offset < record::FieldsEnd || box.text_offset > size) {
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
    return Has_Zero_Inside(box) ? "zero code units inside the text" : "";
}

/// Where lookups of a box's name lead.
struct Hits {
    std::optional<std::size_t> read, written;
};

std::string Lookup_Fault(std::span<const TextBoxInfo> boxes, const TextBoxInfo& box,
                         const Hits& hits) {
    if (hits.read != box.offset) return "another record, or none, is read under this name";
    if (hits.written == box.offset) return {};
    const TextBoxInfo* other = hits.written ? Box_At(boxes, *hits.written) : nullptr;
    if (other == nullptr) return "a text for it is written into another record";
    return "a text for it is written into " + Shown_Name(other->name);
}

}  // namespace

/// The colours of a name are written to the first place that has it, material or not.
std::vector<Warning> Find_Color_Warnings(std::string_view data, const LayoutInfo& info) {
    std::vector<Warning> found;
    const std::vector<std::string> names = Written_Materials();
    const auto places = Find_Materials(data, names);
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (!places[i]) continue;
        const auto material =
            std::find_if(info.materials.begin(), info.materials.end(),
                         [&](const MaterialInfo& each) { return each.name == names[i]; });
        if (material == info.materials.end()) {
            const TextBoxInfo* box = Box_At(info.boxes, *places[i]);
            found.push_back(
                {"no material " + names[i] +
                 (box == nullptr
                      ? ": its colors are written into the bytes at " + Hex(*places[i])
                      : ": its colors are written into text box " + Shown_Name(box->name))});
        } else if (material->offset != *places[i]) {
            found.push_back(
                {"material " + names[i] + ": the first place with this name is another one"});
        }
    }
    return found;
}

std::vector<Warning> Find_Text_Warnings(std::string_view data, const LayoutInfo& info) {
    std::vector<Warning> found;
    std::vector<std::string_view> names;
    for (const TextBoxInfo& box : info.boxes) names.push_back(box.name);
    const Pieces pieces(data);
    const auto read = pieces.Find_Records(data, names, Pieces::Test::exact);
    auto written = pieces.Find_Records(data, names, Pieces::Test::prefix);
    std::map<std::string_view, std::optional<std::size_t>> neutral;  // four names at most
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto test = Writing_Test(From_Bytes(names[i]));
        if (test == Pieces::Test::prefix) continue;
        const auto [place, fresh] = neutral.try_emplace(names[i]);
        if (fresh) place->second = pieces.Find_Record(data, names[i], test);
        written[i] = place->second;
    }
    for (std::size_t i = 0; i < info.boxes.size() && found.size() <= MostWarnings; ++i) {
        const TextBoxInfo& box = info.boxes[i];
        for (const std::string& fault :
             {Length_Fault(box), Lookup_Fault(info.boxes, box, {read[i], written[i]})}) {
            if (fault.empty()) continue;
            found.push_back({"text box " + Shown_Name(box.name) + ": " + fault, i});
        }
    }
    return found;
}

std::vector<Warning> Find_Warnings(std::string_view data, const LayoutInfo& info) {
    std::vector<Warning> found;
    Check_Header(data, info, found);
    for (const std::string& fault : info.faults) found.push_back({fault});
    for (const auto& find : {Find_Color_Warnings, Find_Text_Warnings}) {
        for (Warning& warning : find(data, info)) found.push_back(std::move(warning));
    }
    if (found.size() > MostWarnings) {
        found.resize(MostWarnings);
        found.push_back({"there are more of them"});
    }
    return found;
}

std::string Warning_Of_Edit(std::string_view loaded, std::string_view saved, bool colored) {
    const LayoutInfo before = Read_Layout(loaded);
    std::vector<Warning> warnings;
    if (colored) warnings = Find_Color_Warnings(loaded, before);
    std::vector<Warning> of_texts = Find_Text_Warnings(loaded, before);
    if (!of_texts.empty()) {
        const LayoutInfo after = Read_Layout(saved);
        std::erase_if(of_texts, [&](const Warning& warning) {
            return *warning.box < after.boxes.size() &&
                   after.boxes[*warning.box].record == before.boxes[*warning.box].record;
        });
    }
    warnings.insert(warnings.end(), of_texts.begin(), of_texts.end());
    if (warnings.empty()) return {};
    return "bannersmith-inspect warns of what was written: " + warnings.front().text;
}

}  // namespace bannersmith
