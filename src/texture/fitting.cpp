#include "texture/fitting.h"

#include <stb_image_resize.h>

#include <algorithm>
#include <cmath>
#include <new>
#include <set>
#include <vector>

namespace bannersmith {

namespace {

constexpr std::size_t MostColorsOfADrawing = 256;

const unsigned char* Data_Of(const Picture& picture) {
    return reinterpret_cast<const unsigned char*>(picture.texels.data());
}

/// A stretch of the picture, all of it or its middle, in other sides.
Picture Scaled(const Picture& picture, double part_x, double part_y, std::size_t width,
               std::size_t height) {
    Picture scaled{width, height, std::string(TexelSize * width * height, '\0')};
    const auto edge = [](double part) { return static_cast<float>((1 - part) / 2); };
    const auto whole = [](std::size_t side) { return static_cast<int>(side); };
    const int done = stbir_resize_region(
        Data_Of(picture), whole(picture.width), whole(picture.height), 0,
        reinterpret_cast<unsigned char*>(scaled.texels.data()), whole(width), whole(height), 0,
        STBIR_TYPE_UINT8, TexelSize, TexelSize - 1, 0, STBIR_EDGE_CLAMP, STBIR_EDGE_CLAMP,
        STBIR_FILTER_DEFAULT, STBIR_FILTER_DEFAULT, STBIR_COLORSPACE_LINEAR, nullptr, edge(part_x),
        edge(part_y), 1 - edge(part_x), 1 - edge(part_y));
    if (done == 0) throw std::bad_alloc();
    return scaled;
}

/// `picture` in the middle of a transparent one.
Picture Framed(const Picture& picture, std::size_t width, std::size_t height) {
    Picture framed{width, height, std::string(TexelSize * width * height, '\0')};
    const std::size_t left = (width - picture.width) / 2, top = (height - picture.height) / 2;
    for (std::size_t y = 0; y < picture.height; ++y) {
        framed.texels.replace(TexelSize * ((top + y) * width + left), TexelSize * picture.width,
                              picture.texels, TexelSize * y * picture.width,
                              TexelSize * picture.width);
    }
    return framed;
}

bool Is_Drawing(const Picture& picture) {
    std::set<std::string_view> colors;
    const std::string_view texels = picture.texels;
    for (std::size_t at = 0; at < texels.size(); at += TexelSize) {
        colors.insert(texels.substr(at, TexelSize));
        if (colors.size() > MostColorsOfADrawing) return false;
    }
    return true;
}

/// What is added to a texel before it is rounded, in steps of the format.
double Pattern(std::size_t x, std::size_t y) {
    static constexpr int Order[4][4] = {
        {0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
    return (Order[y % 4][x % 4] + 0.5) / 16 - 0.5;
}

/// What the texels of a row are to get besides their colours, with one texel of room at each side.
using Errors = std::vector<std::array<double, 3>>;

/// Hands what a texel did not get to those that follow: right, and below.
void Diffuse(double error, std::size_t x, std::size_t channel, Errors& row, Errors& below) {
    row[x + 2][channel] += error * 7 / 16;
    below[x][channel] += error * 3 / 16;
    below[x + 1][channel] += error * 5 / 16;
    below[x + 2][channel] += error * 1 / 16;
}

}  // namespace

Picture Fit_To(const Picture& picture, std::size_t width, std::size_t height, Fit fit) {
    if (picture.width == width && picture.height == height) return picture;
    const double by_x = static_cast<double>(width) / static_cast<double>(picture.width);
    const double by_y = static_cast<double>(height) / static_cast<double>(picture.height);
    const auto side = [](std::size_t length, double by) {
        return std::max<std::size_t>(
            1, static_cast<std::size_t>(std::lround(static_cast<double>(length) * by)));
    };
    switch (fit) {
        case Fit::crop: {
            const double by = std::max(by_x, by_y);
            return Scaled(picture, by_x / by, by_y / by, width, height);
        }
        case Fit::border: {
            const double by = std::min(by_x, by_y);
            const std::size_t inner_width = side(picture.width, by);
            const std::size_t inner_height = side(picture.height, by);
            return Framed(Scaled(picture, 1, 1, inner_width, inner_height), width, height);
        }
        default:
            return Scaled(picture, 1, 1, width, height);
    }
}

Picture Dither_For(const TexelFormat& format, Picture picture, Dither dither) {
    Errors row(picture.width + 2), below(picture.width + 2);
    for (std::size_t y = 0; y < picture.height; ++y) {
        for (std::size_t x = 0; x < picture.width; ++x) {
            char* const place = &picture.texels[TexelSize * (y * picture.width + x)];
            Texel texel;
            std::copy_n(place, TexelSize, texel.begin());
            texel = Seen_As(format, texel);
            const bool is_short = format.name == "RGB5A3" && Takes_Short_Code(texel);
            for (std::size_t i = 0; i < 3; ++i) {
                const unsigned most = is_short ? 15 : format.most[i];
                double wanted = texel[i];
                const bool is_exact = Expand(Reduce(texel[i], most), most) == texel[i];
                if (dither == Dither::ordered && !is_exact) wanted += Pattern(x, y) * 255 / most;
                if (dither == Dither::diffusion) wanted += row[x + 1][i];
                const auto whole = static_cast<unsigned>(std::clamp(wanted + 0.5, 0.0, 255.0));
                texel[i] = Expand(Reduce(whole, most), most);
                Diffuse(wanted - texel[i], x, i, row, below);
            }
            if (format.keeps == Keeps::intensity) texel[3] = texel[0];
            std::copy(texel.begin(), texel.end(), place);
        }
        row.swap(below);
        below.assign(below.size(), {});
    }
    return picture;
}

namespace {

/// The picture as it will be stored.
Picture Prepared(const Picture& picture, const TextureInfo& wanted, const Fitting& fitting) {
    Picture fitted = Fit_To(picture, wanted.width, wanted.height, fitting.fit);
    const Dither chosen = Is_Drawing(picture) ? Dither::none : Dither::diffusion;
    const Dither dither = fitting.dither.value_or(chosen);
    if (dither == Dither::none) return fitted;
    return Dither_For(*wanted.format, std::move(fitted), dither);
}

}  // namespace

Result<std::string> Make_Texture(const Picture& picture, const TextureInfo& wanted,
                                 const Fitting& fitting) {
    if (const auto can = Can_Be_Made(wanted); !can) return can.Why();
    return Encode_Texture(*wanted.format, Prepared(picture, wanted, fitting));
}

Result<std::string> Make_Texture_Like(std::string_view texture, const Picture& picture,
                                      const Fitting& fitting) {
    const auto wanted = Describe_Texture(texture);
    if (!wanted) return Failure{u"", "Is no texture, or is cut off"};
    if (const auto can = Can_Be_Made(*wanted); !can) return can.Why();
    return With_Picture(std::string(texture), Prepared(picture, *wanted, fitting));
}

}  // namespace bannersmith
