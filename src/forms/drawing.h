// What is drawn on a window by code: filled rectangles, and shapes and labels that lie on it.
// Lengths are in twips (1/1440 inch) from the window's upper left corner.
#pragma once

#include <string>
#include <vector>

#include "forms/desktop.h"

namespace bannersmith {

/// Where something lies.
struct Area {
    float left = 0, top = 0, width = 0, height = 0;

    /// The first place behind the area.
    float Right() const { return left + width; }
    float Bottom() const { return top + height; }
};

/// A rectangle of one colour, border and inside alike: from `x1`, `y1` up to `x2`, `y2`, which are
/// outside, in the scale of its surface.
struct FilledRectangle {
    float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Color color = 0;
};

/// The surface of a window or picture box: keeps what was painted on it until it is cleared, so
/// that a view can show it at any time and any scale.
class Surface {
 public:
    /// Width and height of the surface's inner scale.
    Surface(float width, float height) : width_(width), height_(height) {}

    /// The size of the inner scale.
    float Width() const { return width_; }
    float Height() const { return height_; }

    /// Takes everything away.
    void Clear() { painted_.clear(); }
    /// Paints over what is there.
    void Fill(const FilledRectangle& rectangle) { painted_.push_back(rectangle); }

    /// Everything painted since the last `Clear`, first to last.
    const std::vector<FilledRectangle>& Painted() const { return painted_; }

 private:
    float width_, height_;
    std::vector<FilledRectangle> painted_;
};

/// A filled shape with a border, `thickness` wide inside its area; 0 for none.
struct Shape {
    Area area;
    bool rounded = false;
    float thickness = 0;
    Color fill = 0;
    Color border = 0;
};

/// Where the lines of a label lie between its left and its right edge.
enum class Alignment { left, centre, right };

/// A text on a transparent background.
struct DrawnLabel {
    Area area;
    std::u16string text;
    Font font;
    Alignment alignment = Alignment::left;
    bool wraps = true;  ///< breaks long lines at the width; otherwise a line may be longer
    Color color = 0;
};

}  // namespace bannersmith
