// What a layout draws, as values: the panes in their order, materials, textures, groups. Read from
// the section chain, changed by animations, and drawn; never written back. Names are as they are
// stored, without the zero bytes behind them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace bannersmith::still {

/// Red, green, blue, alpha, 0 to 255.
using Rgba = std::array<std::uint8_t, 4>;

/// How a texture goes on beyond its sides.
enum class Wrap : std::uint8_t { clamp, repeat, mirror };

/// A texture of a material: its index in the layout's list.
struct TextureMap {
    std::size_t texture = 0;
    Wrap s = Wrap::clamp, t = Wrap::clamp;
};

/// How texture coordinates move: scaled, then turned (degrees), both about 0.5, 0.5, then shifted.
struct TextureMatrix {
    float shift_s = 0, shift_t = 0, rotation = 0, scale_s = 1, scale_t = 1;
};

/// Where a stage's coordinates come from: a coordinate set, through one of the material's matrices.
struct CoordinateSource {
    std::size_t set = 0;
    std::optional<std::size_t> matrix;
};

/// A stage of the colour computation, its sixteen bytes as they are stored.
using Stage = std::array<std::uint8_t, 16>;

/// How a pixel is put over what is there: bytes as stored.
struct BlendMode {
    std::uint8_t type = 1, source = 4, destination = 5, logic = 0;
};

/// Which pixels are drawn at all: bytes as stored.
struct AlphaCompare {
    std::uint8_t comparisons = 0x77, operation = 0;
    std::array<std::uint8_t, 2> references{};
};

/// How a surface gets its colours.
struct Material {
    std::string name;
    std::array<std::array<std::int16_t, 4>, 3> registers{};  ///< C0 to C2
    std::array<Rgba, 4> constants{};                         ///< K0 to K3
    std::vector<TextureMap> maps;
    std::vector<TextureMatrix> matrices;
    std::vector<CoordinateSource> coordinates;
    bool color_of_vertex = true, alpha_of_vertex = true;  ///< else of the material
    Rgba color{255, 255, 255, 255};
    std::array<std::uint8_t, 4> swaps{0xE4, 0xC0, 0xD5, 0xEA};  ///< two bits a channel, red lowest
    std::vector<Stage> stages;
    AlphaCompare compare;
    BlendMode blend;
};

/// What fills a rectangle. Corners are left top, right top, left bottom, right bottom.
struct Surface {
    std::size_t material = 0;
    std::array<Rgba, 4> colors{};
    std::vector<std::array<float, 8>> sets;  ///< s and t of each corner
};

/// A text and how it is set. Sizes in units of the screen.
struct TextLook {
    std::u16string text;  ///< line feeds and tabs as they are
    std::size_t material = 0, font = 0;
    unsigned position = 0;  ///< row x 3 + column
    Rgba top{}, bottom{};
    std::array<float, 2> font_size{};
    float character_space = 0, line_space = 0;
    std::size_t buffer_length = 0;  ///< in bytes
};

/// A piece of a window's frame.
struct FramePart {
    std::size_t material = 0;
    unsigned flip = 0;  ///< 0 none, 1 across, 2 upside down, 3 to 5 turned by 90, 180, 270 degrees
};

/// A window: its content is its surface.
struct WindowLook {
    std::array<float, 4> inflation{};  ///< left, right, top, bottom
    std::vector<FramePart> frame;
};

/// A pane. Its kind is told by what it has: a text, or a surface, with a frame or without.
struct Pane {
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    std::string name;
    std::size_t parent = None;  ///< a smaller index
    bool is_visible = true, passes_alpha = false, keeps_shape = false;
    unsigned base_position = 0;  ///< row x 3 + column
    std::uint8_t alpha = 255;
    std::array<float, 3> translation{}, rotation{};
    std::array<float, 2> scale{}, size{};
    std::optional<Surface> surface;
    std::optional<WindowLook> window;
    std::optional<TextLook> text;
};

/// A group of panes by their names; `depth` 0 for RootGroup, 1 for those in it.
struct Group {
    std::string name;
    std::vector<std::string> members;
    std::size_t depth = 0;
};

/// A layout.
struct Scene {
    bool is_centred = true;  ///< whether 0, 0 is the middle of the screen, else its left top corner
    std::vector<Pane> panes;
    std::vector<Material> materials;
    std::vector<std::string> textures, fonts;
    std::vector<Group> groups;
    std::vector<std::string> faults;  ///< what is broken or unknown, and so is not drawn

    /// The first of that name; nothing where there is none.
    std::size_t Find_Pane(std::string_view name) const;
    std::size_t Find_Material(std::string_view name) const;
};

/// What `layout`, for which `Is_Layout` holds, draws. Never fails: what is broken is told and left
/// out.
Scene Read_Scene(std::string_view layout);

/// Shows the panes of one language, by its code ("ENG"), and hides those of all others, as the
/// console's menu does: by the groups in RootGroup, where the language has none by the first one
/// that its region would take. False where there are groups of languages and none is shown.
bool Show_Language(Scene& scene, std::string_view code);

/// The codes of the languages that the layout has groups for, in their order.
std::vector<std::string> Languages_Of(const Scene& scene);

/// The code of the language to be shown where none is asked for: English, or else the first that
/// the layout has a group for; empty where it has none.
std::string Usual_Language(const Scene& scene);

}  // namespace bannersmith::still
