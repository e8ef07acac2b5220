// Textures and pictures: what is decoded and encoded, fitted and dithered, and what is refused.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "base/numbers.h"
#include "generate/texture.h"
#include "support.h"
#include "texture/fitting.h"

using namespace bannersmith;

namespace {

using namespace std::string_literals;

std::mt19937 random_numbers(3);

std::string Random_Bytes(std::size_t size) {
    std::string bytes(size, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random_numbers());
    return bytes;
}

Picture Random_Picture(std::size_t width, std::size_t height) {
    return {width, height, Random_Bytes(TexelSize * width * height)};
}

const TexelFormat& Named(const char* name) { return *Find_Texel_Format(std::string_view(name)); }

Texel At(const Picture& picture, std::size_t x, std::size_t y) {
    Texel texel;
    std::copy_n(&picture.texels[TexelSize * (y * picture.width + x)], TexelSize, texel.begin());
    return texel;
}

/// A texture of one block, with a palette of two entries behind it.
std::string One_Block(std::uint32_t format, std::string block, std::uint32_t palette_format = 0) {
    const TexelFormat& texels = *Find_Texel_Format(format);
    block.resize(texels.block_bytes);
    std::string file = Make_Texture(Random_Picture(1, 1), {&Named("I4"), 1, 1})->substr(0, 0x40) + block;
    const auto palette = static_cast<std::uint32_t>(file.size());
    file += std::string(12, '\0') + "\x80\x40\x7C\x1F"s;
    Write_U32(file, 16, palette);
    Write_U16(file, 0x14, static_cast<std::uint16_t>(texels.block_height));
    Write_U16(file, 0x16, static_cast<std::uint16_t>(texels.block_width));
    Write_U32(file, 0x18, format);
    Write_U16(file, palette, 2);
    Write_U32(file, palette + 4, palette_format);
    Write_U32(file, palette + 8, palette + 12);
    return file;
}

}  // namespace

/// Each texel was worked out by hand from the bits.
TEST(Texture, ReadsEveryFormat) {
    const std::string halves = "\xF8\x1F" + std::string(30, '\0') + "\x7F\x80";
    const std::string mixed = "\xFF\xFF\0\0\xE4"s + std::string(11, '\0') + "\0\0\xFF\xFF\xE4"s;
    const std::tuple<std::uint32_t, std::string, std::size_t, std::size_t, Texel, std::uint32_t> rows[] = {
        {0, "\0\0\0\0\x5A"s, 0, 1, {0x55, 0x55, 0x55, 0x55}, 0},
        {5, "\xC2\x31", 0, 0, {0x84, 0x8C, 0x8C, 255}, 0},
        {5, "\x3A\x5F", 0, 0, {0xAA, 0x55, 0xFF, 0x6D}, 0},
        {6, halves, 0, 0, {0x1F, 0x7F, 0x80, 0xF8}, 0},
        {8, "\x01", 0, 0, {0x40, 0x40, 0x40, 0x80}, 0},
        {8, "\x02", 1, 0, {0, 0, 0, 0}, 0},
        {9, "\x01", 0, 0, {0x7B, 0x82, 0xFF, 255}, 1},
        {10, "\xC0\x01", 0, 0, {0xCC, 0x11, 0xFF, 0xFF}, 2},
        {14, mixed, 0, 0, {95, 95, 95, 255}, 0},
        {14, mixed, 1, 0, {159, 159, 159, 255}, 0},
        {14, mixed, 4, 1, {0, 0, 0, 255}, 0},
        {14, mixed, 0, 4, {127, 127, 127, 0}, 0},
        {14, mixed, 1, 4, {127, 127, 127, 255}, 0},
        {14, mixed, 2, 4, {255, 255, 255, 255}, 0},
    };
    for (const auto& [format, block, x, y, texel, palette] : rows) {
        EXPECT_EQ(At(*Decode_Texture(One_Block(format, block, palette)), x, y), texel)
            << Find_Texel_Format(format)->name;
    }
}

