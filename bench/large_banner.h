#pragma once

#include <string>

#include "generate/layout_builder.h"

namespace bannersmith {

/// A layout of about `bytes` bytes with `boxes` text boxes: those of seven languages first, others behind
/// them, spread over the file by sections that hold neither names nor tags. Buffers are larger than their
/// texts, so the first save rewrites every box.
inline std::string Large_Banner(std::size_t bytes, std::size_t boxes) {
    constexpr const char* Prefixes[] = {"T_VCTitle_", "T_Year_", "T_Play_", "T_ESRB_"};
    constexpr const char* Codes[] = {"ENG", "GER", "FRA", "ITA", "SPA", "NED", "JPN"};
    std::vector<std::string> sections;
    for (std::size_t i = 0; i < boxes; ++i) {
        std::string name = "Box" + std::to_string(i);
        if (i < 28) name = std::string(Prefixes[i % 4]) + Codes[i / 4];
        if (i == 28) name = "T_PF";
        TextBoxSpec box = Clean_Text_Box(name, u"Text: 1991", 0);
        box.buffer_length = 100;
        sections.push_back(Text_Box_Section(box));
    }
    const std::size_t used = Layout_File(sections).size() + 8;
    const std::size_t filler = bytes > used ? (bytes - used) / boxes / 4 * 4 : 0;
    if (filler > 8) {
        std::string body(filler - 8, '\0');
        for (std::size_t i = 0; i < body.size(); ++i) body[i] = static_cast<char>(i * 7);
        for (std::string& section : sections) section += Section("usd1", body);
    }
    sections.push_back(Empty_Section("gre1"));
    return Layout_File(sections);
}

}  // namespace bannersmith
