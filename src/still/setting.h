// How a text stands in its box: which letter where.
#pragma once

#include <string>
#include <vector>

#include "still/font.h"
#include "still/scene.h"

namespace bannersmith::still {

/// A letter's cell: as wide as the letter, as high as a line. In units of the screen from the left
/// top of the box, y down.
struct Cell {
    char32_t letter = 0;
    double x = 0, y = 0;
};

/// A text as it stands in a box.
struct SetText {
    std::vector<Cell> cells;
    std::size_t lines = 0, written_lines = 0;  ///< as it stands, and as its line feeds ask for
    double width = 0;                          ///< of the widest line as written
    double height = 0;                         ///< of all lines
};

/// Sets a text into a box of that size. A line that is wider goes on below, broken at the letter.
SetText Set(const TextLook& look, double box_width, double box_height, Font& font);

/// Where the baseline is in a cell, from its top, and how high an em is, both of the font size's
/// height; its width is that of the font size. The console's fonts have cells of 32 x 38 for an em
/// of 32.
inline constexpr double Baseline = 0.8, EmHeight = 32.0 / 38;

}  // namespace bannersmith::still
