// Textures (".tpl") as the console reads them: a table of images, each with a header of its own.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace bannersmith {

/// What the first image of a texture is.
struct TextureInfo {
    std::string_view format;  ///< "RGB565" and so on
    std::size_t width = 0, height = 0;
};

/// What `bytes`, a texture file, say of their first image. Nothing where they are no texture, say a
/// format that the console does not know, or lack bytes of the image.
std::optional<TextureInfo> Describe_Texture(std::string_view bytes);

}  // namespace bannersmith
