#include "still/setting.h"

#include <algorithm>
#include <cmath>

namespace bannersmith::still {

namespace {

/// A letter and where it begins in its line.
struct Placed {
    char32_t letter;
    double x;
};

struct Line {
    std::vector<Placed> letters;
    double width = 0;
};

/// Surrogates that do not belong together are letters that no font has.
std::u32string Letters_Of(std::u16string_view text) {
    std::u32string letters;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool is_pair =
            i + 1 < text.size() && (text[i] & 0xFC00) == 0xD800 && (text[i + 1] & 0xFC00) == 0xDC00;
        letters += is_pair ? 0x10000 + ((text[i] & 0x3FFU) << 10) + (text[i + 1] & 0x3FFU)
                           : static_cast<char32_t>(text[i]);
        if (is_pair) ++i;
    }
    return letters;
}

/// Breaks a text into lines.
class Breaking {
 public:
    Breaking(const TextLook& look, double box_width, Font& font)
        : look_(look), box_width_(box_width), font_(font) {}

    std::vector<Line> Lines(SetText& about) {
        lines_.emplace_back();
        double written = 0;  // the width of the line so far, were it not broken
        about.written_lines = 1;
        for (const char32_t letter : Letters_Of(look_.text)) {
            if (letter == U'\n') {
                ++about.written_lines;
                lines_.emplace_back();
                written = 0;
                continue;
            }
            const double advance = Add(letter);
            written += advance + (written > 0 ? look_.character_space : 0);
            about.width = std::max(about.width, written);
        }
        return std::move(lines_);
    }

 private:
    /// Returns the letter's width.
    double Add(char32_t letter) {
        constexpr int TabLetters = 4;
        const double width = look_.font_size[0];
        if (letter == U'\t') {
            Line& line = lines_.back();
            const double stop = TabLetters * width;
            const double before = line.width;
            if (stop > 0) line.width = (std::floor(before / stop) + 1) * stop;
            return line.width - before;
        }
        const double advance = font_.Advance(letter) * width;
        const bool is_first = lines_.back().letters.empty();
        const double space = is_first ? 0 : look_.character_space;
        if (!is_first && lines_.back().width + space + advance > box_width_) lines_.emplace_back();
        Line& line = lines_.back();
        if (!line.letters.empty()) line.width += look_.character_space;
        line.letters.push_back({letter, line.width});
        line.width += advance;
        return advance;
    }

    const TextLook& look_;
    double box_width_;
    Font& font_;
    std::vector<Line> lines_;
};

}  // namespace

SetText Set(const TextLook& look, double box_width, double box_height, Font& font) {
    SetText set;
    const std::vector<Line> lines = Breaking(look, box_width, font).Lines(set);
    const double pitch = look.font_size[1] + look.line_space;
    set.lines = lines.size();
    set.height = look.font_size[1] + pitch * static_cast<double>(lines.size() - 1);
    const unsigned column = look.position % 3, row = look.position / 3;
    double y = (box_height - set.height) * row / 2;
    for (const Line& line : lines) {
        const double x = (box_width - line.width) * column / 2;
        for (const Placed& placed : line.letters)
            set.cells.push_back({placed.letter, x + placed.x, y});
        y += pitch;
    }
    return set;
}

}  // namespace bannersmith::still
