// make-layout: writes the layout that the lines of standard input describe to standard output. Sections come out in the
// lines' order; HEX are digits without blanks, TEXT is UTF-8 with "^" for a line break.
//     box NAME TEXT                     a clean text box
//     stored NAME BUFFER LENGTH HEX     a text box with any lengths and any bytes at its end
//     material NAME [EIGHT NUMBERS]     materials in lines behind each other are one section
//     group NAME MEMBER...
//     section TAG [HEX]
//     fill BYTES                        a section of about that size
//     bytes HEX                         what is no section
#include <cstdio>
#include <iostream>
#include <sstream>

#include "base/text.h"
#include "generate/layout_builder.h"

using namespace bannersmith;

namespace {

std::string From_Hex(const std::string& hex) {
    std::string bytes;
    for (std::size_t at = 0; at + 1 < hex.size(); at += 2) {
        bytes += static_cast<char>(std::stoi(hex.substr(at, 2), nullptr, 16));
    }
    return bytes;
}

Material Read_Material(std::istream& line) {
    Material material;
    line >> material.name;
    for (Rgba* color : {&material.first, &material.second}) {
        for (std::int16_t& component : *color) {
            if (std::int16_t number = 0; line >> number) component = number;
        }
    }
    return material;
}

std::string Read_Stored_Box(std::istream& line) {
    TextBoxSpec box;
    std::string hex;
    line >> box.name >> box.buffer_length >> box.text_length >> hex;
    box.stored = From_Hex(hex);
    return Text_Box_Section(box);
}

std::string Read_Section(const std::string& kind, std::istream& line) {
    if (kind == "stored") return Read_Stored_Box(line);
    std::string first, rest;
    line >> first;
    std::getline(line.get() == ' ' ? line : line.unget(), rest);
    if (kind == "box") return Text_Box_Section(Clean_Text_Box(first, From_Utf8(rest), 0));
    if (kind == "section") return Section(first, From_Hex(rest));
    if (kind == "fill") return Section("usd1", std::string(std::stoul(first), 'x'));
    if (kind == "bytes") return From_Hex(first);
    std::istringstream words(rest);
    std::vector<std::string> members;
    for (std::string member; words >> member;) members.push_back(member);
    return Group_Section(first, members);
}

}  // namespace

int main() {
    std::vector<std::string> sections;
    std::vector<Material> materials;
    const auto end_materials = [&] {
        if (!materials.empty()) sections.push_back(Material_Section(materials));
        materials.clear();
    };
    for (std::string text; std::getline(std::cin, text);) {
        std::istringstream line(text);
        std::string kind;
        line >> kind;
        if (kind == "material") {
            materials.push_back(Read_Material(line));
        } else {
            end_materials();
            sections.push_back(Read_Section(kind, line));
        }
    }
    end_materials();
    std::cout << Layout_File(sections);
    return std::cout.flush() ? 0 : 1;
}
