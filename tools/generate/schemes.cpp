#include "generate/banners.h"

namespace bannersmith {

namespace {

/// The few colours that a scheme is made of.
struct Palette {
    const char16_t* name;
    Color bar, bar_edge, bar_text;  ///< the console's bar at the top
    Color paper, pattern;           ///< background and the large pattern on it
    Color line, ink;                ///< lines and texts on the paper
    Color floor, title, rating;     ///< the lower area and the texts on it
    Color frame, screen;            ///< the picture's frame
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

constexpr Scheme From_Palette(const Palette& p) {
    const Color shadow = Between(p.floor, Hex(0x000000), 5);
    return {{
        {p.bar_edge, p.bar},                          // PFLINE
        {Between(p.bar, p.bar_edge, 4), p.bar_text},  // T_PF
        {shadow, p.floor},                            // Shade
        {p.paper, p.pattern},                         // Back0
        {p.paper, p.pattern},                         // Back1
        {p.paper, Between(p.pattern, p.paper, 2)},    // Back2
        {p.paper, Between(p.pattern, p.floor, 2)},    // Back3
        {p.paper, Between(p.pattern, p.paper, 3)},    // Back4
        {p.paper, p.line},                            // YearLine
        {p.paper, p.line},                            // PlayLine
        {shadow, p.title},                            // T_VCTitle
        {p.paper, p.ink},                             // T_Play
        {p.paper, p.ink},                             // T_Year
        {shadow, p.rating},                           // T_ESRB
        {p.frame, p.screen},                          // VCPic
        {shadow, p.screen},                           // VCPicBase
        {shadow, Between(p.floor, shadow, 4)},        // VCPicSha
        {p.paper, p.floor},                           // BackMask1
        {shadow, p.floor},                            // BackMask2
    }};
}

constexpr Palette Palettes[] = {
    {u"Aurora", Hex(0x0E3B4A), Hex(0x35D6A8), Hex(0xE8FFF6), Hex(0x10263A), Hex(0x1B4A5A),
     Hex(0x35D6A8), Hex(0xD5F5EA), Hex(0x071522), Hex(0x8FF0CF), Hex(0xB9D9E6), Hex(0x35D6A8),
     Hex(0x0A1B29)},
    {u"Cherry Cola", Hex(0x7A0F1C), Hex(0xD9475A), Hex(0xFFE9E4), Hex(0xFFF4EC), Hex(0xF7DCD0),
     Hex(0xC2273C), Hex(0x4A1016), Hex(0x3A0A10), Hex(0xFFE3D6), Hex(0xF4B9A9), Hex(0xC2273C),
     Hex(0xFFFFFF)},
    {u"Lagoon", Hex(0x0B6E99), Hex(0x7FD6EE), Hex(0xFFFFFF), Hex(0xE6F7FB), Hex(0xC3E9F2),
     Hex(0x0B8FC0), Hex(0x0B3C52), Hex(0x0A4660), Hex(0xFFFFFF), Hex(0xCDEFF8), Hex(0x2FA8CF),
     Hex(0xFFFFFF)},
    {u"Midnight", Hex(0x1A1F3D), Hex(0x6C78C9), Hex(0xE9ECFF), Hex(0x23284C), Hex(0x323A6B),
     Hex(0x8C9AF5), Hex(0xE3E7FF), Hex(0x0D1026), Hex(0xF6D77A), Hex(0xC9CFF5), Hex(0x6C78C9),
     Hex(0x11142C)},
    {u"Moss Garden", Hex(0x3F5B2A), Hex(0xA7C66B), Hex(0xFBFFE9), Hex(0xF1F4E1), Hex(0xDBE5BE),
     Hex(0x6F9A34), Hex(0x2C3E1C), Hex(0x26371A), Hex(0xF4F9DE), Hex(0xD2E3A6), Hex(0x7FA546),
     Hex(0xFFFFFF)},
    {u"Paper and Ink", Hex(0x2B2B2B), Hex(0x8A8A8A), Hex(0xFFFFFF), Hex(0xF7F5F0), Hex(0xE6E2D8),
     Hex(0x3C3C3C), Hex(0x1E1E1E), Hex(0xD9D4C7), Hex(0x141414), Hex(0x4A463D), Hex(0x2B2B2B),
     Hex(0xFFFFFF)},
    {u"Sunset Arcade", Hex(0x5B1E6B), Hex(0xFF8A5B), Hex(0xFFF0D9), Hex(0xFFD9A0), Hex(0xFFC078),
     Hex(0xD8436F), Hex(0x4B1650), Hex(0x3A1048), Hex(0xFFD98A), Hex(0xFFB38A), Hex(0xD8436F),
     Hex(0xFFF6E6)},
};

}  // namespace

std::vector<NamedScheme> Shipped_Schemes() {
    std::vector<NamedScheme> schemes;
    for (const Palette& palette : Palettes)
        schemes.push_back({palette.name, From_Palette(palette)});
    return schemes;
}

}  // namespace bannersmith
