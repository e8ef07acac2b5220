#include "still/filling.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace bannersmith::still {

namespace {

constexpr std::size_t LeftTop = 0, RightTop = 1, LeftBottom = 2, RightBottom = 3;

/// What each corner has of one number, and the number anywhere between them.
using Corners = std::array<double, 4>;

/// A number that grows evenly over the canvas.
struct Slope {
    double at_corner = 0, by_x = 0, by_y = 0;
};

/// The corners of what is filled at once, in turn, by their indices.
using Outline = std::span<const std::size_t>;
constexpr std::array<std::size_t, 4> Whole = {LeftTop, RightTop, RightBottom, LeftBottom};
constexpr std::array<std::size_t, 3> Upper = {LeftTop, RightTop, RightBottom};
constexpr std::array<std::size_t, 3> Lower = {LeftTop, RightBottom, LeftBottom};

bool Is_Plane(const Corners& number) {
    constexpr double Nothing = 1e-3;
    return std::abs(number[LeftTop] + number[RightBottom] - number[RightTop] - number[LeftBottom]) <
           Nothing;
}

/// Draws a quad row by row.
class Filling {
 public:
    Filling(Canvas& canvas, const Quad& quad, const Material& material, Shader& shader,
            const std::vector<QuadTexture>& textures)
        : canvas_(canvas), material_(material), shader_(shader) {
        for (std::size_t i = 0; i < 4; ++i) corners_[i] = {quad.corners[i].x, quad.corners[i].y};
        for (std::size_t channel = 0; channel < 4; ++channel) Set_Color(quad, channel);
        for (const QuadTexture& texture : textures) {
            samplers_.emplace_back(*texture.texels, texture.s, texture.t);
            for (std::size_t i = 0; i < 4; ++i) {
                coordinates_.resize(2 * samplers_.size());
                coordinates_[2 * samplers_.size() - 2][i] = texture.coordinates[i].x;
                coordinates_[2 * samplers_.size() - 1][i] = texture.coordinates[i].y;
            }
        }
        sampled_.resize(samplers_.size());
        taken_.resize(samplers_.size());
    }

    void Draw() {
        if (!Is_Sound()) return;
        const bool is_plane = std::all_of(colors_.begin(), colors_.end(), Is_Plane) &&
                              std::all_of(coordinates_.begin(), coordinates_.end(), Is_Plane);
        if (is_plane) return Draw_Part(Whole, {LeftTop, RightTop, LeftBottom});
        Draw_Part(Upper, Upper);
        Draw_Part(Lower, Lower);
    }

 private:
    struct Corner {
        double x, y;
    };
    using ThreeCorners = std::array<std::size_t, 3>;

    void Set_Color(const Quad& quad, std::size_t channel) {
        const bool of_vertex = channel < 3 ? material_.color_of_vertex : material_.alpha_of_vertex;
        for (std::size_t i = 0; i < 4; ++i) {
            colors_[channel][i] = of_vertex ? quad.colors[i][channel] : material_.color[channel];
            if (channel == 3) colors_[channel][i] *= quad.alpha;
        }
    }

    bool Is_Sound() const {
        const auto is_number = [](double number) { return std::isfinite(number); };
        const auto are_numbers = [&](const Corners& four) {
            return std::all_of(four.begin(), four.end(), is_number);
        };
        return std::all_of(corners_.begin(), corners_.end(),
                           [&](Corner at) { return is_number(at.x) && is_number(at.y); }) &&
               std::all_of(colors_.begin(), colors_.end(), are_numbers) &&
               std::all_of(coordinates_.begin(), coordinates_.end(), are_numbers);
    }

    /// Fills an outline, in which the numbers run as between three of its corners.
    void Draw_Part(Outline outline, const ThreeCorners& three) {
        origin_ = corners_[three[0]];
        const Corner first{corners_[three[1]].x - origin_.x, corners_[three[1]].y - origin_.y};
        const Corner second{corners_[three[2]].x - origin_.x, corners_[three[2]].y - origin_.y};
        const double area = first.x * second.y - first.y * second.x;
        constexpr double NoArea = 1e-9;
        if (std::abs(area) < NoArea) return;
        const auto slope = [&](const Corners& number) {
            const double to_first = number[three[1]] - number[three[0]];
            const double to_second = number[three[2]] - number[three[0]];
            return Slope{number[three[0]], (to_first * second.y - to_second * first.y) / area,
                         (to_second * first.x - to_first * second.x) / area};
        };
        for (std::size_t i = 0; i < 4; ++i) color_slopes_[i] = slope(colors_[i]);
        slopes_.clear();
        for (const Corners& number : coordinates_) slopes_.push_back(slope(number));
        Draw_Rows(outline);
    }

