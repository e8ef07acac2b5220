// Builds layout files, piece by piece as the format has them. The samples and the tests are made
// with it; the editor itself never builds a layout.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace bannersmith {

/// Bytes appended in order; numbers big-endian.
class ByteWriter {
 public:
    /// One, two or four bytes; what does not fit is cut off above.
    ByteWriter& U8(unsigned value);
    ByteWriter& U16(unsigned value);
    ByteWriter& U32(std::uint32_t value);
    /// An IEEE 754 number of four bytes.
    ByteWriter& F32(float value);
    /// `text` cut or filled up with zero bytes to `width` bytes.
    ByteWriter& Name(std::string_view text, std::size_t width);
    /// The bytes as they are, or as many zero bytes.
    ByteWriter& Bytes(std::string_view bytes);
    ByteWriter& Zeros(std::size_t count);
    /// Zero bytes up to a multiple of so many bytes.
    ByteWriter& Align(std::size_t multiple);
    /// Everything written so far.
    const std::string& Data() const { return data_; }

 private:
    std::string data_;
};

/// Red, green, blue, alpha.
using Rgba = std::array<std::int16_t, 4>;

/// A texture of a material, by its index; it goes on beyond its sides clamped, repeated (1) or
/// mirrored (2).
struct TextureUse {
    unsigned texture = 0, wrap_s = 0, wrap_t = 0;
};

/// A stage of a colour computation: the texture with the coordinates of the same number, and a, b,
/// c, d by the format's numbers. It adds, or subtracts in its alpha, and clamps.
struct StageSpec {
    unsigned map = 0;
    std::array<unsigned, 4> color{15, 15, 15, 0}, alpha{7, 7, 7, 0};
    bool subtracts_alpha = false;
};

/// One entry of the material list, with one texture where `texture` is not negative, or with those
/// of `more`. Each has coordinates of its own, which can be moved.
struct Material {
    std::string name;
    Rgba first{0, 0, 0, 0};
    Rgba second{255, 255, 255, 255};
    int texture = -1;
    std::vector<TextureUse> more{};
    std::vector<StageSpec> stages{};
};

/// How a picture is drawn: its corners' colours, and where its textures' corners lie, both in the
/// order left top, right top, left bottom, right bottom.
struct PictureLook {
    std::array<std::uint32_t, 4> colors{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF};
    std::vector<std::array<float, 8>> sets{{0, 0, 1, 0, 0, 1, 1, 1}};
};

/// Where a pane lies and how large it is, in units of the banner's 608 x 456 screen.
struct Place {
    float x = 0, y = 0, width = 0, height = 0;
};

/// One text box. `stored` is what lies at the record's end: text, terminator and padding.
struct TextBoxSpec {
    std::string name;
    std::string stored;
    unsigned buffer_length = 0;  ///< in bytes, as stored
    unsigned text_length = 0;    ///< in bytes, as stored
    unsigned material = 0;       ///< index into the material list
    Place place;
    float font_size = 20;
    std::uint32_t color = 0xFFFFFFFF;
};

/// A text box as a clean edit leaves it: terminated, padded to four bytes, both lengths equal.
TextBoxSpec Clean_Text_Box(std::string_view name, std::u16string_view text, unsigned material,
                           Place place = {}, float font_size = 20);

/// A section: tag, size and body, filled up to a multiple of four bytes.
std::string Section(std::string_view tag, std::string_view body);

/// The sections "txt1", "pan1", "pic1" and "mat1". A plain pane that fades
/// passes its alpha on to what is in it, which keeps its shape on a wide screen; so do texts.
std::string Text_Box_Section(const TextBoxSpec& box);
std::string Pane_Section(std::string_view name, Place place, bool fades = false);
std::string Picture_Section(std::string_view name, unsigned material, Place place,
                            const PictureLook& look = {});
std::string Material_Section(const std::vector<Material>& materials);
/// A list of names: "txl1" for textures, "fnl1" for fonts.
std::string Name_List_Section(std::string_view tag, const std::vector<std::string>& names);
/// "grp1": a group with the names of its panes.
std::string Group_Section(std::string_view name, const std::vector<std::string>& members);
/// A section without a body: "pas1", "pae1", "grs1", "gre1".
std::string Empty_Section(std::string_view tag);

/// The header and the sections behind it, in order: a whole file.
std::string Layout_File(const std::vector<std::string>& sections);

}  // namespace bannersmith
