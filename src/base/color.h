#pragma once

#include <cstdint>

namespace bannersmith {

/// A colour: red + 256 x green + 65536 x blue, each 0 to 255.
using Color = std::uint32_t;

/// The components of a colour value, 0 to 255 each.
constexpr std::uint8_t Red_Of(Color color) {
    return color & 0xFF;
}
constexpr std::uint8_t Green_Of(Color color) {
    return color >> 8 & 0xFF;
}
constexpr std::uint8_t Blue_Of(Color color) {
    return color >> 16 & 0xFF;
}

/// The colour value of three components.
constexpr Color Make_Color(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return static_cast<Color>(red | green << 8 | blue << 16);
}

}  // namespace bannersmith