    /// The first pixel whose middle is not before `edge`, on a canvas of so many.
    static std::size_t First_From(double edge, std::size_t most) {
        return static_cast<std::size_t>(
            std::clamp(std::ceil(edge - 0.5), 0.0, static_cast<double>(most)));
    }

    void Draw_Rows(Outline outline) {
        double top = corners_[outline[0]].y, bottom = top;
        for (const std::size_t corner : outline) {
            top = std::min(top, corners_[corner].y);
            bottom = std::max(bottom, corners_[corner].y);
        }
        const std::size_t end = First_From(bottom, canvas_.Height());
        for (std::size_t y = First_From(top, canvas_.Height()); y < end; ++y) {
            const auto [left, right] = Sides(outline, static_cast<double>(y) + 0.5);
            const std::size_t row_end = First_From(right, canvas_.Width());
            std::size_t x = First_From(left, canvas_.Width());
            for (; x < row_end; x += Sampler::MostPixels) {
                Draw_Pixels(x, y, std::min(row_end - x, Sampler::MostPixels));
            }
        }
    }

    /// Where a row enters an outline and where it leaves it.
    std::array<double, 2> Sides(Outline outline, double y) const {
        double left = 1, right = 0;
        bool is_first = true;
        for (std::size_t i = 0; i < outline.size(); ++i) {
            Corner from = corners_[outline[i]], to = corners_[outline[(i + 1) % outline.size()]];
            if (from.y > to.y) std::swap(from, to);
            if (y < from.y || y >= to.y) continue;
            const double x = from.x + (y - from.y) * (to.x - from.x) / (to.y - from.y);
            left = is_first ? x : std::min(left, x);
            right = is_first ? x : std::max(right, x);
            is_first = false;
        }
        return {left, right};
    }

    void Draw_Pixels(std::size_t x, std::size_t y, std::size_t count) {
        const double across = static_cast<double>(x) + 0.5 - origin_.x;
        const double down = static_cast<double>(y) + 0.5 - origin_.y;
        const auto travel = [&](const Slope& slope) {
            return Travel{slope.at_corner + across * slope.by_x + down * slope.by_y, slope.by_x};
        };
        for (std::size_t i = 0; i < samplers_.size(); ++i) {
            samplers_[i].Take(travel(slopes_[2 * i]), travel(slopes_[2 * i + 1]), count,
                              sampled_[i].data());
            taken_[i] = {sampled_[i].data(), false};
        }
        std::array<Travel, 4> colors;
        for (std::size_t i = 0; i < 4; ++i) colors[i] = travel(color_slopes_[i]);
        const std::size_t pairs = (count + 1) / 2;
        canvas_.Put(x, y, count, shader_.Shade(Colors_Along(colors, pairs), taken_, pairs),
                    material_.compare, material_.blend);
    }

    /// The colours of a row, which change from pixel to pixel.
    Pixels Colors_Along(const std::array<Travel, 4>& colors, std::size_t pairs) {
        using Wide = std::uint32_t __attribute__((vector_size(16)));
        constexpr double One = 65536, Steepest = 30000;
        Wide at{}, step{};
        bool is_constant = true;
        for (std::size_t i = 0; i < 4; ++i) {
            const auto fixed = [&](double number) {
                return static_cast<std::uint32_t>(
                    static_cast<std::int32_t>(std::clamp(number, -Steepest, Steepest) * One));
            };
            at[i] = fixed(colors[i].start + 0.5);
            step[i] = fixed(colors[i].step);
            is_constant = is_constant && step[i] == 0;
        }
        if (is_constant) pairs = 1;
        for (std::size_t i = 0; i < pairs; ++i) {
            const Wide next = at + step;
            drawn_[i] =
                __builtin_shufflevector(reinterpret_cast<Lanes>(at), reinterpret_cast<Lanes>(next),
                                        1, 3, 5, 7, 9, 11, 13, 15);
            at = next + step;
        }
        return {drawn_.data(), is_constant};
    }

    using Row = std::array<Lanes, Sampler::MostPixels / 2>;

    Canvas& canvas_;
    const Material& material_;
    Shader& shader_;

    std::array<Corner, 4> corners_{};
    std::array<Corners, 4> colors_{};
    std::vector<Corners> coordinates_;  ///< in turn s and t of each texture
    std::vector<Sampler> samplers_;

    Corner origin_{};
    std::array<Slope, 4> color_slopes_{};
    std::vector<Slope> slopes_;
    std::vector<Row> sampled_;
    std::vector<Pixels> taken_;
    Row drawn_;
};

}  // namespace

void Fill(Canvas& canvas, const Quad& quad, const Material& material, Shader& shader,
          const std::vector<QuadTexture>& textures) {
    Filling(canvas, quad, material, shader, textures).Draw();
}

}  // namespace bannersmith::still
