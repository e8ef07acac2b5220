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
        case 0: return first && second;
        case 1: return first || second;
        case 2: return first != second;
        default: return first == second;
    }
}

bool Lets_All_Through(const AlphaCompare& compare) {
    return (compare.comparisons & 0x77) == 0x77 && (compare.operation & 3) != 2;
}

/// A factor of what is drawn or of what is there; `other` is the other one of the two.
Lanes Factor(unsigned number, Lanes other, Lanes source, Lanes there) {
    switch (number) {
        case 0: return Lanes{};
        case 1: return Everywhere(255);
        case 2: return other;
        case 3: return 255 - other;
        case 4: return Spread_Alpha(source);
        case 5: return 255 - Spread_Alpha(source);
        case 6: return Spread_Alpha(there);
        default: return 255 - Spread_Alpha(there);
    }
}

Lanes At_Most_255(Lanes sum) {
    return sum > 255 ? Everywhere(255) : sum;
}

Lanes By_Logic(unsigned operation, Lanes source, Lanes there) {
    const Lanes all = Everywhere(255);
    switch (operation & 0xF) {
        case 0: return Lanes{};
        case 1: return source & there;
        case 2: return source & ~there;
        case 3: return source;
        case 4: return ~source & there;
        case 5: return there;
        case 6: return source ^ there;
        case 7: return source | there;
        case 8: return ~(source | there) & all;
        case 9: return ~(source ^ there) & all;
        case 10: return ~there & all;
        case 11: return (source | ~there) & all;
        case 12: return ~source & all;
        case 13: return (~source | there) & all;
        case 14: return ~(source & there) & all;
        default: return all;
    }
}

Lanes Blended(const BlendMode& mode, Lanes source, Lanes there) {
    const Lanes drawn = Factor(mode.source & 7U, there, source, there);
    const Lanes kept = Factor(mode.destination & 7U, source, source, there);
    return At_Most_255(Over_255(source * drawn) + Over_255(there * kept));
}

Lanes Put_Over(const BlendMode& mode, Lanes source, Lanes there) {
    switch (mode.type) {
        case Blends: return Blended(mode, source, there);
        case Logic: return By_Logic(mode.logic, source, there);
        case Subtracts: return there > source ? there - source : Lanes{};
        default: return source;
    }
}

/// A register can hold what is no colour.
Lanes As_Colors(Lanes numbers) {
    const auto number = reinterpret_cast<SignedLanes>(numbers);
    const SignedLanes zero{}, most = reinterpret_cast<SignedLanes>(Everywhere(255));
    const SignedLanes above = number < zero ? zero : number;
    return reinterpret_cast<Lanes>(above > most ? most : above);
}

}  // namespace

Canvas::Canvas(std::size_t width, std::size_t height, Rgba background)
    : width_(width), height_(height), numbers_(width * height * 4 + 4) {
    for (std::size_t i = 0; i < width * height * 4; ++i) numbers_[i] = background[i % 4];
}

void Canvas::Put(std::size_t x, std::size_t y, std::size_t count, Pixels pixels,
                 const AlphaCompare& compare, const BlendMode& mode) {
    std::uint16_t* place = &numbers_[(y * width_ + x) * 4];
    const bool is_usual = mode.type == Blends && (mode.source & 7) == SourceAlpha &&
                          (mode.destination & 7) == OneMinusSourceAlpha;
    const bool is_compared = !Lets_All_Through(compare);
    for (std::size_t i = 0; i < count; i += 2, place += 8) {
        const Lanes source = As_Colors(pixels.At(i / 2)), there = Load(place);
        Lanes put = is_usual ? Mix(there, source, Spread_Alpha(source))
                             : Put_Over(mode, source, there);
        for (std::size_t lane = 0; is_compared && lane < 8; ++lane) {
            if (!Passes(compare, source[lane / 4 * 4 + 3])) put[lane] = there[lane];
        }
        if (i + 1 < count) Store(place, put);
        else std::memcpy(place, &put, sizeof put / 2);
    }
}

Picture Canvas::Taken() const {
    Picture picture{width_, height_, std::string(width_ * height_ * TexelSize, '\xFF')};
    for (std::size_t i = 0; i < picture.texels.size(); ++i) {
        if (i % 4 != 3) picture.texels[i] = static_cast<char>(numbers_[i]);
    }
    return picture;
}

}  // namespace bannersmith::still
