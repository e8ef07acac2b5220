// The drawing of banners: each step beside the plainest form of its rule, in fractions, and the whole on the samples.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "generate/banners.h"
#include "generate/channel.h"
#include "layout/file_length.h"
#include "mainwindow/form1.h"
#include "noting_desktop.h"
#include "still/part.h"
#include "support.h"

using namespace bannersmith;
using still::Lanes, still::Pixels, still::Wrap;

namespace {

std::mt19937 random_numbers(16);
unsigned Random(unsigned below) { return static_cast<unsigned>(random_numbers() % below); }

using Color = std::array<double, 4>;  // 0 to 255
Color Random_Color() {
    Color color;
    for (double& c : color) c = Random(3) == 0 ? Random(2) * 255 : Random(256);
    return color;
}
Lanes Twice(const Color& color) { return still::Both(color); }
double Low_Bits(double number) { return number - 256 * std::floor(number / 256); }

/// What a stage makes of its inputs, as the format says it. `half`: 0 its colours, 1 its alpha.
double Plain_Stage(const still::Stage& stage, std::size_t half, std::size_t channel, std::array<Color, 4>& registers,
                   const Color& texture, const Color& drawn, const Color& constant) {
    std::array<double, 4> in, compared;
    for (std::size_t i = 0; i < 4; ++i) {
        const auto nibble = [&](std::size_t at) {
            return static_cast<std::size_t>(stage[at + i / 2] >> (i % 2 * 4) & 15);
        };
        const std::array<const Color*, 6> sources = {&registers[0], &registers[1], &registers[2],
                                                     &registers[3], &texture,      &drawn};
        const std::size_t color = nibble(4), alpha = nibble(8) & 7;
        const auto of_color = [&](std::size_t c) {
            if (color < 12) return (*sources[color / 2])[color % 2 == 1 ? 3 : c];
            return std::array{255.0, 128.0, constant[c], 0.0}[color - 12];
        };
        in[i] = half == 0 ? of_color(channel) : alpha < 6 ? (*sources[alpha])[3] : alpha == 6 ? constant[3] : 0;
        const auto low = [&](std::size_t c) { return Low_Bits(of_color(c)); };
        compared[i] = std::array{low(0), low(0) + 256 * low(1), low(0) + 256 * low(1) + 65536 * low(2),
                                 Low_Bits(in[i])}[std::clamp<std::size_t>((stage[6 + 4 * half] & 15) / 2, 4, 7) - 4];
    }
    for (std::size_t i = 0; i < 3; ++i) in[i] = Low_Bits(in[i]);
    const unsigned operation = stage[6 + 4 * half], kind = operation & 15;
    const double mixed = (1 - in[2] / 255) * in[0] + in[2] / 255 * in[1];
    double result = in[3] + (kind == 1 ? -mixed : mixed) + std::array{0, 128, -128, 0}[operation >> 4 & 3];
    result *= std::array{1.0, 2.0, 4.0, 0.5}[operation >> 6];
    const bool holds = kind % 2 == 0 ? compared[0] > compared[1] : compared[0] == compared[1];
    if (kind >= 8) result = in[3] + (holds ? in[2] : 0);
    const bool clamps = (stage[7 + 4 * half] & 1) != 0;
    return std::clamp(std::round(result), clamps ? 0.0 : -1024.0, clamps ? 255.0 : 1023.0);
}

TEST(Stages, ComputeWhatTheirBytesSay) {
    for (int round = 0; round < 20000; ++round) {
        still::Material material;
        material.maps = {{}};
        for (auto& color : material.registers) {
            for (auto& c : color) c = static_cast<std::int16_t>(Random(4) == 0 ? Random(900) - 400 : Random(256));
        }
        for (auto& color : material.constants) std::generate(color.begin(), color.end(), [] { return Random(256); });
        still::Stage stage{0, 4, 0, 0};
        for (std::size_t i = 4; i < 12; ++i) stage[i] = static_cast<std::uint8_t>(Random(256));
        for (const std::size_t at : {6U, 10U}) {
            stage[at] = static_cast<std::uint8_t>(Random(2) == 0 ? Random(2) | Random(16) << 4 : 8 + Random(8));
        }
        for (const std::size_t at : {7U, 11U}) stage[at] &= 0xF9;  // into PREV
        material.stages = {stage};
        const Color texture = Random_Color(), drawn = Random_Color();
        std::array<Color, 4> registers{};
        for (std::size_t r = 1; r < 4; ++r) std::copy_n(material.registers[r - 1].begin(), 4, registers[r].begin());
        const auto constant = [&](unsigned selector, std::size_t c) -> double {
            if (selector < 8) return std::round(255 * (8 - selector) / 8.0);
            if (selector < 12) return 0;
            return material.constants[selector % 4][selector < 16 ? c : (selector - 16) / 4];
        };
        still::Shader shader(material);
        std::array<Lanes, 2> room = {Twice(texture), Twice(drawn)};
        const Pixels made = shader.Shade({&room[1], round % 2 == 0}, {{&room[0], round % 3 == 0}}, 1);
        for (std::size_t c = 0; c < 4; ++c) {
            const Color constants = {constant(stage[7] >> 3U, 0), constant(stage[7] >> 3U, 1),
                                     constant(stage[7] >> 3U, 2), constant(stage[11] >> 3U, 3)};
            const double wanted = Plain_Stage(stage, c / 3, c, registers, texture, drawn, constants);
            const int scale = std::array{1, 2, 4, 1}[stage[c < 3 ? 6 : 10] >> 6];
            EXPECT_NEAR(made.At(0)[c], std::clamp(wanted, 0.0, 255.0), scale) << round << " channel " << c;
        }
    }
}

TEST(Stages, AreThoseOfTheConsoleWhereAMaterialHasNone) {
    using still::Rgba;
    struct Row {
        std::size_t maps;
        bool is_tinted;
        Color wanted;
    };
    // Textures 100, 200, 40; K3 = 255, 0, 51, 204; C0 = 0, 0, 0, 0; C1 = white, or half of it; drawn half.
    const Row rows[] = {{0, true, {64, 64, 64, 64}},  {1, false, {50, 50, 50, 50}}, {1, true, {25, 25, 25, 25}},
                        {2, false, {60, 60, 60, 60}}, {2, true, {30, 30, 30, 30}},  {3, false, {60, 60, 60, 60}}};
    for (const Row& row : rows) {
        still::Material material;
        material.maps.resize(row.maps);
        material.registers[1].fill(row.is_tinted ? 128 : 255);
        material.constants[3] = {255, 0, 51, 204};
        std::array<Lanes, 4> room = {still::Everywhere(100), still::Everywhere(200), still::Everywhere(40),
                                     still::Everywhere(128)};
        still::Shader shader(material);
        ASSERT_EQ(shader.Taps().size(), row.maps);
        const Pixels made =
            shader.Shade({&room[3], true}, {{room.data(), true}, {&room[1], true}, {&room[2], true}}, 1);
        for (std::size_t c = 0; c < 4; ++c) EXPECT_NEAR(made.At(0)[c], row.wanted[c], 1) << row.maps << row.is_tinted;
    }
}

TEST(Canvas, PutsPixelsAsItsModesSay) {
    for (int round = 0; round < 5000; ++round) {
        const Color source = Random_Color(), there = Random_Color();
        const auto byte = [](unsigned below) { return static_cast<std::uint8_t>(Random(below)); };
        const still::BlendMode mode{byte(4), byte(8), byte(8), 6};
        const still::AlphaCompare compare{byte(256), byte(4), {byte(256), static_cast<std::uint8_t>(source[3])}};
        still::Rgba background{};
        std::copy(there.begin(), there.end(), background.begin());
        still::Canvas canvas(3, 2, background);
        std::array<Lanes, 1> room = {Twice(source)};
        canvas.Put(1, 1, 1, {room.data(), false}, compare, mode);
        const auto passes = [&](unsigned shift, double reference) {
            const int which = source[3] < reference ? 1 : source[3] == reference ? 2 : 4;
            return (compare.comparisons >> shift & which) != 0;
        };
        const bool a = passes(0, compare.references[0]), b = passes(4, compare.references[1]);
        const bool drawn = std::array{a && b, a || b, a != b, a == b}[compare.operation];
        for (std::size_t c = 0; c < 3; ++c) {
            const double s = source[c], d = there[c];
            const std::array<double, 8> factors = {0, 255, 0, 0, source[3], 255 - source[3], there[3], 255 - there[3]};
            const auto factor = [&](unsigned f, double other) {
                return f == 2 ? other : f == 3 ? 255 - other : factors[f];
            };
            const double blended =
                std::min(255.0, (s * factor(mode.source, d) + d * factor(mode.destination, s)) / 255);
            const auto logic = static_cast<double>(static_cast<int>(s) ^ static_cast<int>(d));
            const double wanted = std::array{s, blended, logic, std::max(0.0, d - s)}[mode.type];
            const Picture picture = canvas.Taken();
            const auto at = [&](std::size_t x, std::size_t y) {
                return static_cast<unsigned char>(picture.texels[(y * 3 + x) * 4 + c]);
            };
            EXPECT_NEAR(at(1, 1), drawn ? wanted : d, 1) << round;
            EXPECT_EQ(at(0, 1), d) << "beside it";
            EXPECT_EQ(at(2, 1), d) << "beside it";
        }
    }
}

TEST(Textures, AreFilteredAndGoOnAsTheirWrapsSay) {
    for (int round = 0; round < 300; ++round) {
        Picture picture{1 + Random(9), 1 + Random(9), {}};
        for (std::size_t i = 0; i < picture.width * picture.height * TexelSize; ++i)
            picture.texels += static_cast<char>(Random(256));
        const auto wrap_s = Wrap(Random(3)), wrap_t = Wrap(Random(3));
        const auto index = [](long at, std::size_t count, Wrap wrap) {
            const auto side = static_cast<long>(count), period = wrap == Wrap::mirror ? 2 * side : side;
            if (wrap == Wrap::clamp) return std::clamp(at, 0L, side - 1);
            const long rest = (at % period + period) % period;
            return rest < side ? rest : period - 1 - rest;
        };
        const auto texel = [&](long x, long y, std::size_t c) -> double {
            const auto at = static_cast<std::size_t>(index(y, picture.height, wrap_t)) * picture.width +
                            static_cast<std::size_t>(index(x, picture.width, wrap_s));
            return static_cast<unsigned char>(picture.texels[at * TexelSize + c]);
        };
        const auto travel = [] {
            return still::Travel{Random(4000) / 100.0 - 20, Random(3) == 0 ? 0 : Random(600) / 100.0 - 3};
        };
        const still::Travel s = travel(), t = travel();
        const still::Texels texels(picture, wrap_s, wrap_t);
        std::array<Lanes, 32> taken;
        still::Sampler(texels, wrap_s, wrap_t).Take(s, t, 63, taken.data());
        for (std::size_t i = 0; i < 63; ++i) {
            const double u = s.start + s.step * static_cast<double>(i) - 0.5,
                         v = t.start + t.step * static_cast<double>(i) - 0.5;
            const auto x = static_cast<long>(std::floor(u)), y = static_cast<long>(std::floor(v));
            const double right = u - std::floor(u), down = v - std::floor(v);
            for (std::size_t c = 0; c < 4; ++c) {
                const double upper = texel(x, y, c) * (1 - right) + texel(x + 1, y, c) * right;
                const double lower = texel(x, y + 1, c) * (1 - right) + texel(x + 1, y + 1, c) * right;
                EXPECT_NEAR(taken[i / 2][i % 2 * 4 + c], upper * (1 - down) + lower * down, 2)
                    << round << " pixel " << i;
            }
        }
    }
}

TEST(Filling, CoversEachPixelOnceAndShadesInTwoTriangles) {
    still::Material material;
    material.registers[1].fill(255);
    material.blend = {1, 1, 1, 0};  // adds
    still::Shader shader(material);
    still::Canvas canvas(64, 48, {0, 0, 0, 255});
    const auto corner = [](double along, double across) {  // of a grid that is turned
        return still::Point{static_cast<float>(32 + along * 0.8 - across * 0.6),
                            static_cast<float>(24 + along * 0.6 + across * 0.8)};
    };
    for (int i = -8; i < 8; ++i) {
        for (int j = -8; j < 8; ++j) {
            still::Quad quad{{corner(i * 7.3, j * 7.3), corner(i * 7.3 + 7.3, j * 7.3), corner(i * 7.3, j * 7.3 + 7.3),
                              corner(i * 7.3 + 7.3, j * 7.3 + 7.3)}};
            quad.colors.fill({100, 100, 100, 255});
            Fill(canvas, quad, material, shader, {});
        }
    }
    EXPECT_EQ(canvas.Taken().texels, still::Canvas(64, 48, {100, 100, 100, 255}).Taken().texels);
    still::Quad bent{{{{0, 0}, {40, 0}, {0, 40}, {40, 40}}},
                     {{{0, 0, 0, 255}, {200, 0, 0, 255}, {0, 0, 0, 255}, {0, 0, 0, 255}}}};
    material.blend = {};
    Fill(canvas, bent, material, shader, {});
    const Picture picture = canvas.Taken();
    EXPECT_EQ(picture.texels[(20 * 64 + 10) * 4], 0) << "below the line from left top to right bottom";
    EXPECT_NEAR(static_cast<unsigned char>(picture.texels[(10 * 64 + 29) * 4]), (29.5 - 10.5) / 40 * 200, 1);
}

TEST(Curves, RunThroughTheirKeys) {
    const still::Curve smooth{true, {{10, 100, 2}, {20, 200, -4}, {20, 50, 0}, {30, 70, 0}}};
    const still::Curve steps{false, {{10, 1, 0}, {20, 2, 0}}};
    const std::pair<float, float> wanted[] = {{0, 100}, {10, 100}, {15, 157.5F}, {20, 50}, {25, 60}, {99, 70}};
    for (const auto& [frame, value] : wanted) EXPECT_FLOAT_EQ(smooth.At(frame), value) << frame;
    EXPECT_EQ(steps.At(5) * 100 + steps.At(19.9F) * 10 + steps.At(20), 112);
}

/// The pixels in which two pictures differ: the rectangle around them.
std::array<std::size_t, 4> Difference(const Picture& a, const Picture& b) {
    std::array<std::size_t, 4> around = {a.width, a.height, 0, 0};
    for (std::size_t i = 0; i < a.width * a.height; ++i) {
        if (a.texels.compare(i * 4, 4, b.texels, i * 4, 4) == 0) continue;
        around = {std::min(around[0], i % a.width), std::min(around[1], i / a.width),
                  std::max(around[2], i % a.width + 1), std::max(around[3], i / a.width + 1)};
    }
    return around;
}

TEST(Channel, IsDrawnByItsLanguagesPartsAndFrames) {
    Banner banner = Banner::From_Bytes(Channel_Banner(), {}, 0);
    ASSERT_TRUE(banner.Apply(SetField{Field::title, u"GER", u"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW^^^"}));
    const Archive channel = *Archive::Read(Sample_Channel());
    const std::string folder = "meta/banner.bin/arc/";
    still::Still part({Set_File_Len(banner.Bytes()), *channel.Find_File(folder + "anim/banner_Start.brlan"),
                       *channel.Find_File(folder + "anim/banner_Loop.brlan"),
                       [&](const std::string& name) { return channel.Find_File(folder + "timg/" + name); }});
    auto font = still::Font::Open(u"" PROGRAM_FOLDER, u"");
    ASSERT_TRUE(font);
    const auto draw = [&](still::View view, std::size_t frame) { return part.Draw(view, frame, &*font); };
    const still::Drawn english = draw({.language = "ENG"}, 211), german = draw({.language = "GER"}, 211);
    EXPECT_TRUE(english.faults.empty());
    EXPECT_EQ(Difference(english.picture, draw({}, 211).picture)[3], 0) << "English without being asked for";
    EXPECT_EQ(draw({.language = "KOR"}, 211).faults, std::vector<std::string>{"there is no text in the language KOR"});
    for (const still::TextFit& text : english.texts) EXPECT_FALSE(text.is_too_wide || text.is_too_high) << text.pane;
    for (const still::TextFit& text : german.texts) {
        EXPECT_EQ(text.is_too_wide && text.is_too_high, text.pane == "T_VCTitle_GER") << text.pane;
    }
    const auto [left, top, right, bottom] = Difference(part.Draw({}, 211, nullptr).picture, english.picture);
    EXPECT_TRUE(left > 30 && top > 10 && right < 560 && bottom < 440 && right > 480)
        << left << " " << top << " " << right << " " << bottom;
    const auto starts = Difference(part.Draw({}, 0, nullptr).picture, part.Draw({}, 211, nullptr).picture);
    EXPECT_LT(starts[0], 330) << "the game's picture is not there yet";
    const Picture wide = draw({.language = "", .is_wide = true}, 211).picture;
    EXPECT_EQ(wide.width * 1000 + wide.height, 832456);
    EXPECT_EQ(Difference(draw({}, 211 + 7).picture, draw({}, 211 + 7 + 3999).picture)[3], 0) << "it begins anew";
    EXPECT_EQ(still::Read_Scene(Set_File_Len(banner.Bytes())).faults.size(), 0);
}

TEST(LiveView, ShowsWhatIsTypedAndChosenAndPlays) {
    const TempFolder home;
    NotingDesktop desktop;
    home.Write("c.app", Sample_Channel());
    home.Write("alone/blyt/x.brlyt", Channel_Banner());
    home.Write("schemes/Black.vccs", Format_Scheme({}));
    std::filesystem::create_directory_symlink(PROGRAM_FOLDER "/fonts", home.Path() / "fonts");
    Form1 main({home.Text(), u""}, desktop);
    main.txtSrc.Set(u"\\c.app");
    const auto draw = [&] {
        main.live.Draw();
        return main.live.picture.Value();
    };
    EXPECT_EQ(draw().width, 608);
    int wanted = 0;
    main.live.Wanted = [&] { ++wanted; };
    const auto step = [&](const std::function<void()>& change) {
        const Picture before = draw();
        change();
        return Difference(before, draw());
    };
    const auto typed = step([&] { main.info.txtName.Set(u"X"); });
    EXPECT_TRUE(wanted == 1 && typed[0] > 150 && typed[1] > 330 && typed[3] < 420) << typed[1];
    EXPECT_EQ(step([&] { main.cmdSet_Click(0); })[3], 0) << "set, it looks as it did when typed";
    const Picture set = draw();
    EXPECT_GT(step([&] { main.info.cmbRegion[0].Pick(1); })[3], 0) << "the language of the name";
    EXPECT_GT(step([&] { main.live.cmbLanguage.Pick(7); })[3], 0) << "Japanese";
    main.RefreshColorList_Here();
    EXPECT_EQ(step([&] { main.cmbFileList.Pick(1); })[2], 608) << "all is black";
    main.cmbFileList.Pick(0);
    EXPECT_GT(step([&] { main.live.Play_Click(); })[3], 0);
    EXPECT_GT(step([&] { main.live.Play_To(100 / 60.0); })[3], 0);
    main.live.Play_Click();
    main.live.cmbLanguage.Pick(1);
    EXPECT_EQ(Difference(set, draw())[3], 0) << "English again, and all in its place";
    EXPECT_TRUE(main.live.What_Is_At(450, 180).starts_with(u"VCPic (VCPic)\nVCPicBase"));
    main.live.cmbPart.Pick(1);
    main.live.cmbWidth.Pick(1);
    EXPECT_EQ(draw().width, 170);
    main.live.cmbPart.Pick(0);
    main.txtSrc.Set(u"\\alone/blyt/x.brlyt");
    EXPECT_EQ(draw().width, 832);
    EXPECT_EQ(std::ranges::count_if(main.live.Regions(), [](const auto& region) { return !region.missing.empty(); }),
              11);
    main.txtSrc.Set(u"\\none");
    EXPECT_TRUE(draw().texels.empty() &&
                main.live.lblAbout.Caption() == u"Drop a channel's file, a layout or a folder here, or open one");
}

}  // namespace
