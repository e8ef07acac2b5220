#include "inspect/report.h"

#include <algorithm>
#include <cstdio>

#include "platform/text.h"

namespace {

std::string Filled_Up(std::string text, std::size_t width) {
    text.resize(std::max(text.size(), width), ' ');
    return text;
}

std::string Number(unsigned value, std::size_t width) {
    const std::string digits = std::to_string(value);
    return std::string(width - std::min(width, digits.size()), ' ') + digits;
}

std::string Color_Text(const std::array<std::int16_t, 4>& color) {
    std::string text;
    for (const std::int16_t component : color) {
        const std::string digits = std::to_string(component);
        text += std::string(4 - std::min<std::size_t>(4, digits.size()), ' ') + digits;
    }
    return text;
}

std::string Quoted(std::u16string_view text) {
    std::string quoted = "\"";
    for (const char16_t unit : text) {
        if (unit == u'"' || unit == u'\\') {
            quoted += '\\';
            quoted += static_cast<char>(unit);
        } else if (unit >= 0x20 && unit < 0x7F) {
            quoted += static_cast<char>(unit);
        } else {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(unit));
            quoted += escape;
        }
    }
    return quoted + '"';
}

/// Names and paths: bytes of UTF-8, or of the layout's own.
std::string Quoted(const std::string& text) {
    return Quoted(From_Utf8(text));
}

std::string Member(const char* key, const std::string& value) {
    return "\"" + std::string(key) + "\": " + value;
}

template <typename Items, typename ToJson>
std::string Array(const Items& items, ToJson to_json) {
    std::string array;
    for (const auto& item : items) array += (array.empty() ? "" : ", ") + to_json(item);
    return "[" + array + "]";
}

std::string Color_Json(const std::array<std::int16_t, 4>& color) {
    return Array(color, [](std::int16_t component) { return std::to_string(component); });
}

std::string Quoted_Name(const std::string& name) {
    return Quoted(name);
}

std::string Box_Json(const TextBoxInfo& box) {
    return "{" + Member("name", Quoted(box.name)) + ", " + Member("text", Quoted(box.text)) + ", " +
           Member("buffer_length", std::to_string(box.buffer_length)) + ", " +
           Member("text_length", std::to_string(box.text_length)) + "}";
}

std::string Material_Json(const MaterialInfo& material) {
    return "{" + Member("name", Quoted(material.name)) + ", " +
           Member("first", Color_Json(material.first)) + ", " +
           Member("second", Color_Json(material.second)) + "}";
}

std::string Group_Json(const GroupInfo& group) {
    return "{" + Member("name", Quoted(group.name)) + ", " +
           Member("members", Array(group.members, Quoted_Name)) + "}";
}

std::string Report_Json(const FileReport& report) {
    const LayoutInfo& info = report.info;
    return "{" + Member("file", Quoted(report.file)) + ", " +
           Member("file_size", std::to_string(info.file_size)) + ", " +
           Member("header_length", std::to_string(info.header_length)) + ", " +
           Member("text_boxes", Array(info.boxes, Box_Json)) + ", " +
           Member("materials", Array(info.materials, Material_Json)) + ", " +
           Member("groups", Array(info.groups, Group_Json)) + ", " +
           Member("warnings", Array(report.warnings, Quoted_Name)) + "}";
}

}  // namespace

std::string As_Text(const FileReport& report) {
    const LayoutInfo& info = report.info;
    std::string text = report.file + "\n  header length " + std::to_string(info.header_length) +
                       ", file size " + std::to_string(info.file_size) + "\n";
    for (const TextBoxInfo& box : info.boxes) {
        text += "  text     " + Filled_Up(box.name, 16) + " buffer " +
                Number(box.buffer_length, 5) + " length " + Number(box.text_length, 5) + "  " +
                To_Utf8(box.text) + "\n";
    }
    for (const MaterialInfo& material : info.materials) {
        text += "  material " + Filled_Up(material.name, 16) + Color_Text(material.first) + "  " +
                Color_Text(material.second) + "\n";
    }
    for (const GroupInfo& group : info.groups) {
        text += "  group    ";
        text += group.members.empty() ? group.name : Filled_Up(group.name, 16);
        for (const std::string& member : group.members) text += " " + member;
        text += "\n";
    }
    for (const std::string& warning : report.warnings) text += "  warning: " + warning + "\n";
    return text;
}

std::string As_Json(const std::vector<FileReport>& reports) {
    return Array(reports, Report_Json) + "\n";
}
