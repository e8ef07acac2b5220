// The picture that is drawn into, and how a row of pixels is put over what is there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "still/scene.h"
#include "still/shading.h"
#include "texture/picture.h"

namespace bannersmith::still {

/// A picture of four numbers a pixel, red, green, blue, alpha, 0 to 255.
class Canvas {
 public:
    Canvas(std::size_t width, std::size_t height, Rgba background);

    std::size_t Width() const { return width_; }
    std::size_t Height() const { return height_; }

    /// Puts `count` pixels, from `x` on in row `y`, over what is there: those that the comparison
    /// lets through, mixed as the mode says.
    void Put(std::size_t x, std::size_t y, std::size_t count, Pixels pixels,
             const AlphaCompare& compare, const BlendMode& mode);

    /// What was drawn, all of it opaque.
    Picture Taken() const;

 private:
    std::size_t width_, height_;
    std::size_t pairs_;  ///< of pixels, at least one more than there are
    std::unique_ptr<Lanes[]> numbers_;
};

}  // namespace bannersmith::still
