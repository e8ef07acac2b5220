// bannersmith-texture: turns textures into pictures and pictures into textures.
#include <algorithm>
#include <charconv>
#include <map>
#include <string>
#include <vector>

#include "base/text.h"
#include "main_tool.h"
#include "system/files.h"
#include "system/process.h"
#include "system/replace_files.h"
#include "texture/fitting.h"

using namespace bannersmith;
using namespace bannersmith::tool_status;

namespace {

constexpr char Usage[] =
    "usage: bannersmith-texture IN.tpl OUT.png\n"
    "       bannersmith-texture IN.png OUT.tpl (--like FILE | --format F)\n"
    "                           [--size SIZE] [--fit FIT] [--dither DITHER]\n"
    "       bannersmith-texture --info FILE...\n"
    "       bannersmith-texture --help | --version\n"
    "\n"
    "Makes a picture of a texture, or a texture of a picture (PNG, JPEG, or another\n"
    "texture). What OUT becomes is told by its name.\n"
    "\n"
    "  --like FILE      size, format and everything else as in that texture\n"
    "  --format F       I4, I8, IA4, IA8, RGB565, RGB5A3 or RGBA8\n"
    "  --size SIZE      texels, as 256x192; without it those that the picture has\n"
    "  --fit FIT        where the sides differ: crop (the default) fills the texture,\n"
    "                   border leaves room at two sides, stretch distorts\n"
    "  --dither DITHER  none, ordered, or diffusion; without it none for up to 256\n"
    "                   colours, otherwise diffusion\n"
    "  --info           tells format and size of textures and pictures\n"
    "\n"
    "Exit status: 0 done; 1 the output cannot be written; 2 wrong usage, or a file\n"
    "that cannot be read, is neither texture nor picture, or cannot become one.\n";

constexpr Tool This{"bannersmith-texture", Usage};

struct Options {
    std::vector<std::string> files;
    std::string like, format, size;
    Fitting fitting;
    bool info = false;
};

/// The bytes of a file, and what they show.
struct Opened {
    std::string bytes;
    Picture picture;
};

Result<Opened> Open(const std::string& name) {
    const std::u16string file = From_Utf8(name);
    auto bytes = Read_File(file).About(file);
    if (!bytes) return bytes.Why();
    auto picture = Is_Picture(*bytes)         ? Read_Picture(*bytes)
                   : Describe_Texture(*bytes) ? Decode_Texture(*bytes)
                                              : Failure{u"", "Is neither texture nor picture"};
    if (!picture) return std::move(picture).About(file).Why();
    return Opened{std::move(*bytes), std::move(*picture)};
}

/// "256x192".
std::optional<std::pair<std::size_t, std::size_t>> Read_Size(const std::string& text) {
    const std::size_t by = text.find_first_of("xX");
    std::pair<std::size_t, std::size_t> size;
    const auto is_number = [](std::string_view digits, std::size_t& number) {
        const auto read = std::from_chars(digits.begin(), digits.end(), number);
        return read.ec == std::errc() && read.ptr == digits.end();
    };
    if (by == text.npos || !is_number(std::string_view(text).substr(0, by), size.first) ||
        !is_number(std::string_view(text).substr(by + 1), size.second)) {
        return std::nullopt;
    }
    return size;
}

Result<std::string> Make(const Options& options, const Picture& picture) {
    if (!options.like.empty()) {
        const std::u16string file = From_Utf8(options.like);
        const auto old = Read_File(file).About(file);
        if (!old) return old.Why();
        return Make_Texture_Like(*old, picture, options.fitting).About(file);
    }
    TextureInfo wanted{Find_Texel_Format(options.format), picture.width, picture.height};
    if (const auto size = Read_Size(options.size)) std::tie(wanted.width, wanted.height) = *size;
    return Make_Texture(picture, wanted, options.fitting).About(From_Utf8(options.files[0]));
}

bool Ends_In(const std::string& name, std::u16string_view ending) {
    return Capitals(From_Utf8(name)).ends_with(ending);
}

int Convert(const Options& options) {
    const auto opened = Open(options.files[0]);
    if (!opened) return This.Tell(opened.Why()), NotRead;
    const auto made = Ends_In(options.files[1], u".PNG")
                          ? Result<std::string>(Write_Png(opened->picture))
                          : Make(options, opened->picture);
    if (!made) return This.Tell(made.Why()), NotRead;
    const auto written = Replace_File(From_Utf8(options.files[1]), *made);
    if (!written) return This.Tell(written.Why()), NotWritten;
    return Done;
}

std::string Described(const Opened& opened) {
    if (const auto texture = Describe_Texture(opened.bytes)) return texture->Text();
    return "picture " + std::to_string(opened.picture.width) + " x " +
           std::to_string(opened.picture.height);
}

int Describe(const std::vector<std::string>& files) {
    int status = Done;
    for (const std::string& file : files) {
        const auto opened = Open(file);
        if (!opened) {
            This.Tell(opened.Why());
            status = NotRead;
        } else if (!Print(Printable(From_Utf8(file)) + ": " + Described(*opened) + "\n", stdout)) {
            This.Tell({u"standard output", "Cannot be written"});
            return std::max(status, NotWritten);
        }
    }
    return status;
}

/// Why the options fit nothing that the program does; empty where they do.
std::string Misused(const Options& options) {
    const bool shapes = !options.format.empty() || !options.size.empty();
    if (options.info) return options.files.empty() ? "--info needs a file" : "";
    if (options.files.size() != 2) return "Two files are needed, IN and OUT";
    const bool to_picture = Ends_In(options.files[1], u".PNG");
    if (!to_picture && !Ends_In(options.files[1], u".TPL")) return "OUT ends in .png or .tpl";
    if (to_picture) return shapes || !options.like.empty() ? "OUT is no texture" : "";
    if (options.like.empty() == options.format.empty())
        return "One of --like and --format is needed";
    if (!options.like.empty() && shapes) return "--like gives the size, too";
    if (options.like.empty() && !Find_Texel_Format(options.format)) return "No such format";
    if (!options.size.empty() && !Read_Size(options.size)) return "A size is written like 256x192";
    return "";
}

/// Reads the command line. What is wrong with it is thrown as the parser's error.
Options Read_Options(const std::vector<std::u16string>& arguments) {
    Options options;
    std::string fit = "crop", dither;
    const std::map<std::string, Fit> fits{
        {"crop", Fit::crop}, {"border", Fit::border}, {"stretch", Fit::stretch}};
    const std::map<std::string, Dither> dithers{
        {"none", Dither::none}, {"ordered", Dither::ordered}, {"diffusion", Dither::diffusion}};
    CLI::App parser;
    parser.add_option("files", options.files);
    parser.add_option("--like", options.like);
    parser.add_option("--format", options.format);
    parser.add_option("--size", options.size);
    parser.add_option("--fit", fit)->check(CLI::IsMember(fits));
    parser.add_option("--dither", dither)->check(CLI::IsMember(dithers));
    parser.add_flag("--info", options.info);
    Tool::Parse(parser, arguments);
    options.fitting.fit = fits.at(fit);
    if (!dither.empty()) options.fitting.dither = dithers.at(dither);
    if (const std::string why = Misused(options); !why.empty()) throw CLI::ValidationError(why);
    return options;
}

}  // namespace

int main(int argc, char** argv) {
    return This.Run(argc, argv, [](const std::vector<std::u16string>& arguments) {
        const Options options = Read_Options(arguments);
        return options.info ? Describe(options.files) : Convert(options);
    });
}
