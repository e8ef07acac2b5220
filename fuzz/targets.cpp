// The fuzz targets. Each is built as a program of its own, which calls its function.
#include <cstdlib>

#include "base/numbers.h"
#include "colors/scheme.h"
#include "container/archive.h"
#include "exchange/options.h"
#include "exchange/recipe.h"
#include "generate/banners.h"
#include "layout/kind.h"
#include "plain_rules.h"
#include "still/still.h"
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

still::TextureReader Any_Texture() {
    static const std::string texture = Encode_Texture(Texel_Formats()[0], {8, 8, std::string(8 * 8 * TexelSize, 'x')});
    return [](const std::string& name) { return name.empty() ? std::nullopt : std::optional(texture); };
}

/// Any layout is drawn, as small as a stamp, with whatever its last byte asks for; what is broken is told.
[[maybe_unused]] void Fuzz_still(const std::string& bytes) {
    if (!Is_Layout(bytes)) return;
    static auto font = still::Font::Open(u"" PRISTINE_FOLDER, u"");
    still::Still part({bytes, "", "", Any_Texture()});
    const auto wish = static_cast<unsigned char>(bytes.back());
    const still::View view{wish % 2 == 0 ? still::PartKind::banner : still::PartKind::icon, wish % 4 < 2 ? "" : "GER",
                           wish % 8 < 4, 0.07};
    const still::Drawn drawn = part.Draw(view, 0, wish % 16 < 8 ? &*font : nullptr);
    Require(drawn.picture.texels.size() == drawn.picture.width * drawn.picture.height * TexelSize);
}

/// Any animation moves a small banner, at a frame that its last bytes tell.
[[maybe_unused]] void Fuzz_animation(const std::string& bytes) {
    static const still::Scene scene = still::Read_Scene(Channel_Icon());
    const auto animation = still::Read_Animation(bytes);
    Require(animation || !animation.Why().reason.empty());
    if (!animation) return;
    still::Scene moved = scene;
    still::Move_To(moved, *animation, static_cast<float>(Read_U16(bytes, bytes.size() - 2)) / 16);
    Require(moved.panes.size() == scene.panes.size() && moved.materials.size() == scene.materials.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size) {
    TARGET({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