/// A texture becomes itself again, and a picture the nearest one that there is.
TEST(Texture, KeepsWhatAFormatCanKeep) {
    for (const TexelFormat& format : Texel_Formats()) {
        if (format.write == nullptr) {
            EXPECT_FALSE(Make_Texture(Random_Picture(8, 8), {&format, 8, 8}));
            continue;
        }
        SCOPED_TRACE(format.name);
        for (const auto& [w, h] : {std::pair<std::size_t, std::size_t>{16, 8}, {112, 17}, {1, 1}, {233, 167}}) {
            const std::string made = *Make_Texture(Random_Picture(w, h), {&format, w, h}),
                              header = made.substr(0, 0x40);
            const std::string texture = header + Random_Bytes(made.size() - 0x40);
            const Picture seen = *Decode_Texture(texture);
            const std::string again = *Make_Texture_Like(texture, seen);
            EXPECT_EQ(*Decode_Texture(again), seen);
            EXPECT_EQ(again.substr(0, 0x40), header);
            EXPECT_TRUE(again == texture || w * h % 64 != 0 || format.name == "RGB5A3");
            EXPECT_EQ(*Read_Picture(Write_Png(seen)), seen);
            EXPECT_EQ(Dither_For(format, seen, Dither::none), seen);
            for (const Dither dither : {Dither::ordered, Dither::diffusion}) {
                const Picture dithered = Dither_For(format, Random_Picture(w, h), dither);
                EXPECT_EQ(Dither_For(format, dithered, Dither::none), dithered) << "colours that it has";
            }
        }
    }
    for (const unsigned most : {7U, 15U, 31U, 63U, 255U}) {
        for (unsigned value = 0; value < 256; ++value) {
            const int chosen = std::abs(Expand(Reduce(value, most), most) - static_cast<int>(value));
            for (unsigned other = 0; other <= most; ++other) {
                EXPECT_LE(chosen, std::abs(Expand(other, most) - static_cast<int>(value))) << most << " " << value;
            }
        }
    }
}

TEST(Texture, SeesTransparencyAndGreyAsTheFormatDoes) {
    const std::tuple<const char*, Texel, std::string, Texel> rows[] = {
        {"I4", {255, 255, 255, 51}, "\x33", {51, 51, 51, 51}},
        {"I4", {0, 0, 255, 255}, "\x22", {34, 34, 34, 34}},
        {"I8", {255, 0, 0, 255}, "\x4C", {76, 76, 76, 76}},
        {"IA4", {0, 255, 0, 99}, "\x69", {153, 153, 153, 102}},
        {"IA8", {0, 255, 0, 99}, "\x63\x96", {150, 150, 150, 99}},
        {"RGB565", {255, 255, 0, 0}, std::string(2, '\0'), {0, 0, 0, 255}},
        {"RGB5A3", {255, 0, 66, 224}, "\xFC\x08", {255, 0, 66, 255}},
        {"RGB5A3", {8, 9, 255, 223}, "\x60\x1F", {0, 17, 255, 219}},
    };
    for (const auto& [format, texel, stored, seen] : rows) {
        const Picture picture{1, 1, std::string(texel.begin(), texel.end())};
        const std::string texture = *Make_Texture(picture, {&Named(format), 1, 1});
        EXPECT_EQ(texture.substr(0x40, stored.size()), stored) << format;
        EXPECT_EQ(At(*Decode_Texture(texture), 0, 0), seen) << format;
    }
}

/// A picture a quarter grey, a quarter red, half transparent, with a green line at its foot.
TEST(Fitting, CutsFramesAndStretchesWithoutBleeding) {
    Picture picture{40, 20, {}};
    const std::string columns[] = {"zzz\xFF", "\xFF\0\0\xFF"s, "\0\0\xFF\0"s, "\0\0\xFF\0"s};
    for (int i = 0; i < 40 * 14; ++i) picture.texels += columns[i % 40 / 10];
    for (int i = 0; i < 40 * 6; ++i) picture.texels += "\0\xFF\0\xFF"s;
    const Texel red{255, 0, 0, 255}, green{0, 255, 0, 255}, nothing{0, 0, 0, 0}, grey{'z', 'z', 'z', 255};
    const Picture cut = Fit_To(picture, 80, 80, Fit::crop), framed = Fit_To(picture, 80, 80, Fit::border);
    const Picture stretched = Fit_To(picture, 80, 10, Fit::stretch);
    EXPECT_TRUE(At(cut, 4, 0) == red && At(cut, 30, 40) == red && At(cut, 50, 40)[3] == 0 && At(cut, 79, 79) == green);
    EXPECT_TRUE(At(framed, 0, 19) == nothing && At(framed, 0, 20) == grey);
    EXPECT_TRUE(At(framed, 79, 59) == green && At(framed, 79, 60) == nothing);
    EXPECT_TRUE(At(stretched, 30, 5) == red && At(stretched, 79, 9) == green);
    const Texel edge = At(stretched, 40, 4);
    EXPECT_TRUE(edge[3] > 0 && edge[3] < 255 && edge[2] < 3) << "hidden blue: " << int{edge[2]};
    EXPECT_EQ(Fit_To(picture, 40, 20, Fit::crop), picture);
}

