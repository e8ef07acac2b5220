// The fuzz targets. Each is built as a program of its own, which calls its function.
#include <cstdlib>

#include "colors/scheme.h"
#include "container/archive.h"
#include "exchange/options.h"
#include "exchange/recipe.h"
#include "plain_rules.h"
#include "texture/fitting.h"

using namespace bannersmith;

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

/// A command line, up to a line feed, on any layout beside the plain rules; where files are named there are none.
[[maybe_unused]] void Fuzz_layout(const std::string& bytes) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    const std::string layout = bytes.substr(std::min(end + 1, bytes.size()));
    Require(plain::Difference(layout, "-" + bytes.substr(0, end), u"/nowhere").empty());
}

/// Any bytes as an archive: what is read is given back as it was, and holds what is put into it.
[[maybe_unused]] void Fuzz_archive(const std::string& bytes) {
    const auto archive = Archive::Read(bytes);
    Require(archive || !archive.Why().reason.empty());
    if (!archive) return;
    static_cast<void>(archive->Visit_Files([](const std::string&, std::string_view content) {
        static_cast<void>(Decode_Texture(content));
        return Result<>();
    }));
    Require(*archive->With({}, archive->Names()) == bytes);
    const std::string layout(archive->Layout());
    const auto saved = archive->With({{archive->Layout_Path(), layout + "more"}}, {});
    Require(saved || !archive->Warnings().empty());
    if (!saved || layout.empty()) return;
    const auto again = Archive::Read(*saved);
    Require(again && again->Layout() == layout + "more");
}

/// Any bytes as a texture or as a picture; what could be read becomes textures again.
[[maybe_unused]] void Fuzz_texture(const std::string& bytes) {
    const auto picture = Is_Picture(bytes) ? Read_Picture(bytes) : Decode_Texture(bytes);
    if (!picture || picture->width * picture->height > 1U << 10) return;
    const auto like = Make_Texture_Like(bytes, *picture);
    Require(!like || *Decode_Texture(*like) == *picture);
    const std::size_t size = bytes.size();
    const TexelFormat& format = Texel_Formats()[size % Texel_Formats().size()];
    const auto made = Make_Texture(*picture, {&format, 1 + size % 40, 1 + size % 23}, {.fit = Fit(size % 3)});
    Require(!made || Decode_Texture(*made));
}

/// A text as a scheme is refused with a reason, or is read, and then survives being written and read again.
[[maybe_unused]] void Fuzz_scheme(const std::string& bytes) {
    const auto scheme = Parse_Scheme(bytes);
    Require(scheme ? *Parse_Scheme(Format_Scheme(*scheme)) == *scheme : !scheme.Why().reason.empty());
}

/// Any bytes as a recipe: it ends, and what is wrong is told with its line.
[[maybe_unused]] void Fuzz_recipe(const std::string& bytes) {
    RecipeReader rows(bytes);
    for (std::size_t count = 0; count <= bytes.size(); ++count) {
        const auto row = rows.Next();
        if (!row) return Require(row.Why().reason.starts_with("Line ") || row.Why().reason == "Holds no row");
        if (!*row) return;
        for (const auto& [option, value] : (*row)->values) static_cast<void>(Read_Wish(option, value, u"/nowhere"));
        const std::string written = Json_Of((*row)->banner, (*row)->values);
        Require(static_cast<bool>(RecipeReader(written).Next()));
    }
    Require(false);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size) {
    TARGET({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
