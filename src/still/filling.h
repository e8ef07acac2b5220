// Rectangles as they are drawn: anywhere, turned and bent, their corners' colours and coordinates
// spread over the pixels between them.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "still/canvas.h"
#include "still/sampling.h"
#include "still/scene.h"
#include "still/shading.h"

namespace bannersmith::still {

/// A place, of a pixel or in a texture.
struct Point {
    float x = 0, y = 0;
};

/// A rectangle's corners: left top, right top, left bottom, right bottom. On the canvas x runs to
/// the right and y down, one a pixel; the alpha of the colours is multiplied with `alpha`.
struct Quad {
    std::array<Point, 4> corners{};
    std::array<Rgba, 4> colors{};
    float alpha = 1;  ///< 0 to 1
};

/// A texture that a shader takes, and its coordinates at the corners, in texels.
struct QuadTexture {
    const Texels* texels = nullptr;
    Wrap s = Wrap::clamp, t = Wrap::clamp;
    std::array<Point, 4> coordinates{};
};

/// Draws a quad: every pixel whose middle lies in it. `textures` are those of the shader's taps, in
/// their order. Colours and coordinates run straight; where the four are not those of one plane, in
/// two triangles that share the line from the left top to the right bottom. A quad with a number
/// that is none is not drawn.
void Fill(Canvas& canvas, const Quad& quad, const Material& material, Shader& shader,
          const std::vector<QuadTexture>& textures);

}  // namespace bannersmith::still
