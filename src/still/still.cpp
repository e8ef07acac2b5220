#include "still/still.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "still/matrix.h"
#include "still/setting.h"

namespace bannersmith::still {

namespace {

constexpr double ScreenWidth = 608, WideScreenWidth = 832, ScreenHeight = 456;
constexpr double IconWidth = 128, WideIconWidth = 170, IconHeight = 96;

/// A rectangle in a pane's plane, y up.
struct Rectangle {
    double left = 0, top = 0, right = 0, bottom = 0;

    double Width() const { return right - left; }
    double Height() const { return top - bottom; }
};

/// The base position tells which of a pane's points lies at its place.
Rectangle Rectangle_Of(const Pane& pane) {
    const double column = pane.base_position % 3, row = (pane.base_position - column) / 3;
    const double left = -pane.size[0] * column / 2;
    const double top = pane.size[1] * row / 2;
    return {left, top, left + pane.size[0], top - pane.size[1]};
}

/// The corners of a piece of a frame, by the numbers of rows and columns: 0 at the left or top.
struct FramePlace {
    std::size_t across, down;
};

/// Texture coordinates as a frame's flip has them.
Point Flipped(Point at, unsigned flip) {
    switch (flip) {
        case 1:
            return {1 - at.x, at.y};
        case 2:
            return {at.x, 1 - at.y};
        case 3:
            return {at.y, 1 - at.x};
        case 4:
            return {1 - at.x, 1 - at.y};
        case 5:
            return {1 - at.y, at.x};
        default:
            return at;
    }
}

/// Draws a scene that stands as it is to be shown.
class SceneDrawing {
 public:
    SceneDrawing(const Scene& scene, const View& view, Textures& textures, Font* font)
        : scene_(scene),
          view_(view),
          textures_(textures),
          font_(font),
          extent_(Extent_Of(view.part, view.is_wide)),
          canvas_(Pixels_Of(extent_.width), Pixels_Of(extent_.height), view.background) {}

    Drawn Draw() {
        places_.resize(scene_.panes.size());
        for (std::size_t i = 0; i < scene_.panes.size(); ++i) {
            Place(i);
            if (places_[i].is_visible) Draw_Pane(scene_.panes[i], places_[i]);
        }
        drawn_.picture = canvas_.Taken();
        return std::move(drawn_);
    }

 private:
    /// What a pane hands on to those in it.
    struct PanePlace {
        bool is_visible = true;
        double alpha = 1;            ///< of the pane itself
        double alpha_of_others = 1;  ///< that those in it begin with
        Matrix matrix;
    };

    std::size_t Pixels_Of(std::size_t units) const {
        const long pixels = std::lround(static_cast<double>(units) * view_.scale);
        return static_cast<std::size_t>(std::max(pixels, 1L));
    }

    /// From the screen's places, 0, 0 in the middle, y up, to the canvas's.
    Matrix Screen() const {
        Matrix screen;
        screen.rows[0][0] = view_.scale;
        screen.rows[1][1] = -view_.scale;
        screen.rows[0][3] = view_.scale * static_cast<double>(extent_.width) / 2;
        screen.rows[1][3] = view_.scale * static_cast<double>(extent_.height) / 2;
        if (scene_.is_centred) return screen;
        Matrix corner;
        corner.rows[0][3] = -(view_.is_wide ? WideScreenWidth : ScreenWidth) / 2;
        corner.rows[1][3] = ScreenHeight / 2;
        return screen * corner;
    }

    void Place(std::size_t index) {
        const Pane& pane = scene_.panes[index];
        PanePlace& place = places_[index];
        const bool is_root = pane.parent == Pane::None;
        const PanePlace outer = is_root ? PanePlace{true, 1, 1, Screen()} : places_[pane.parent];
        place.is_visible = outer.is_visible && pane.is_visible;
        const double own = pane.alpha / 255.0;
        place.alpha = own * outer.alpha_of_others;
        place.alpha_of_others = pane.passes_alpha ? place.alpha : outer.alpha_of_others;
        place.matrix = outer.matrix * Matrix_Of(pane, Scale_Across(pane, is_root));
    }

    /// The wide screen draws all wider, and what keeps its shape narrower again.
    double Scale_Across(const Pane& pane, bool is_root) const {
        if (!view_.is_wide) return pane.scale[0];
        const double scale = is_root ? WideScreenWidth / ScreenWidth : pane.scale[0];
        return pane.keeps_shape ? scale * ScreenWidth / WideScreenWidth : scale;
    }

