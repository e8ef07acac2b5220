// Any bytes as a texture or as a picture; what could be read becomes textures again.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "texture/fitting.h"

using namespace bannersmith;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto picture = Is_Picture(bytes) ? Read_Picture(bytes) : Decode_Texture(bytes);
    if (!picture || picture->width * picture->height > 1U << 12) return 0;
    const auto like = Make_Texture_Like(bytes, *picture);
    if (like && *Decode_Texture(*like) != *picture) std::abort();
    const Fit fit = static_cast<Fit>(size % 3);
    for (const TexelFormat& format : Texel_Formats()) {
        const auto made = Make_Texture(*picture, {&format, 1 + size % 40, 1 + size % 23}, {.fit = fit});
        if (made && !Decode_Texture(*made)) std::abort();
    }
    return 0;
}
