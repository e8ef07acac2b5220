// Arithmetic on two pixels at once: eight numbers of 16 bits, of each pixel red, green, blue and
// alpha, 0 to 255 unless said otherwise. Vectors of the compiler, so that each machine uses what it
// has.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace bannersmith::still {

using Lanes = std::uint16_t __attribute__((vector_size(16)));
using SignedLanes = std::int16_t __attribute__((vector_size(16)));

/// The same number everywhere.
inline Lanes Everywhere(unsigned number) {
    const auto n = static_cast<std::uint16_t>(number);
    return Lanes{n, n, n, n, n, n, n, n};
}

/// The same four numbers in both pixels, negative ones as two's complement.
template <typename Number>
Lanes Both(const std::array<Number, 4>& numbers) {
    Lanes lanes{};
    for (std::size_t i = 0; i < 8; ++i) lanes[i] = static_cast<std::uint16_t>(numbers[i % 4]);
    return lanes;
}

/// Masks of the lanes with colours, and of those with alpha.
inline Lanes Color_Lanes() {
    return Lanes{0xFFFF, 0xFFFF, 0xFFFF, 0, 0xFFFF, 0xFFFF, 0xFFFF, 0};
}
inline Lanes Alpha_Lanes() {
    return ~Color_Lanes();
}

/// Each pixel's alpha in all of its lanes.
inline Lanes Spread_Alpha(Lanes pixels) {
    return __builtin_shufflevector(pixels, pixels, 3, 3, 3, 3, 7, 7, 7, 7);
}

/// A product of two numbers, or a sum of such products up to 255 x 255, divided by 255 and rounded.
inline Lanes Over_255(Lanes product) {
    const Lanes rounded = product + 128;
    return (rounded + (rounded >> 8)) >> 8;
}

/// From `a`, where `c` is 0, to `b`, where it is 255. What the numbers lose above in between, the
/// sum has not.
inline Lanes Mix(Lanes a, Lanes b, Lanes c) {
    return Over_255((a << 8) - a + c * (b - a));
}

/// Two pixels at any place.
inline Lanes Load(const void* place) {
    Lanes lanes;
    std::memcpy(&lanes, place, sizeof lanes);
    return lanes;
}
inline void Store(void* place, Lanes lanes) {
    std::memcpy(place, &lanes, sizeof lanes);
}

}  // namespace bannersmith::still