    void Draw_Pane(const Pane& pane, const PanePlace& place) {
        if (pane.window) return Draw_Window(pane, place);
        if (pane.text && font_ != nullptr) return Draw_Text(pane, place, *pane.text);
        if (pane.surface) Draw_Surface(pane, place, Rectangle_Of(pane), *pane.surface);
    }

    void Tell(const std::string& fault) {
        if (std::find(drawn_.faults.begin(), drawn_.faults.end(), fault) == drawn_.faults.end()) {
            drawn_.faults.push_back(fault);
        }
    }

    /// The texture of a material's map; null, and told, where there is none.
    const Texels* Texture_Of(const TextureMap& map, std::string& missing) {
        if (map.texture >= scene_.textures.size()) {
            missing = "texture " + std::to_string(map.texture) + " is not in the layout's list";
            return nullptr;
        }
        const std::string& name = scene_.textures[map.texture];
        const Texels* texels = textures_.Find(name, map.s, map.t);
        if (texels == nullptr) missing = textures_.Fault(name);
        return texels;
    }

    static std::array<Point, 4> Coordinates(const Surface& surface, const Material& material,
                                            std::size_t number, const Texels& texels) {
        const bool is_known = number < material.coordinates.size();
        const CoordinateSource source =
            is_known ? material.coordinates[number] : CoordinateSource{number, {}};
        const TextureMatrix move =
            source.matrix ? material.matrices[*source.matrix] : TextureMatrix{};
        const double angle = move.rotation * std::numbers::pi / 180;
        std::array<Point, 4> corners{};
        if (source.set >= surface.sets.size()) return corners;
        for (std::size_t i = 0; i < 4; ++i) {
            const double s = (surface.sets[source.set][2 * i] - 0.5) * move.scale_s;
            const double t = (surface.sets[source.set][2 * i + 1] - 0.5) * move.scale_t;
            const double turned_s = std::cos(angle) * s - std::sin(angle) * t + 0.5;
            const double turned_t = std::sin(angle) * s + std::cos(angle) * t + 0.5;
            corners[i] = {
                static_cast<float>((turned_s + move.shift_s) * static_cast<double>(texels.Width())),
                static_cast<float>((turned_t + move.shift_t) *
                                   static_cast<double>(texels.Height()))};
        }
        return corners;
    }

    static std::array<Point, 4> Corners(const Matrix& matrix, const Rectangle& at) {
        return {matrix(at.left, at.top), matrix(at.right, at.top), matrix(at.left, at.bottom),
                matrix(at.right, at.bottom)};
    }

    void Draw_Surface(const Pane& pane, const PanePlace& place, const Rectangle& at,
                      const Surface& surface) {
        Region region{pane.name, "", "", Corners(place.matrix, at)};
        if (surface.material >= scene_.materials.size()) {
            region.missing = "pane " + pane.name + " has no material";
        } else {
            const Material& material = scene_.materials[surface.material];
            region.material = material.name;
            Shader shader(material);
            std::vector<QuadTexture> textures;
            for (const Tap& tap : shader.Taps()) {
                const TextureMap& map = material.maps[tap.map];
                const Texels* texels = Texture_Of(map, region.missing);
                if (texels == nullptr) break;
                textures.push_back({texels, map.s, map.t,
                                    Coordinates(surface, material, tap.coordinates, *texels)});
            }
            if (region.missing.empty()) {
                Fill(canvas_, {region.corners, surface.colors, static_cast<float>(place.alpha)},
                     material, shader, textures);
            }
        }
        if (!region.missing.empty()) Tell(region.missing);
        drawn_.regions.push_back(std::move(region));
    }

    /// A letter goes through the material as its only texture.
    void Draw_Text(const Pane& pane, const PanePlace& place, const TextLook& look) {
        const Rectangle box = Rectangle_Of(pane);
        Region region{pane.name, "", "", Corners(place.matrix, box)};
        if (look.material >= scene_.materials.size()) {
            region.missing = "text box " + pane.name + " has no material";
        } else if (look.font >= scene_.fonts.size()) {
            region.missing = "text box " + pane.name + " has no font";
        }
        if (!region.missing.empty()) {
            Tell(region.missing);
        } else if (!look.text.empty()) {
            Material material = scene_.materials[look.material];
            region.material = material.name;
            material.maps = {TextureMap{}};
            material.coordinates = {CoordinateSource{}};
            const SetText set = Set(look, box.Width(), box.Height(), *font_);
            Shader shader(material);
            for (const Cell& cell : set.cells) {
                Draw_Letter(cell, look, {box.left + cell.x, box.top - cell.y}, place, material,
                            shader);
            }
            constexpr double Little = 0.01;
            drawn_.texts.push_back(
                {pane.name, set.width > box.Width() + Little, set.height > box.Height() + Little});
        }
        drawn_.regions.push_back(std::move(region));
    }

