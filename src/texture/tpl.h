// Textures (".tpl") as the console reads them: a table of images, each with a header of its own.
// What is said here of a texture is said of its first image.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"
#include "texture/picture.h"
#include "texture/texels.h"

namespace bannersmith {

/// The longest side of a texture that the console draws.
constexpr std::size_t LongestTextureSide = 1024;

/// What a texture is.
struct TextureInfo {
    const TexelFormat* format = nullptr;
    std::size_t width = 0, height = 0;

    bool operator==(const TextureInfo&) const = default;

    /// "I4 512 x 64".
    std::string Text() const;
};

/// What `bytes`, a texture file, say of it. Nothing where they are no texture, say a format that
/// the console does not know, or lack bytes of the image.
std::optional<TextureInfo> Describe_Texture(std::string_view bytes);

/// The picture. Fails, without a subject, for bytes that are no texture, for a side that is 0 or
/// above `LongestTextureSide`, and for colours that are cut off.
Result<Picture> Decode_Texture(std::string_view bytes);

/// Whether a texture of that size and format can be made; the failure has no subject.
Result<> Can_Be_Made(const TextureInfo& wanted);

/// A texture file of one image, its header at 0x14 and its texels at 0x40, clamped and filtered
/// linearly. Only what `Can_Be_Made` may be asked for; `picture` has its size.
std::string Encode_Texture(const TexelFormat& format, const Picture& picture);

/// `texture`, which can be described and made, with another picture of its size. Everything else
/// stays: header, wrap, filter, places, other images. Fails, without a subject, where smaller
/// levels of detail are stored, too, as they would still show what was there, and where texels lie
/// over a header.
Result<std::string> With_Picture(std::string texture, const Picture& picture);

}  // namespace bannersmith
