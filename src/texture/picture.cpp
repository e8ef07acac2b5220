#include "texture/picture.h"

#include <memory>

#define STBI_ONLY_PNG
#define STBI_ONLY_JPEG
#define STBI_NO_STDIO
#define STBI_FAILURE_USERMSG
#define STBI_MAX_DIMENSIONS 8192
#define STB_IMAGE_STATIC
#define STB_IMAGE_IMPLEMENTATION
#include <stb_image.h>

#define STBI_WRITE_NO_STDIO
#define STB_IMAGE_WRITE_STATIC
#define STB_IMAGE_WRITE_IMPLEMENTATION
#include <stb_image_write.h>

namespace bannersmith {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view PngSignature = "\x89PNG\r\n\x1A\n"sv, JpegSignature = "\xFF\xD8\xFF"sv;

/// Of compressed bytes no format makes more texels than this; a header that says so lies.
constexpr std::size_t MostTexelsPerByte = 4096;

/// Whether the end of a JPEG's last scan is there. The library paints what is missing grey.
bool Is_Cut_Off(std::string_view jpeg) {
    const std::size_t scan = jpeg.rfind("\xFF\xDA"sv), end = jpeg.rfind("\xFF\xD9"sv);
    return scan == jpeg.npos || end == jpeg.npos || end < scan;
}

bool Is_Opaque(const Picture& picture) {
    for (std::size_t at = TexelSize - 1; at < picture.texels.size(); at += TexelSize) {
        if (picture.texels[at] != '\xFF') return false;
    }
    return true;
}

std::string Without_Alpha(const Picture& picture) {
    std::string texels;
    texels.reserve(picture.width * picture.height * 3);
    for (std::size_t at = 0; at < picture.texels.size(); at += TexelSize) {
        texels.append(picture.texels, at, 3);
    }
    return texels;
}

void Append(void* file, void* bytes, int size) {
    static_cast<std::string*>(file)->append(static_cast<const char*>(bytes),
                                            static_cast<std::size_t>(size));
}

}  // namespace

bool Is_Picture(std::string_view bytes) {
    return bytes.starts_with(PngSignature) || bytes.starts_with(JpegSignature);
}

Result<Picture> Read_Picture(std::string_view bytes) {
    if (!Is_Picture(bytes)) return Failure{u"", "Is neither a PNG nor a JPEG picture"};
    if (bytes.size() > std::size_t{1} << 30) return Failure{u"", "Is too large"};
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    const int size = static_cast<int>(bytes.size());
    int width = 0, height = 0, channels = 0;
    if (stbi_info_from_memory(data, size, &width, &height, &channels) == 0) {
        return Failure{u"", stbi_failure_reason()};
    }
    const std::size_t texels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (texels / MostTexelsPerByte > bytes.size() ||
        (bytes.starts_with(JpegSignature) && Is_Cut_Off(bytes))) {
        return Failure{u"", "Picture is cut off"};
    }
    const std::unique_ptr<stbi_uc, decltype(&stbi_image_free)> read(
        stbi_load_from_memory(data, size, &width, &height, &channels, TexelSize), stbi_image_free);
    if (!read) return Failure{u"", stbi_failure_reason()};
    return Picture{static_cast<std::size_t>(width), static_cast<std::size_t>(height),
                   std::string(reinterpret_cast<const char*>(read.get()), texels * TexelSize)};
}

std::string Write_Png(const Picture& picture) {
    const bool opaque = Is_Opaque(picture);
    const std::string texels = opaque ? Without_Alpha(picture) : picture.texels;
    const int channels = opaque ? 3 : 4, width = static_cast<int>(picture.width);
    std::string file;
    stbi_write_png_to_func(Append, &file, width, static_cast<int>(picture.height), channels,
                           texels.data(), width * channels);
    return file;
}

}  // namespace bannersmith