    /// How many pixels a unit along a column of a matrix takes.
    static double Length(const Matrix& matrix, std::size_t column) {
        return std::hypot(matrix.rows[0][column], matrix.rows[1][column]);
    }

    struct CellPlace {
        double left, top;
    };

    /// A letter is drawn as large as it will be seen, and lies where its cell is.
    void Draw_Letter(const Cell& cell, const TextLook& look, CellPlace at, const PanePlace& place,
                     const Material& material, Shader& shader) {
        const double em_width = look.font_size[0], line = look.font_size[1];
        const double em_height = line * EmHeight;
        const double width = em_width * Length(place.matrix, 0);
        const double height = em_height * Length(place.matrix, 1);
        if (!(width > 0 && height > 0 && std::isfinite(width * height))) return;
        const Glyph& glyph = font_->Take(cell.letter, width, height);
        if (glyph.texels == nullptr) return;
        const double unit_x = em_width / std::min(width, Font::LargestEm);
        const double unit_y = em_height / std::min(height, Font::LargestEm);
        const auto columns = static_cast<float>(glyph.texels->Width());
        const auto rows = static_cast<float>(glyph.texels->Height());
        Rectangle ink;
        ink.left = at.left + glyph.left * unit_x;
        ink.top = at.top - Baseline * line + glyph.top * unit_y;
        ink.right = ink.left + columns * unit_x;
        ink.bottom = ink.top - rows * unit_y;
        const auto shade = [&](double y) {
            const double down = std::clamp((at.top - y) / line, 0.0, 1.0);
            Rgba color{};
            for (std::size_t i = 0; i < 4; ++i) {
                color[i] = static_cast<std::uint8_t>(
                    std::lround(look.top[i] + (look.bottom[i] - look.top[i]) * down));
            }
            return color;
        };
        const Rgba top = shade(ink.top), bottom = shade(ink.bottom);
        Fill(canvas_,
             {Corners(place.matrix, ink),
              {top, top, bottom, bottom},
              static_cast<float>(place.alpha)},
             material, shader,
             std::vector<QuadTexture>(shader.Taps().size(),
                                      {glyph.texels.get(),
                                       Wrap::clamp,
                                       Wrap::clamp,
                                       {{{0, 0}, {columns, 0}, {0, rows}, {columns, rows}}}}));
    }

    /// The size of the texture that a piece of a frame shows; none where it has none.
    std::array<double, 2> Frame_Size(const FramePart& part) {
        if (part.material >= scene_.materials.size()) return {};
        const Material& material = scene_.materials[part.material];
        std::string missing;
        const Texels* texels =
            material.maps.empty() ? nullptr : Texture_Of(material.maps[0], missing);
        if (texels == nullptr) return {};
        return {static_cast<double>(texels->Width()), static_cast<double>(texels->Height())};
    }

    void Draw_Window(const Pane& pane, const PanePlace& place) {
        const WindowLook& look = *pane.window;
        const Rectangle whole = Rectangle_Of(pane);
        Rectangle inner = whole;
        const bool has_frame = !look.frame.empty();
        if (has_frame) {
            const auto first = Frame_Size(look.frame[0]);
            const auto last = Frame_Size(look.frame[look.frame.size() < 4 ? 0 : 3]);
            inner = {whole.left + first[0], whole.top - first[1], whole.right - last[0],
                     whole.bottom + last[1]};
        }
        const auto [left, right, top, bottom] = look.inflation;
        Draw_Surface(
            pane, place,
            {inner.left - left, inner.top + top, inner.right + right, inner.bottom - bottom},
            *pane.surface);
        if (has_frame) Draw_Frame(pane, place, whole, inner);
    }

