#include "colors/window/swatches.h"

#include <array>
#include <utility>

namespace bannersmith {

Picture Swatches_Of(const Scheme& scheme) {
    constexpr std::uint32_t Width = 48, Height = 16;
    constexpr std::array<std::pair<std::u16string_view, std::size_t>, 6> Told = {
        {{u"PFLINE", 1},
         {u"Back1", 0},
         {u"Back1", 1},
         {u"YearLine", 1},
         {u"T_VCTitle", 1},
         {u"BackMask2", 1}}};
    Picture picture{Width, Height, {}};
    for (std::uint32_t at = 0; at < Width * Height; ++at) {
        const auto& [key, box] = Told[at % Width * Told.size() / Width];
        const Color color = scheme[Element_Index(key)][box];
        for (const std::uint8_t part :
             {Red_Of(color), Green_Of(color), Blue_Of(color), std::uint8_t{255}}) {
            picture.texels += static_cast<char>(part);
        }
    }
    return picture;
}

}  // namespace bannersmith