TEST(Fitting, DithersOnlyWhatHasManyColors) {
    Picture sky{64, 64, {}}, drawing{64, 64, {}};
    for (int i = 0; i < 64 * 64; ++i) {
        sky.texels += {static_cast<char>(100 + i % 3), static_cast<char>(i / 64), static_cast<char>(i % 64), '\xFF'};
        drawing.texels += "\x65\x13\x22\xFF";
    }
    const auto made = [&](const Picture& picture, std::optional<Dither> dither) {
        return *Decode_Texture(*Make_Texture(picture, {&Named("RGB565"), 64, 64}, {.dither = dither}));
    };
    EXPECT_EQ(made(sky, {}), made(sky, Dither::diffusion));
    EXPECT_EQ(made(drawing, {}), made(drawing, Dither::none));
    EXPECT_FALSE(made(sky, Dither::ordered) == made(sky, Dither::diffusion));
    const auto mean = [](const Picture& picture, std::size_t channel) {
        double sum = 0;
        for (std::size_t x = 0; x < 64 * 64; ++x) sum += At(picture, x, 0)[channel];
        return sum / (64 * 64);
    };
    for (std::size_t i = 0; i < 3; ++i) {
        for (const Dither dither : {Dither::ordered, Dither::diffusion}) {
            EXPECT_NEAR(mean(made(drawing, dither), i), mean(drawing, i), dither == Dither::ordered ? 0.6 : 0.1);
            EXPECT_NEAR(mean(made(sky, dither), i), mean(sky, i), 0.6);
        }
    }
    EXPECT_GT(std::abs(mean(made(drawing, Dither::none), 0) - mean(drawing, 0)), 1);
}

TEST(Texture, RefusesWhatIsBroken) {
    const std::string texture = *Make_Texture(Random_Picture(16, 16), {&Named("RGB565"), 16, 16});
    const std::string png = Write_Png(Random_Picture(30, 20));
    for (std::size_t size = 0; size < texture.size(); size += 3) EXPECT_FALSE(Decode_Texture(texture.substr(0, size)));
    for (std::size_t size = 0; size < png.size(); size += 7) EXPECT_FALSE(Read_Picture(png.substr(0, size)));
    for (const auto& [at, value] : {std::pair{0x14, 0}, {0x14, 1025}, {0x16, 0}, {6, 0}, {0x1A, 7}, {0x18, 1}}) {
        std::string broken = texture + std::string(0x10000, '\0');
        Write_U16(broken, static_cast<std::size_t>(at), static_cast<std::uint16_t>(value));
        EXPECT_FALSE(Decode_Texture(broken)) << at;
    }
    EXPECT_FALSE(Make_Texture_Like(std::string(texture).replace(0x36, 1, "\1"), Random_Picture(3, 3)));
    EXPECT_FALSE(Make_Texture(Random_Picture(3, 3), {&Named("I4"), 1025, 1}));
    EXPECT_FALSE(Decode_Texture(One_Block(9, std::string(32, '\0'), 3)));
    EXPECT_EQ(Make_Texture({1, 1, "zzz\xFF"}, {&Named("I8"), 1, 1})->substr(0x40), std::string(32, 'z')) << "filler";
    // The library would write 300 codes into room for 256.
    const std::string jpeg = Jpeg_File(Random_Picture(30, 20));
    const std::string table = "\xFF\xC4\x01\x3F\0"s + std::string(15, '\x14') + std::string(1 + 300, '\0');
    EXPECT_TRUE(Read_Picture(jpeg));
    EXPECT_EQ(Read_Picture(jpeg.substr(0, 2) + table + jpeg.substr(2)).Why().reason, "Picture is broken");
    EXPECT_FALSE(Read_Picture(jpeg.substr(0, jpeg.size() - 2)));
    EXPECT_EQ(Read_Picture("GIF89a").Why().reason, "Is neither a PNG nor a JPEG picture");
}
