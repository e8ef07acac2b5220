#include "still/font.h"

#include <ft2build.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <tuple>
#include <utility>

#include FT_FREETYPE_H

#include "system/files.h"
#include "texture/picture.h"

namespace bannersmith::still {

namespace {

/// Latin, Greek, Cyrillic and Japanese; Korean.
constexpr std::array<const char16_t*, 2> OwnFonts = {u"migmix-1p-regular.ttf", u"NanumGothic.ttf"};

struct CloseLibrary {
    void operator()(FT_Library library) const { FT_Done_FreeType(library); }
};
struct CloseFace {
    void operator()(FT_Face face) const { FT_Done_Face(face); }
};

/// A font file, read when it is needed.
struct FontFile {
    std::u16string path;
    std::string bytes;
    std::unique_ptr<FT_FaceRec_, CloseFace> face;
    bool was_tried = false;
};

FT_F26Dot6 In_64ths(double texels) {
    return std::max<FT_F26Dot6>(std::lround(std::min(texels, Font::LargestEm) * 64), 1);
}

/// The coverage that a letter was drawn with, as an intensity.
Picture As_Picture(const FT_Bitmap& bitmap) {
    Picture picture{bitmap.width + 2, bitmap.rows + 2, {}};
    picture.texels.resize(picture.width * picture.height * TexelSize);
    for (std::size_t y = 0; y < bitmap.rows; ++y) {
        for (std::size_t x = 0; x < bitmap.width; ++x) {
            const unsigned char ink = bitmap.buffer[static_cast<std::ptrdiff_t>(y) * bitmap.pitch +
                                                    static_cast<std::ptrdiff_t>(x)];
            const std::size_t at = ((y + 1) * picture.width + x + 1) * TexelSize;
            std::fill_n(&picture.texels[at], TexelSize, static_cast<char>(ink));
        }
    }
    return picture;
}

}  // namespace

struct Font::Faces {
    std::unique_ptr<FT_LibraryRec_, CloseLibrary> library;
    std::vector<FontFile> files;
    std::map<std::tuple<char32_t, FT_F26Dot6, FT_F26Dot6>, Glyph> glyphs;

    bool Start() {
        FT_Library started = nullptr;
        if (FT_Init_FreeType(&started) != 0) return false;
        library.reset(started);
        return true;
    }

    bool Try(FontFile& file) {
        if (file.was_tried) return file.face != nullptr;
        file.was_tried = true;
        if (file.bytes.empty()) file.bytes = Read_File(file.path).Value_Or("");
        FT_Face face = nullptr;
        const auto* bytes = reinterpret_cast<const FT_Byte*>(file.bytes.data());
        const auto size = static_cast<FT_Long>(file.bytes.size());
        if (FT_New_Memory_Face(library.get(), bytes, size, 0, &face) == 0) file.face.reset(face);
        if (file.face && !FT_IS_SCALABLE(face)) file.face.reset();
        return file.face != nullptr;
    }

    /// The face that has a letter, and its number there; null where no face can be read. A letter
    /// that none has is a question mark.
    std::pair<FT_Face, FT_UInt> Find(char32_t letter) {
        for (const char32_t wanted : {letter, U'?'}) {
            for (FontFile& file : files) {
                const FT_UInt index = Try(file) ? FT_Get_Char_Index(file.face.get(), wanted) : 0;
                if (index != 0) return {file.face.get(), index};
            }
        }
        return {nullptr, 0};
    }

    Glyph Draw(char32_t letter, FT_F26Dot6 width, FT_F26Dot6 height) {
        Glyph glyph;
        const auto [face, index] = Find(letter);
        if (face == nullptr || FT_Set_Char_Size(face, width, height, 72, 72) != 0) return glyph;
        if (FT_Load_Glyph(face, index, FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP) != 0) return glyph;
        if (FT_Render_Glyph(face->glyph, FT_RENDER_MODE_NORMAL) != 0) return glyph;
        const FT_Bitmap& bitmap = face->glyph->bitmap;
        if (bitmap.width == 0 || bitmap.rows == 0) return glyph;
        glyph.texels = std::make_unique<Texels>(As_Picture(bitmap), Wrap::clamp, Wrap::clamp);
        glyph.left = face->glyph->bitmap_left - 1;
        glyph.top = face->glyph->bitmap_top + 1;
        return glyph;
    }
};

Font::Font(std::unique_ptr<Faces> faces) : faces_(std::move(faces)) {}
Font::Font(Font&&) noexcept = default;
Font& Font::operator=(Font&&) noexcept = default;
Font::~Font() = default;

Result<Font> Font::Open(const std::u16string& program_folder, const std::u16string& own) {
    auto faces = std::make_unique<Faces>();
    if (!faces->Start()) return Failure{u"", "Not enough memory"};
    if (!own.empty()) {
        auto bytes = Read_File(own).About(own);
        if (!bytes) return bytes.Why();
        faces->files.push_back({own, std::move(*bytes), nullptr, false});
        if (!faces->Try(faces->files.back())) return Failure{own, "Is no font that can be read"};
    }
    for (const char16_t* name : OwnFonts) {
        faces->files.push_back({program_folder + u"\\fonts\\" + name, "", nullptr, false});
    }
    return Font(std::move(faces));
}

Result<Font> Font::From_Bytes(std::string bytes) {
    auto faces = std::make_unique<Faces>();
    if (!faces->Start()) return Failure{u"", "Not enough memory"};
    faces->files.push_back({u"", std::move(bytes), nullptr, false});
    if (!faces->Try(faces->files.back())) return Failure{u"", "Is no font that can be read"};
    return Font(std::move(faces));
}

bool Font::Has_Letters() {
    return faces_->Find(U'?').first != nullptr;
}

double Font::Advance(char32_t letter) {
    const auto [face, index] = faces_->Find(letter);
    if (face == nullptr || FT_Load_Glyph(face, index, FT_LOAD_NO_SCALE) != 0) return 0.5;
    const double em = std::max<double>(face->units_per_EM, 1);
    return static_cast<double>(face->glyph->metrics.horiAdvance) / em;
}

const Glyph& Font::Take(char32_t letter, double width, double height) {
    constexpr std::size_t MostKept = 4096;
    if (faces_->glyphs.size() >= MostKept) faces_->glyphs.clear();
    const std::tuple key(letter, In_64ths(width), In_64ths(height));
    const auto known = faces_->glyphs.find(key);
    if (known != faces_->glyphs.end()) return known->second;
    return faces_->glyphs[key] = faces_->Draw(letter, In_64ths(width), In_64ths(height));
}

}  // namespace bannersmith::still