    /// One piece is turned into all corners; four are the corners, which reach along the sides; of
    /// eight the sides have pieces of their own.
    void Draw_Frame(const Pane& pane, const PanePlace& place, const Rectangle& whole,
                    const Rectangle& inner) {
        const std::vector<FramePart>& frame = pane.window->frame;
        const bool has_sides = frame.size() >= 8;
        const std::array<Rectangle, 4> corners = {{
            {whole.left, whole.top, has_sides ? inner.left : inner.right, inner.top},
            {inner.right, whole.top, whole.right, has_sides ? inner.top : inner.bottom},
            {whole.left, has_sides ? inner.bottom : inner.top, inner.left, whole.bottom},
            {has_sides ? inner.right : inner.left, inner.bottom, whole.right, whole.bottom},
        }};
        constexpr std::array<unsigned, 4> Turned = {0, 1, 2, 4};
        for (std::size_t i = 0; i < 4; ++i) {
            const FramePart part =
                frame.size() < 4 ? FramePart{frame[0].material, Turned[i]} : frame[i];
            Draw_Frame_Part(pane, place, part, corners[i], {i % 2, i / 2});
        }
        if (!has_sides) return;
        const std::array<Rectangle, 4> sides = {{
            {whole.left, inner.top, inner.left, inner.bottom},
            {inner.right, inner.top, whole.right, inner.bottom},
            {inner.left, whole.top, inner.right, inner.top},
            {inner.left, inner.bottom, inner.right, whole.bottom},
        }};
        constexpr std::array<FramePlace, 4> Places = {{{0, 0}, {1, 0}, {0, 0}, {0, 1}}};
        for (std::size_t i = 0; i < 4; ++i) {
            Draw_Frame_Part(pane, place, frame[4 + i], sides[i], Places[i]);
        }
    }

    /// The texture lies at its own size in the corner that the piece belongs to, and goes on from
    /// there.
    void Draw_Frame_Part(const Pane& pane, const PanePlace& place, const FramePart& part,
                         const Rectangle& at, FramePlace corner) {
        const auto [width, height] = Frame_Size(part);
        if (width == 0) return;
        const double across = at.Width() / width, down = at.Height() / height;
        const double left = corner.across == 0 ? 0 : 1 - across;
        const double top = corner.down == 0 ? 0 : 1 - down;
        Surface surface{part.material, {}, {{}}};
        surface.colors.fill({255, 255, 255, 255});
        for (std::size_t i = 0; i < 4; ++i) {
            const Point to = Flipped({static_cast<float>(left + (i % 2 == 1 ? across : 0)),
                                      static_cast<float>(top + (i / 2 == 1 ? down : 0))},
                                     part.flip);
            surface.sets[0][2 * i] = to.x;
            surface.sets[0][2 * i + 1] = to.y;
        }
        Draw_Surface(pane, place, at, surface);
    }

    const Scene& scene_;
    const View& view_;
    Textures& textures_;
    Font* font_;
    Extent extent_;
    Canvas canvas_;
    std::vector<PanePlace> places_;
    Drawn drawn_;
};

}  // namespace

Extent Extent_Of(PartKind part, bool is_wide) {
    const double width = part == PartKind::banner ? (is_wide ? WideScreenWidth : ScreenWidth)
                                                  : (is_wide ? WideIconWidth : IconWidth);
    const double height = part == PartKind::banner ? ScreenHeight : IconHeight;
    return {static_cast<std::size_t>(width), static_cast<std::size_t>(height)};
}

Still::Still(PartFiles files)
    : scene_(Read_Scene(files.layout)), textures_(std::move(files.texture)) {
    const auto read = [&](const std::string& bytes, std::optional<Animation>& animation) {
        if (bytes.empty()) return;
        auto found = Read_Animation(bytes);
        if (!found) return faults_.push_back(found.Why().reason);
        faults_.insert(faults_.end(), found->faults.begin(), found->faults.end());
        animation = std::move(*found);
    };
    read(files.start, start_);
    read(files.loop, loop_);
}

/// The start leaves all that the loop does not move where its end has brought it.
void Still::Move(Scene& scene, std::size_t frame) const {
    const std::size_t start = Start_Frames();
    if (start_) {
        const std::size_t last = std::max<std::size_t>(start, 1) - 1;
        Move_To(scene, *start_, static_cast<float>(std::min(frame, last)));
    }
    if (!loop_ || frame < start) return;
    Move_To(scene, *loop_, static_cast<float>((frame - start) % Loop_Frames()));
}

Drawn Still::Draw(const View& view, std::size_t frame, Font* font) {
    Scene scene = scene_;
    const std::string language = view.language.empty() ? Usual_Language(scene) : view.language;
    const bool is_there = Show_Language(scene, language);
    Move(scene, frame);
    Drawn drawn = SceneDrawing(scene, view, textures_, font).Draw();
    std::vector<std::string> faults = scene_.faults;
    faults.insert(faults.end(), faults_.begin(), faults_.end());
    if (!is_there) faults.push_back("there is no text in the language " + language);
    drawn.faults.insert(drawn.faults.begin(), faults.begin(), faults.end());
    return drawn;
}

}  // namespace bannersmith::still
