// The elements of a banner that have colours of their own.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "gameinfo/boxes.h"

namespace bannersmith {

/// The inks of a palette, of which our own schemes and samples are made.
enum class Ink : std::size_t {
    bar,
    bar_edge,
    bar_text,  ///< the console's bar at the top
    paper,
    pattern,  ///< background and the large pattern on it
    line,
    ink,  ///< lines and texts on the paper
    floor,
    title,
    rating,  ///< the lower area and the texts on it
    frame,
    screen,  ///< the picture's frame
    shadow,  ///< under what lies on the floor
};

/// An ink, or the colour so many eighths of the way from it to another one.
struct Tone {
    Ink from;
    Ink to = from;
    int eighths = 0;
};

/// One element.
struct Element {
    std::u16string_view key;       ///< its name in the windows
    std::u16string_view material;  ///< of a text's materials what is in front of the language code
    std::size_t row, column;       ///< its place in the colour window
    Tone first, second;            ///< its two colours in our samples
    std::optional<Field> text = {};  ///< the field whose text it is, with a material per language
};

/// All elements, in the order of the scheme file's lines.
inline constexpr std::array<Element, 19> Elements = {{
    {u"PFLINE", u"PFLine", 0, 0, {Ink::bar_edge}, {Ink::bar}},
    {u"T_PF", SystemBox, 0, 1, {Ink::bar, Ink::bar_edge, 4}, {Ink::bar_text}},
    {u"Shade", u"Shade", 0, 2, {Ink::shadow}, {Ink::floor}},
    {u"Back0", u"Back0", 0, 6, {Ink::paper}, {Ink::pattern}},
    {u"Back1", u"Back1", 0, 7, {Ink::paper}, {Ink::pattern}},
    {u"Back2", u"Back2", 0, 8, {Ink::paper}, {Ink::pattern, Ink::paper, 2}},
    {u"Back3", u"Back3", 0, 9, {Ink::paper}, {Ink::pattern, Ink::floor, 2}},
    {u"Back4", u"Back4", 0, 10, {Ink::paper}, {Ink::pattern, Ink::paper, 3}},
    {u"YearLine", u"YearLine", 1, 0, {Ink::paper}, {Ink::line}},
    {u"PlayLine", u"PlayLine", 1, 1, {Ink::paper}, {Ink::line}},
    {u"T_VCTitle", box_prefix::Title, 1, 2, {Ink::shadow}, {Ink::title}, Field::title},
    {u"T_Play", box_prefix::Players, 1, 4, {Ink::paper}, {Ink::ink}, Field::players},
    {u"T_Year", box_prefix::Year, 1, 3, {Ink::paper}, {Ink::ink}, Field::year},
    {u"T_ESRB", box_prefix::Rating, 1, 5, {Ink::shadow}, {Ink::rating}, Field::rating},
    {u"VCPic", u"VCPic", 0, 3, {Ink::frame}, {Ink::screen}},
    {u"VCPicBase", u"VCPicBase", 0, 4, {Ink::shadow}, {Ink::screen}},
    {u"VCPicSha", u"VCPicSha", 0, 5, {Ink::shadow}, {Ink::floor, Ink::shadow, 4}},
    {u"BackMask1", u"BackMask1", 0, 11, {Ink::paper}, {Ink::floor}},
    {u"BackMask2", u"BackMask2", 0, 12, {Ink::shadow}, {Ink::floor}},
}};

/// The place of the element called `key` in `Elements`; their number where there is none.
constexpr std::size_t Element_Index(std::u16string_view key) {
    std::size_t index = 0;
    while (index < Elements.size() && Elements[index].key != key) ++index;
    return index;
}

}  // namespace bannersmith
