#include "texture/picture.h"

#include <stb_image.h>
#include <stb_image_write.h>

#include <memory>

#include "base/numbers.h"

namespace bannersmith {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view PngSignature = "\x89PNG\r\n\x1A\n"sv, JpegSignature = "\xFF\xD8\xFF"sv;

/// What random changes break first, so that fuzzing would find nothing behind it.
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
constexpr bool ChecksumsCount = false;
#else
constexpr bool ChecksumsCount = true;
#endif

/// Of compressed bytes no format makes more texels than this; a header that says so lies.
constexpr std::size_t MostTexelsPerByte = 4096;

/// Whether a segment is made of Huffman tables, each of at most 256 codes. The library does not
/// ask.
bool Are_Tables(std::string_view segment) {
    constexpr std::size_t CountsAt = 1, HeaderSize = 17, MostCodes = 256;
    while (!segment.empty()) {
        if (segment.size() < HeaderSize) return false;
        std::size_t codes = 0;
        for (const char count : segment.substr(CountsAt, HeaderSize - CountsAt)) {
            codes += static_cast<unsigned char>(count);
        }
        if (codes > MostCodes || codes > segment.size() - HeaderSize) return false;
        segment.remove_prefix(HeaderSize + codes);
    }
    return true;
}

/// Walks over the segments of a JPEG up to its end. The library would paint what is missing grey.
Result<> Check_Jpeg(std::string_view bytes) {
    constexpr unsigned HuffmanTables = 0xC4, End = 0xD9, FirstBare = 0xD0, LastBare = 0xD8;
    const std::size_t last = bytes.size() - 1;  // no marker begins there
    for (std::size_t at = bytes.find('\xFF', 2); at < last; at = bytes.find('\xFF', at)) {
        const unsigned marker = static_cast<unsigned char>(bytes[at + 1]);
        at += marker == 0xFF ? 1 : 2;
        if (marker == End) return {};
        if (marker <= 1 || marker == 0xFF || (marker >= FirstBare && marker <= LastBare)) continue;
        const std::size_t length = bytes.size() - at < 2 ? bytes.size() : Read_U16(bytes, at);
        if (length > bytes.size() - at) break;
        if (length < 2 ||
            (marker == HuffmanTables && !Are_Tables(bytes.substr(at + 2, length - 2)))) {
            return Failure{u"", "Picture is broken"};
        }
        at += length;
    }
    return Failure{u"", "Picture is cut off"};
}

/// The checksum of a chunk (ISO 3309), of its type and contents.
std::uint32_t Crc32(std::string_view bytes) {
    std::uint32_t crc = ~0U;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320U : 0);
    }
    return ~crc;
}

/// Walks over the chunks of a PNG up to its end. The library would take memory for any length, and
/// looks at no checksum.
Result<> Check_Png(std::string_view bytes) {
    constexpr std::size_t LengthSize = 4, Around = 12;  // length, type, checksum
    for (std::size_t at = PngSignature.size(); bytes.size() - at >= Around;) {
        const std::size_t length = Read_U32(bytes, at);
        if (bytes.size() - at - Around < length) break;
        const std::string_view summed = bytes.substr(at + LengthSize, LengthSize + length);
        if (ChecksumsCount && Crc32(summed) != Read_U32(bytes, at + 2 * LengthSize + length)) {
            return Failure{u"", "Picture is broken"};
        }
        if (bytes.substr(at + LengthSize, 4) == "IEND") return {};
        at += Around + length;
    }
    return Failure{u"", "Picture is cut off"};
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
    const auto checked = bytes.starts_with(PngSignature) ? Check_Png(bytes) : Check_Jpeg(bytes);
    if (!checked) return checked.Why();
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    const int size = static_cast<int>(bytes.size());
    int width = 0, height = 0, channels = 0;
    if (stbi_info_from_memory(data, size, &width, &height, &channels) == 0) {
        return Failure{u"", stbi_failure_reason()};
    }
    const std::size_t texels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (texels / MostTexelsPerByte > bytes.size()) return Failure{u"", "Picture is cut off"};
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
