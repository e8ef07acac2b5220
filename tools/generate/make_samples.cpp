// make-samples FOLDER: fills a program folder with everything that is not a program: the sample
// banners, the schemes, the logos and a configuration that names the first sample.
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <numbers>
#include <stdexcept>
#include <string>

#include "base/text.h"
#include "colors/scheme.h"
#include "exchange/csv.h"
#include "generate/banners.h"
#include "generate/channel.h"
#include "generate/texture.h"
#include "system/replace_files.h"

using namespace bannersmith;

namespace {

namespace fs = std::filesystem;

constexpr int LogoWidth = 256, LogoHeight = 64;

void Write(const fs::path& path, std::string_view bytes) {
    fs::create_directories(path.parent_path());
    const auto written = Replace_File(From_Utf8(path.string()), bytes);
    if (!written) throw std::runtime_error(path.string() + ": " + written.Why().reason);
}

/// 1 inside a shape, 0 outside, and a soft edge one pixel wide; `distance` is negative inside.
double Inside(double distance) {
    return std::fmin(1, std::fmax(0, 0.5 - distance));
}

double Ring(int x, int y, double centre_x, double radius, double thickness) {
    const double distance = std::hypot(x - centre_x, y - LogoHeight / 2.0);
    return Inside(std::abs(distance - radius) - thickness / 2);
}

Pixel Rings(int x, int y) {
    double light = 0;
    for (const double centre : {64.0, 128.0, 192.0})
        light = std::fmax(light, Ring(x, y, centre, 24, 6));
    return {light, light, light, light};
}

Pixel Diamonds(int x, int y) {
    const double across = std::abs(x % 64 - 32), down = std::abs(y - 32);
    const double light = Inside(across + down - 26) - 0.6 * Inside(across + down - 14);
    return {light, light, light, light};
}

Pixel Comet(int x, int y) {
    const double head = Inside(std::hypot(x - 208, y - 24) - 14);
    const double tail = Inside(std::abs(y - 24 - (208 - x) * 0.12) - x / 18.0) * x / 256.0;
    const double light = std::fmax(head, x < 208 ? tail * 0.9 : 0);
    return {light, light, light, light};
}

Pixel Waves(int x, int y) {
    const double wave = 32 + 14 * std::sin(x * 2 * std::numbers::pi / 64);
    const double light =
        std::fmax(Inside(std::abs(y - wave) - 4), 0.5 * Inside(std::abs(y - wave - 14) - 2));
    return {0.3 * light, 0.7 * light, light, light};
}

Pixel Sunrise(int x, int y) {
    const double sun = Inside(std::hypot(x - 128, y - 56) - 40);
    const double bands = y > 40 && y % 8 < 3 ? 0 : 1;
    const double light = y < 56 ? sun * bands : 0;
    return {light, 0.55 * light + 0.2 * light * (56 - y) / 40.0, 0.25 * light, light};
}

std::string Logo(TextureFormat format, Pixel (*pixel)(int, int)) {
    return Texture_File(format, LogoWidth, LogoHeight, pixel);
}

void Write_Banner(const fs::path& samples, const std::string& name, const std::string& layout) {
    const fs::path arc = samples / name / "arc";
    Write(arc / "blyt" / "banner.brlyt", layout);
    Write(arc / "timg" / "my_Back_logo.tpl", Logo(TextureFormat::i4, Rings));
    Write(arc / "timg" / "my_VCPic.tpl",
          Texture_File(TextureFormat::rgb5a3, 128, 96, [](int x, int y) {
              return Pixel{x / 127.0, y / 95.0, 0.5, 1};
          }));
    Write(arc / "timg" / "my_White.tpl", Texture_File(TextureFormat::i4, 8, 8, [](int, int) {
              return Pixel{1, 1, 1, 1};
          }));
}

/// Games that nobody made, for a recipe.
constexpr struct {
    const char* title;
    int year, players;
} Titles[] = {
    {"Starlight Courier", 1991, 2},    {"Moss Kingdom", 1987, 1},
    {"Turbo Lantern", 1990, 2},        {"Paper Dragons", 1993, 4},
    {"Captain Quill", 1988, 1},        {"The Glass Orchard", 1994, 1},
    {"Rocket Picnic", 1989, 2},        {"Iron Heron", 1992, 1},
    {"Bubble Foundry", 1991, 2},       {"Night Ferry", 1995, 1},
    {"Kite Battalion", 1986, 2},       {"Sir Teapot's Quest", 1990, 1},
    {"Polar Express-Way", 1993, 2},    {"Marble Marauders", 1988, 4},
    {"Lighthouse Zero", 1996, 1},      {"Cactus, Cactus!", 1992, 2},
    {"Velvet Robots", 1987, 2},        {"Thunder Alley 2", 1994, 4},
    {"The Hollow Bell", 1991, 1},      {"Pixel Gardener", 1989, 1},
    {"Sky Pirates of Oma", 1990, 2},   {"Echo Valley", 1995, 1},
    {"Jelly Samurai", 1993, 2},        {"Crystal Postman", 1988, 1},
    {"Drum Machine Wars", 1996, 4},    {"Seven Lakes", 1992, 1},
    {R"(Owl "Ace" Hopkins)", 1987, 1}, {"Comet Farmer", 1991, 2},
    {"Clockwork Savanna", 1994, 1},    {"Tiny Titans", 1990, 4},
    {"Harbour Lights", 1989, 1},       {"Snowball Senate", 1993, 8},
    {"The Copper Fox", 1995, 1},       {"Mirror Maze", 1986, 1},
    {"Noodle Riders", 1992, 2},        {"Planet Pizzicato", 1996, 2},
    {"Zeppelin Days", 1988, 1},        {"Emerald Express", 1991, 2},
    {"Whale Song", 1994, 1},           {"Last Train to Nova", 1996, 2},
};

/// A spreadsheet's table: a banner a row, shelf/01.app and so on.
std::string Shelf_Recipe() {
    std::string table = Csv_Row({"banner", "title", "year", "players", "name"});
    int number = 100;
    for (const auto& [title, year, players] : Titles) {
        const std::string digits = std::to_string(++number).substr(1);
        table += Csv_Row({"shelf/" + digits + ".app", title, std::to_string(year),
                          std::to_string(players), title});
    }
    return table;
}

void Write_Program_Folder(const fs::path& folder) {
    const fs::path samples = folder / "samples", logos = folder / "logos";
    Write_Banner(samples, "seven_languages", Seven_Language_Banner());
    Write_Banner(samples, "all_languages_one_text", Neutral_Banner());
    Write_Banner(samples, "german_japanese", German_Japanese_Banner());
    Write_Banner(samples, "no_closing_group", Banner_Without_Closing_Group());
    Write(samples / "channel" / "00000000.app", Sample_Channel());
    Write(samples / "forty_titles.csv", Shelf_Recipe());
    Write(logos / "Comet.tpl", Logo(TextureFormat::i4, Comet));
    Write(logos / "Diamonds.tpl", Logo(TextureFormat::ia8, Diamonds));
    Write(logos / "Rings.tpl", Logo(TextureFormat::i4, Rings));
    Write(logos / "Sunrise.tpl", Logo(TextureFormat::rgb5a3, Sunrise));
    Write(logos / "Waves.tpl", Logo(TextureFormat::rgb5a3, Waves));
    for (const NamedScheme& named : Shipped_Schemes()) {
        const std::string file = To_Utf8(named.name) + std::string(SchemeEnding);
        Write(folder / "schemes" / file, Format_Scheme(named.scheme));
    }
    Write(folder / "cfgs" / "vcinfopath.cfg", "\\samples\\channel\\00000000.app\r\n");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: make-samples FOLDER\n", stderr);
        return 1;
    }
    try {
        Write_Program_Folder(argv[1]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "make-samples: %s\n", failure.what());
        return 1;
    }
    return 0;
}
