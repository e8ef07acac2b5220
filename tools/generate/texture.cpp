#include "generate/texture.h"

#include <algorithm>
#include <cmath>

#include "texture/tpl.h"

#include <stb_image_write.h>

namespace bannersmith {

namespace {

/// `value` (0 to 1) as a byte.
char Level(double value) {
    return static_cast<char>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
}

}  // namespace

std::string Texture_File(TextureFormat format, int width, int height,
                         const std::function<Pixel(int x, int y)>& pixel) {
    const TexelFormat& texels = *Find_Texel_Format(static_cast<std::uint32_t>(format));
    const bool grey = texels.keeps == Keeps::intensity || texels.keeps == Keeps::intensity_alpha;
    Picture picture{static_cast<std::size_t>(width), static_cast<std::size_t>(height), {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const Pixel p = pixel(x, y);
            picture.texels += {Level(grey ? p.green : p.red), Level(p.green),
                               Level(grey ? p.green : p.blue), Level(p.alpha)};
        }
    }
    return Encode_Texture(texels, picture);
}

std::string Jpeg_File(const Picture& picture) {
    constexpr int Quality = 90;
    std::string file;
    const auto append = [](void* out, void* bytes, int size) {
        static_cast<std::string*>(out)->append(static_cast<char*>(bytes),
                                               static_cast<std::size_t>(size));
    };
    stbi_write_jpg_to_func(append, &file, static_cast<int>(picture.width),
                           static_cast<int>(picture.height), TexelSize, picture.texels.data(),
                           Quality);
    return file;
}

}  // namespace bannersmith
