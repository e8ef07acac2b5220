// bannersmith-render: draws banners as the console does.
#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "banner/banner.h"
#include "base/text.h"
#include "layout/kind.h"
#include "main_tool.h"
#include "still/part.h"
#include "system/files.h"
#include "system/replace_files.h"

using namespace bannersmith;
using namespace bannersmith::tool_status;

namespace {

constexpr char Usage[] =
    "usage: bannersmith-render [OPTION...] -o OUT.png BANNER\n"
    "       bannersmith-render [OPTION...] -o FOLDER BANNER...\n"
    "       bannersmith-render --help | --version\n"
    "\n"
    "Draws a banner as the console's menu shows it, with its animations, into a PNG\n"
    "file; many into a folder that is there, each called as its banner, with a number\n"
    "where that name is taken. A banner is a channel's file or folder, or a layout with\n"
    "its textures and animations beside it. Texts are drawn in an approximate font.\n"
    "\n"
    "  -o, --output OUT    where the pictures go\n"
    "  --language LANG     ENG, GER, FRA, ITA, SPA, NED, JPN or KOR; without it ENG, or\n"
    "                      else the first that the banner has\n"
    "  --wide              16:9\n"
    "  --part PART         banner (the default) or icon\n"
    "  --frame FRAME       a number, counted from the beginning; start, the first; loop\n"
    "                      (the default), where all is in its place\n"
    "  --frames RANGE      these frames, as 0-59, into OUT-00000.png and so on\n"
    "  --scale N           pixels to a unit of the screen, up to 8\n"
    "  --background COLOR  behind it, as RRGGBB; black without it\n"
    "  --without-texts     leaves the texts out\n"
    "  --font FILE         another font for the texts\n"
    "\n"
    "What could not be drawn is told, and is no failure.\n"
    "\n"
    "Exit status: 0 done; 1 a picture cannot be written; 2 wrong usage, or a banner\n"
    "that cannot be read.\n";

constexpr Tool This{"bannersmith-render", Usage};

struct Options {
    std::vector<std::string> banners;
    std::string output, frame = "loop", frames, background = "000000", font;
    still::View view;
    bool has_texts = true;
};

std::optional<std::size_t> Number(std::string_view text, int base = 10) {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (error != std::errc() || end != text.data() + text.size()) return {};
    return number;
}

/// The first frame and the last one.
using Frames = std::pair<std::size_t, std::size_t>;

std::optional<Frames> Read_Frames(const std::string& text) {
    const std::size_t middle = text.find('-');
    if (middle == text.npos) return {};
    const auto first = Number(text.substr(0, middle)), last = Number(text.substr(middle + 1));
    constexpr std::size_t Most = 100000;
    if (!first || !last || *first > *last || *last >= Most) return {};
    return Frames{*first, *last};
}

bool Is_Picture_Name(const std::string& name) {
    return Capitals(From_Utf8(name)).ends_with(u".PNG");
}

/// Why the options fit nothing that the program does; empty where they do.
std::string Misused(const Options& options) {
    const bool is_named = options.frame == "start" || options.frame == "loop";
    if (options.banners.empty()) return "A banner is needed";
    if (options.output.empty()) return "-o is needed";
    if (options.banners.size() > 1 && Is_Picture_Name(options.output)) {
        return "Many banners need a folder";
    }
    if (!is_named && !Number(options.frame)) return "No such frame";
    if (!options.frames.empty() && !Read_Frames(options.frames)) {
        return "Frames are written like 0-59";
    }
    if (options.background.size() != 6 || !Number(options.background, 16)) {
        return "A colour is written like 00FF7F";
    }
    constexpr double LargestScale = 8;
    const bool is_scale = options.view.scale >= 0.1 && options.view.scale <= LargestScale;
    return is_scale ? "" : "A scale is a number from 0.1 to 8";
}

/// Reads the command line. What is wrong with it is thrown as the parser's error.
Options Read_Options(const std::vector<std::u16string>& arguments) {
    Options options;
    std::string part = "banner";
    bool without_texts = false;
    CLI::App parser;
    parser.add_option("banners", options.banners);
    parser.add_option("-o,--output", options.output);
    parser.add_option("--language", options.view.language)
        ->check(CLI::IsMember({"ENG", "GER", "FRA", "ITA", "SPA", "NED", "JPN", "KOR"},
                              CLI::ignore_case));
    parser.add_flag("--wide", options.view.is_wide);
    parser.add_option("--part", part)->check(CLI::IsMember({"banner", "icon"}));
    parser.add_option("--frame", options.frame);
    parser.add_option("--frames", options.frames);
    parser.add_option("--scale", options.view.scale);
    parser.add_option("--background", options.background);
    parser.add_flag("--without-texts", without_texts);
    parser.add_option("--font", options.font);
    Tool::Parse(parser, arguments);
    if (const std::string why = Misused(options); !why.empty()) throw CLI::ValidationError(why);
    options.view.part = part == "icon" ? still::PartKind::icon : still::PartKind::banner;
    options.has_texts = !without_texts;
    options.view.language = To_Utf8(Capitals(From_Utf8(options.view.language)));
    const std::size_t color = *Number(options.background, 16);
    const auto octet = [&](unsigned shift) { return static_cast<std::uint8_t>(color >> shift); };
    options.view.background = {octet(16), octet(8), octet(0), 255};
    return options;
}

/// The file of a banner's picture. `taken`: how many banners of each name had one already; channels
/// of a shelf are often called the same.
std::u16string Picture_File(const Options& options, const std::u16string& banner,
                            std::map<std::u16string, int>& taken) {
    const std::u16string output = From_Utf8(options.output);
    if (Is_Picture_Name(options.output)) return output;
    std::u16string name = With_Backslashes(banner);
    while (name.ends_with(u'\\')) name.pop_back();
    name = name.substr(name.rfind(u'\\') + 1);
    name = name.substr(0, name.rfind(u'.'));
    const int number = ++taken[name];
    if (number > 1) name += From_Utf8("-" + std::to_string(number));
    return output + u"\\" + name + u".png";
}

std::u16string Numbered(const std::u16string& file, std::size_t frame) {
    constexpr std::size_t Digits = 5, Ending = 4;
    const std::string number = std::to_string(frame);
    return file.substr(0, file.size() - Ending) + u"-" +
           From_Utf8(std::string(Digits - std::min(Digits, number.size()), '0') + number) +
           file.substr(file.size() - Ending);
}

Result<> Write(still::Still& part, const Options& options, still::Font* font, std::size_t frame,
               const std::u16string& file, std::vector<std::string>& faults) {
    const still::Drawn drawn = part.Draw(options.view, frame, font);
    for (const std::string& fault : drawn.faults) {
        if (std::find(faults.begin(), faults.end(), fault) == faults.end()) faults.push_back(fault);
    }
    return Replace_File(file, Write_Png(drawn.picture)).About(file);
}

/// Draws one banner. Returns the exit status.
int Render(const Options& options, const std::u16string& name, still::Font* font,
           const std::u16string& file) {
    const auto banner = Banner::Load(BannerSource(Layout_File_Of(name), name), 0);
    if (!banner) return This.Tell(banner.Why()), NotRead;
    if (!Is_Layout(banner->Bytes())) return This.Tell({name, "Not a layout file"}), NotRead;
    auto files = still::Files_For(*banner, options.view.part);
    if (!files) return This.Tell(files.Why()), NotRead;
    still::Still part(std::move(*files));
    std::vector<std::string> faults;
    Result<> written;
    if (!options.frames.empty()) {
        const auto [first, last] = *Read_Frames(options.frames);
        for (std::size_t frame = first; frame <= last && written; ++frame) {
            written = Write(part, options, font, frame, Numbered(file, frame), faults);
        }
    } else {
        const std::size_t frame = options.frame == "loop"    ? part.Start_Frames()
                                  : options.frame == "start" ? 0
                                                             : *Number(options.frame);
        written = Write(part, options, font, frame, file, faults);
    }
    for (const std::string& fault : faults) This.Tell({name, "Not drawn: " + fault});
    if (!written) return This.Tell(written.Why()), NotWritten;
    return Done;
}

}  // namespace

int main(int argc, char** argv) {
    return This.Run(argc, argv, [](const std::vector<std::u16string>& arguments) {
        const Options options = Read_Options(arguments);
        int status = Done;
        auto font = still::Font::Open(Program_Folder(), From_Utf8(options.font));
        if (!font) return This.Tell(font.Why()), NotRead;
        std::map<std::u16string, int> taken;
        still::Font* drawn = options.has_texts ? &*font : nullptr;
        for (const std::string& banner : options.banners) {
            const std::u16string name = From_Utf8(banner);
            const std::u16string file = Picture_File(options, name, taken);
            status = std::max(status, Render(options, name, drawn, file));
        }
        return status;
    });
}
