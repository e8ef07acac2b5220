#include "still/sampling.h"

#include <algorithm>
#include <cmath>

namespace bannersmith::still {

namespace {

constexpr int FractionBits = 32;
constexpr std::int64_t One = std::int64_t{1} << FractionBits;

/// Half a texel, as the border moves all by one and a place lies between the middles of two; and
/// what rounds to a 256th.
constexpr std::int64_t ToPlace = One / 2 + (One >> 9);

std::uint32_t Place(std::int64_t position) {
    return static_cast<std::uint32_t>((position + ToPlace) >> (FractionBits - 8));
}

std::int64_t Fixed(double texels) {
    return static_cast<std::int64_t>(texels * static_cast<double>(One));
}

/// Below `period`, and not below zero.
double Modulo(double value, double period) {
    const double rest = std::fmod(value, period);
    return rest < 0 ? rest + period : rest;
}

void Clamped(const Travel& travel, std::int64_t side, std::size_t count, std::uint32_t* out) {
    constexpr double Far = 1 << 16;  // no texture is so wide, no row so long that it could overflow
    std::int64_t at = Fixed(std::clamp(travel.start, -Far * Far / 8, Far * Far / 8));
    const std::int64_t step = Fixed(std::clamp(travel.step, -Far, Far));
    for (std::size_t i = 0; i < count; ++i, at += step) {
        out[i] = Place(std::clamp(at, std::int64_t{0}, side));
    }
}

template <bool Mirrored>
void Around(const Travel& travel, std::int64_t side, std::size_t count, std::uint32_t* out) {
    const std::int64_t period = Mirrored ? 2 * side : side;
    const double texels = static_cast<double>(period) / static_cast<double>(One);
    std::int64_t at = std::min(Fixed(Modulo(travel.start, texels)), period - 1);
    const std::int64_t step = std::min(Fixed(Modulo(travel.step, texels)), period - 1);
    for (std::size_t i = 0; i < count; ++i) {
        out[i] = Place(Mirrored && at > side ? period - at : at);
        at += step;
        if (at >= period) at -= period;
    }
}

/// How much of the left and of the right texel a fraction takes: 256 in all.
const std::array<Lanes, 256>& Weights() {
    static const std::array<Lanes, 256> table = [] {
        std::array<Lanes, 256> weights{};
        for (unsigned i = 0; i < 256; ++i) {
            for (std::size_t lane = 0; lane < 8; ++lane) {
                weights[i][lane] = static_cast<std::uint16_t>(lane < 4 ? 256 - i : i);
            }
        }
        return weights;
    }();
    return table;
}

/// Two texels beside each other.
Lanes Pair(const std::uint32_t* texels) {
    using Octets = std::uint8_t __attribute__((vector_size(16)));
    std::uint64_t both = 0;
    std::memcpy(&both, texels, sizeof both);
    using Words = std::uint64_t __attribute__((vector_size(16)));
    const Words words{both, 0};
    const auto octets = reinterpret_cast<Octets>(words);
    const Octets zero{};
    return reinterpret_cast<Lanes>(__builtin_shufflevector(octets, zero, 0, 16, 1, 17, 2, 18, 3, 19,
                                                           4, 20, 5, 21, 6, 22, 7, 23));
}

}  // namespace

Texels::Texels(const Picture& picture, Wrap s, Wrap t)
    : width_(picture.width), height_(picture.height), texels_((width_ + 2) * (height_ + 2)) {
    const auto source = [](std::size_t at, std::size_t side, Wrap wrap) {
        if (Goes_Around(wrap)) return (at + side - 1) % side;
        return std::clamp<std::size_t>(at, 1, side) - 1;
    };
    std::uint32_t* out = texels_.data();
    for (std::size_t y = 0; y < height_ + 2; ++y) {
        const char* row = &picture.texels[source(y, height_, t) * width_ * TexelSize];
        for (std::size_t x = 0; x < width_ + 2; ++x) {
            std::memcpy(out++, row + source(x, width_, s) * TexelSize, TexelSize);
        }
    }
}

bool Sampler::Axis::Follow(const Travel& travel, Wrap wrap, std::size_t side, std::size_t count) {
    const std::size_t wanted = travel.step == 0 ? 1 : count;
    if (known_ < wanted || travel.start != last_.start || travel.step != last_.step) {
        const auto fixed = static_cast<std::int64_t>(side) << FractionBits;
        if (wrap == Wrap::clamp) Clamped(travel, fixed, wanted, places.data());
        if (wrap == Wrap::repeat) Around<false>(travel, fixed, wanted, places.data());
        if (wrap == Wrap::mirror) Around<true>(travel, fixed, wanted, places.data());
        last_ = travel;
        known_ = wanted;
    }
    return wanted == 1;
}

void Sampler::Take(const Travel& s, const Travel& t, std::size_t count, Lanes* out) {
    const bool is_one_column = across_.Follow(s, s_, texels_->width_, count);
    const bool is_one_row = down_.Follow(t, t_, texels_->height_, count);
    const std::size_t stride = texels_->width_ + 2, across_step = is_one_column ? 0 : 1;
    const auto& weights = Weights();
    auto* pixel = reinterpret_cast<char*>(out);
    const auto take = [&](std::uint32_t x, const std::uint32_t* row, Lanes down) {
        const Lanes upper = Pair(row + (x >> 8)), lower = Pair(row + (x >> 8) + stride);
        const Lanes column = ((upper << 8) + down * (lower - upper) + 128) >> 8;
        const Lanes sides = column * weights[x & 0xFF];
        const Lanes both = sides + __builtin_shufflevector(sides, sides, 4, 5, 6, 7, 0, 1, 2, 3);
        const Lanes rounded = (both + 128) >> 8;
        std::memcpy(pixel, &rounded, sizeof rounded / 2);
        pixel += sizeof rounded / 2;
    };
    const std::uint32_t* across = across_.places.data();
    if (is_one_row) {
        const std::uint32_t y = down_.places[0];
        const std::uint32_t* row = &texels_->texels_[(y >> 8) * stride];
        const Lanes down = Everywhere(y & 0xFF);
        for (std::size_t i = 0; i < count; ++i, across += across_step) take(*across, row, down);
        return;
    }
    for (std::size_t i = 0; i < count; ++i, across += across_step) {
        const std::uint32_t y = down_.places[i];
        take(*across, &texels_->texels_[(y >> 8) * stride], Everywhere(y & 0xFF));
    }
}

}  // namespace bannersmith::still
