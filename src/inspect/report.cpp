#include "inspect/report.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace bannersmith {

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

/// Names and paths: bytes of UTF-8, or of the layout's own.
std::string Quoted(const std::string& text) {
    return Json_String(From_Utf8(text));
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

/// An array item by item, as the member of an object behind others.
template <typename Items, typename ToJson>
void Write_Array(const char* key, const Items& items, ToJson to_json, const Output& output) {
    output(", " + Member(key, "["));
    const char* between = "";
    for (const auto& item : items) output(std::exchange(between, ", ") + to_json(item));
    output("]");
}

std::string Color_Json(const std::array<std::int16_t, 4>& color) {
    return Array(color, [](std::int16_t component) { return std::to_string(component); });
}

std::string Quoted_Name(const std::string& name) {
    return Quoted(name);
}

std::string Box_Json(const TextBoxInfo& box) {
    return "{" + Member("name", Quoted(box.name)) + ", " + Member("text", Json_String(box.text)) +
           ", " + Member("buffer_length", std::to_string(box.buffer_length)) + ", " +
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

std::string Warning_Json(const Warning& warning) {
    return Quoted(warning.text);
}

/// A name of the layout, or a path, as a terminal can show it.
std::string Shown(const std::string& name) {
    return Printable(From_Utf8(name));
}

/// Only the slots that have a text.
void Write_Archive_Text(const ArchiveInfo& archive, const Output& output) {
    constexpr std::size_t SizeWidth = 8;
    output("  archive of " + std::to_string(archive.file_size) + " bytes\n");
    for (const ArchiveFileInfo& file : archive.files) {
        output("  file     " + Number(static_cast<unsigned>(file.size), SizeWidth) + "  " +
               Shown(file.path) + (file.texture ? "  " + file.texture->Text() : "") + "\n");
    }
    for (std::size_t i = 0; archive.names && i < archive.names->size(); ++i) {
        const auto& [first, second] = (*archive.names)[i];
        if (first.empty() && second.empty()) continue;
        output("  name     " + To_Utf8(NameLanguages[i]) + "  " + Printable(first) +
               (second.empty() ? "" : " / " + Printable(second)) + "\n");
    }
    for (const std::string& warning : archive.warnings) {
        output("  warning: " + Shown(warning) + "\n");
    }
    output("  layout   " + Shown(archive.layout) + "\n");
}

std::string File_Json(const ArchiveFileInfo& file) {
    std::string json =
        "{" + Member("path", Quoted(file.path)) + ", " + Member("size", std::to_string(file.size));
    if (file.texture) {
        json += ", " + Member("format", Quoted(std::string(file.texture->format->name))) + ", " +
                Member("width", std::to_string(file.texture->width)) + ", " +
                Member("height", std::to_string(file.texture->height));
    }
    return json + "}";
}

void Write_Archive_Json(const ArchiveInfo& archive, const Output& output) {
    output(", " + Member("archive", "{" + Member("layout", Quoted(archive.layout))));
    Write_Array("files", archive.files, File_Json, output);
    if (archive.names) {
        Write_Array(
            "names", *archive.names,
            [](const auto& lines) {
                return Array(lines, [](const std::u16string& line) { return Json_String(line); });
            },
            output);
    }
    Write_Array("warnings", archive.warnings, Quoted_Name, output);
    output("}");
}

}  // namespace

std::string Json_String(std::u16string_view text) {
    std::string quoted = "\"";
    for (const char16_t unit : text) {
        if (unit == u'"' || unit == u'\\') {
            quoted += '\\';
            quoted += static_cast<char>(unit);
        } else if (unit >= 0x20 && unit < 0x7F) {
            quoted += static_cast<char>(unit);
        } else {
            const auto digit = [&](int shift) { return "0123456789abcdef"[unit >> shift & 0xF]; };
            quoted.append({'\\', 'u', digit(12), digit(8), digit(4), digit(0)});
        }
    }
    return quoted + '"';
}

void Write_Text(const FileReport& report, const Output& output) {
    const LayoutInfo& info = report.info;
    output(Shown(report.file) + "\n");
    if (report.archive) Write_Archive_Text(*report.archive, output);
    output("  header length " + std::to_string(info.header_length) + ", file size " +
           std::to_string(info.file_size) + "\n");
    for (const TextBoxInfo& box : info.boxes) {
        output("  text     " + Filled_Up(Shown(box.name), 16) + " buffer " +
               Number(box.buffer_length, 5) + " length " + Number(box.text_length, 5) + "  " +
               Printable(box.text) + "\n");
    }
    for (const MaterialInfo& material : info.materials) {
        output("  material " + Filled_Up(Shown(material.name), 16) + Color_Text(material.first) +
               "  " + Color_Text(material.second) + "\n");
    }
    for (const GroupInfo& group : info.groups) {
        const std::string name = Shown(group.name);
        std::string line = "  group    " + (group.members.empty() ? name : Filled_Up(name, 16));
        for (const std::string& member : group.members) line += " " + Shown(member);
        output(line + "\n");
    }
    for (const Warning& warning : report.warnings) output("  warning: " + warning.text + "\n");
}

void Write_Json(const FileReport& report, const Output& output) {
    const LayoutInfo& info = report.info;
    output("{" + Member("file", Quoted(report.file)) + ", " +
           Member("file_size", std::to_string(info.file_size)) + ", " +
           Member("header_length", std::to_string(info.header_length)));
    if (report.archive) Write_Archive_Json(*report.archive, output);
    Write_Array("text_boxes", info.boxes, Box_Json, output);
    Write_Array("materials", info.materials, Material_Json, output);
    Write_Array("groups", info.groups, Group_Json, output);
    Write_Array("warnings", report.warnings, Warning_Json, output);
    output(", " + Member("values", "{"));
    const char* between = "";
    for (const auto& [option, value] : report.values) {
        output(std::exchange(between, ", ") + Quoted(option) + ": " + Json_String(value));
    }
    output("}}");
}

}  // namespace bannersmith
