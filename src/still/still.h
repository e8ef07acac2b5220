// A part of a channel, its banner or its icon, as the console's menu draws it at a moment.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "still/animation.h"
#include "still/filling.h"
#include "still/font.h"
#include "still/scene.h"
#include "still/textures.h"
#include "texture/picture.h"

namespace bannersmith::still {

/// A part of a channel that has a layout.
enum class PartKind { banner, icon };

/// What a part is drawn from.
struct PartFiles {
    std::string layout;  ///< its bytes
    std::string start;   ///< the animation that plays once; empty where there is none
    std::string loop;    ///< the one that goes on for ever; empty where there is none
    TextureReader texture;
    bool has_textures = true;  ///< whether there are any
};

/// How it is looked at.
struct View {
    PartKind part = PartKind::banner;
    std::string language;  ///< by its code; empty for English, or else the first that there is
    bool is_wide = false;
    double scale = 1;  ///< pixels to a unit of the screen, above 0
    Rgba background{0, 0, 0, 255};
};

/// What was drawn where, for who points at it.
struct Region {
    std::string pane, material;
    std::string missing;             ///< why nothing was drawn there; empty for most
    std::array<Point, 4> corners{};  ///< left top, right top, left bottom, right bottom, in pixels
};

/// How a text that was drawn fits into its box, by the font that it was drawn with.
struct TextFit {
    std::string pane;
    bool is_too_wide = false;  ///< a line as it is written is wider, so that it was broken
    bool is_too_high = false;  ///< the lines are higher than the box
};

/// A picture of it.
struct Drawn {
    Picture picture;              ///< opaque
    std::vector<Region> regions;  ///< in the order of drawing
    std::vector<TextFit> texts;
    std::vector<std::string> faults;  ///< what could not be drawn and why, each once
};

/// The size in pixels of a view at scale 1: of a banner 608 x 456, in a wide one 832 x 456, of an
/// icon the middle 128 x 96 or 170 x 96 of that.
struct Extent {
    std::size_t width, height;
};
Extent Extent_Of(PartKind part, bool is_wide);

/// A part, its animations and textures read once.
class Still {
 public:
    /// `files.layout` is one for which `Is_Layout` holds.
    explicit Still(PartFiles files);

    /// Takes another layout for the same part, for which the same holds.
    void Take_Layout(std::string_view layout) { scene_ = Read_Scene(layout); }

    /// The frames that play once, and those that are repeated then. Without an animation there is
    /// one frame.
    std::size_t Start_Frames() const { return start_ ? start_->frames : 0; }
    std::size_t Loop_Frames() const { return loop_ ? std::max<std::size_t>(loop_->frames, 1) : 1; }

    /// The banner at a frame, counted from the beginning of the start; `Start_Frames` is the first
    /// of the loop and shows all in its place.
    /// Texts are drawn in `font`, none where it is null.
    Drawn Draw(const View& view, std::size_t frame, Font* font);

    const Scene& Layout() const { return scene_; }

 private:
    void Move(Scene& scene, std::size_t frame) const;

    Scene scene_;
    std::optional<Animation> start_, loop_;
    std::vector<std::string> faults_;
    Textures textures_;
};

}  // namespace bannersmith::still
