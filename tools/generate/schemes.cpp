#include <array>

#include "colors/elements.h"
#include "generate/banners.h"

namespace bannersmith {

namespace {

/// The few colours that a scheme is made of, by their `Ink`, but for the shadow.
struct Palette {
    const char16_t* name;
    std::array<Color, 12> inks;
};

constexpr Color Hex(unsigned rgb) {
    return Make_Color(rgb >> 16 & 0xFF, rgb >> 8 & 0xFF, rgb & 0xFF);
}

/// The colour `part` of 8 on the way from `from` to `to`.
constexpr Color Between(Color from, Color to, int part) {
    const auto mix = [part](int a, int b) {
        return static_cast<std::uint8_t>(a + (b - a) * part / 8);
    };
    return Make_Color(mix(Red_Of(from), Red_Of(to)), mix(Green_Of(from), Green_Of(to)),
                      mix(Blue_Of(from), Blue_Of(to)));
}

constexpr Color Color_Of(const Palette& palette, Ink ink) {
    if (ink != Ink::shadow) return palette.inks[static_cast<std::size_t>(ink)];
    return Between(Color_Of(palette, Ink::floor), Hex(0x000000), 5);
}

constexpr Color Color_Of(const Palette& palette, const Tone& tone) {
    return Between(Color_Of(palette, tone.from), Color_Of(palette, tone.to), tone.eighths);
}

constexpr Scheme From_Palette(const Palette& palette) {
    Scheme scheme{};
    for (std::size_t i = 0; i < Elements.size(); ++i) {
        scheme[i] = {Color_Of(palette, Elements[i].first), Color_Of(palette, Elements[i].second)};
    }
    return scheme;
}

constexpr Palette Palettes[] = {
    {u"Aurora",
     {Hex(0x0E3B4A), Hex(0x35D6A8), Hex(0xE8FFF6), Hex(0x10263A), Hex(0x1B4A5A), Hex(0x35D6A8),
      Hex(0xD5F5EA), Hex(0x071522), Hex(0x8FF0CF), Hex(0xB9D9E6), Hex(0x35D6A8), Hex(0x0A1B29)}},
    {u"Cherry Cola",
     {Hex(0x7A0F1C), Hex(0xD9475A), Hex(0xFFE9E4), Hex(0xFFF4EC), Hex(0xF7DCD0), Hex(0xC2273C),
      Hex(0x4A1016), Hex(0x3A0A10), Hex(0xFFE3D6), Hex(0xF4B9A9), Hex(0xC2273C), Hex(0xFFFFFF)}},
    {u"Lagoon",
     {Hex(0x0B6E99), Hex(0x7FD6EE), Hex(0xFFFFFF), Hex(0xE6F7FB), Hex(0xC3E9F2), Hex(0x0B8FC0),
      Hex(0x0B3C52), Hex(0x0A4660), Hex(0xFFFFFF), Hex(0xCDEFF8), Hex(0x2FA8CF), Hex(0xFFFFFF)}},
    {u"Midnight",
     {Hex(0x1A1F3D), Hex(0x6C78C9), Hex(0xE9ECFF), Hex(0x23284C), Hex(0x323A6B), Hex(0x8C9AF5),
      Hex(0xE3E7FF), Hex(0x0D1026), Hex(0xF6D77A), Hex(0xC9CFF5), Hex(0x6C78C9), Hex(0x11142C)}},
    {u"Moss Garden",
     {Hex(0x3F5B2A), Hex(0xA7C66B), Hex(0xFBFFE9), Hex(0xF1F4E1), Hex(0xDBE5BE), Hex(0x6F9A34),
      Hex(0x2C3E1C), Hex(0x26371A), Hex(0xF4F9DE), Hex(0xD2E3A6), Hex(0x7FA546), Hex(0xFFFFFF)}},
    {u"Paper and Ink",
     {Hex(0x2B2B2B), Hex(0x8A8A8A), Hex(0xFFFFFF), Hex(0xF7F5F0), Hex(0xE6E2D8), Hex(0x3C3C3C),
      Hex(0x1E1E1E), Hex(0xD9D4C7), Hex(0x141414), Hex(0x4A463D), Hex(0x2B2B2B), Hex(0xFFFFFF)}},
    {u"Sunset Arcade",
     {Hex(0x5B1E6B), Hex(0xFF8A5B), Hex(0xFFF0D9), Hex(0xFFD9A0), Hex(0xFFC078), Hex(0xD8436F),
      Hex(0x4B1650), Hex(0x3A1048), Hex(0xFFD98A), Hex(0xFFB38A), Hex(0xD8436F), Hex(0xFFF6E6)}},
};

}  // namespace

std::vector<NamedScheme> Shipped_Schemes() {
    std::vector<NamedScheme> schemes;
    for (const Palette& palette : Palettes)
        schemes.push_back({palette.name, From_Palette(palette)});
    return schemes;
}

}  // namespace bannersmith
