#include "still/canvas.h"

#include <algorithm>

namespace bannersmith::still {

namespace {

// The types and factors of a blend mode by their numbers.
constexpr unsigned Blends = 1, Logic = 2, Subtracts = 3, SourceAlpha = 4, OneMinusSourceAlpha = 5;

bool Passes(unsigned comparison, unsigned alpha, unsigned reference) {
    constexpr unsigned Below = 1, Equal = 2, Above = 4;
    const unsigned is = alpha < reference ? Below : alpha == reference ? Equal : Above;
    return (comparison & is) != 0;
}

bool Passes(const AlphaCompare& compare, unsigned alpha) {
    const bool first = Passes(compare.comparisons & 7U, alpha, compare.references[0]);
    const bool second = Passes(compare.comparisons >> 4U & 7U, alpha, compare.references[1]);
    switch (compare.operation & 3) {
        case 0:
            return first && second;
        case 1:
            return first || second;
        case 2:
            return first != second;
        default:
            return first == second;
    }
}

bool Lets_All_Through(const AlphaCompare& compare) {
    return (compare.comparisons & 0x77) == 0x77 && (compare.operation & 3) != 2;
}

/// A factor of what is drawn or of what is there; `other` is the other one of the two.
Lanes Factor(unsigned number, Lanes other, Lanes source, Lanes there) {
    switch (number) {
        case 0:
            return Lanes{};
        case 1:
            return Everywhere(255);
        case 2:
            return other;
        case 3:
            return 255 - other;
        case 4:
            return Spread_Alpha(source);
        case 5:
            return 255 - Spread_Alpha(source);
        case 6:
            return Spread_Alpha(there);
        default:
            return 255 - Spread_Alpha(there);
    }
}

Lanes At_Most_255(Lanes sum) {
    return sum > 255 ? Everywhere(255) : sum;
}

Lanes By_Logic(unsigned operation, Lanes source, Lanes there) {
    const Lanes all = Everywhere(255);
    switch (operation & 0xF) {
        case 0:
            return Lanes{};
        case 1:
            return source & there;
        case 2:
            return source & ~there;
        case 3:
            return source;
        case 4:
            return ~source & there;
        case 5:
            return there;
        case 6:
            return source ^ there;
        case 7:
            return source | there;
        case 8:
            return ~(source | there) & all;
        case 9:
            return ~(source ^ there) & all;
        case 10:
            return ~there & all;
        case 11:
            return (source | ~there) & all;
        case 12:
            return ~source & all;
        case 13:
            return (~source | there) & all;
        case 14:
            return ~(source & there) & all;
        default:
            return all;
    }
}

Lanes Blended(const BlendMode& mode, Lanes source, Lanes there) {
    const Lanes drawn = Factor(mode.source & 7U, there, source, there);
    const Lanes kept = Factor(mode.destination & 7U, source, source, there);
    return At_Most_255(Over_255(source * drawn) + Over_255(there * kept));
}

Lanes Put_Over(const BlendMode& mode, Lanes source, Lanes there) {
    switch (mode.type) {
        case Blends:
            return Blended(mode, source, there);
        case Logic:
            return By_Logic(mode.logic, source, there);
        case Subtracts:
            return there > source ? there - source : Lanes{};
        default:
            return source;
    }
}

/// Puts `count` pixels over those at a place, two at a time.
template <typename Over>
void Put_Row(std::uint16_t* place, std::size_t count, Pixels pixels, Over put_over) {
    const std::size_t pairs = count / 2, step = pixels.is_constant ? 0 : 1;
    const Lanes* source = pixels.first;
    for (std::size_t i = 0; i < pairs; ++i, place += 8, source += step) {
        Store(place, put_over(*source, Load(place)));
    }
    if (count % 2 == 0) return;
    const Lanes last = put_over(*source, Load(place));
    std::memcpy(place, &last, sizeof last / 2);
}

/// Four pixels of two each, as their octets, opaque.
void Store_Opaque(char* place, Lanes first, Lanes second) {
    using Octets = std::uint8_t __attribute__((vector_size(16)));
    const Lanes opaque{0, 0, 0, 0xFF, 0, 0, 0, 0xFF};
    const auto octets = __builtin_shufflevector(reinterpret_cast<Octets>(first | opaque),
                                                reinterpret_cast<Octets>(second | opaque), 0, 2, 4,
                                                6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30);
    std::memcpy(place, &octets, sizeof octets);
}

}  // namespace

Canvas::Canvas(std::size_t width, std::size_t height, Rgba background)
    : width_(width),
      height_(height),
      pairs_((width * height + 1) / 2 + 1),
      numbers_(std::make_unique_for_overwrite<Lanes[]>(pairs_ + 1)) {
    std::fill_n(numbers_.get(), pairs_ + 1, Both(background));
}

void Canvas::Put(std::size_t x, std::size_t y, std::size_t count, Pixels pixels,
                 const AlphaCompare& compare, const BlendMode& mode) {
    auto* place = reinterpret_cast<std::uint16_t*>(numbers_.get()) + (y * width_ + x) * 4;
    const bool is_usual = mode.type == Blends && (mode.source & 7) == SourceAlpha &&
                          (mode.destination & 7) == OneMinusSourceAlpha;
    if (is_usual && Lets_All_Through(compare)) {
        Put_Row(place, count, pixels,
                [](Lanes source, Lanes there) { return Mix(there, source, Spread_Alpha(source)); });
        return;
    }
    Put_Row(place, count, pixels, [&](Lanes source, Lanes there) {
        Lanes put = Put_Over(mode, source, there);
        for (std::size_t lane = 0; lane < 8; ++lane) {
            if (!Passes(compare, source[lane / 4 * 4 + 3])) put[lane] = there[lane];
        }
        return put;
    });
}

Picture Canvas::Taken() const {
    Picture picture{width_, height_, {}};
    picture.texels.resize(pairs_ / 2 * 2 * 2 * TexelSize);
    for (std::size_t i = 0; i + 1 < pairs_; i += 2) {
        Store_Opaque(&picture.texels[i * 2 * TexelSize], numbers_[i], numbers_[i + 1]);
    }
    picture.texels.resize(width_ * height_ * TexelSize);
    return picture;
}

}  // namespace bannersmith::still
