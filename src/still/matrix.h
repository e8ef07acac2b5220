#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "still/filling.h"
#include "still/scene.h"

namespace bannersmith::still {

/// How a pane's own places become those of the screen, y up: the first three columns turn and
/// scale, the last one moves.
struct Matrix {
    std::array<std::array<double, 4>, 3> rows{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}}};

    /// `inner` first, then this one.
    Matrix operator*(const Matrix& inner) const {
        Matrix product;
        for (std::size_t r = 0; r < 3; ++r) {
            for (std::size_t c = 0; c < 4; ++c) {
                product.rows[r][c] = c == 3 ? rows[r][3] : 0;
                for (std::size_t k = 0; k < 3; ++k) {
                    product.rows[r][c] += rows[r][k] * inner.rows[k][c];
                }
            }
        }
        return product;
    }

    /// A place in the pane's plane; what is nearer or farther is seen at the same place.
    Point operator()(double x, double y) const {
        return {static_cast<float>(rows[0][0] * x + rows[0][1] * y + rows[0][3]),
                static_cast<float>(rows[1][0] * x + rows[1][1] * y + rows[1][3])};
    }
};

/// Turned about one axis (0 x, 1 y, 2 z).
inline Matrix Rotation(std::size_t axis, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    const std::size_t from = (axis + 1) % 3, to = (axis + 2) % 3;
    Matrix turned;
    turned.rows[from][from] = turned.rows[to][to] = std::cos(angle);
    turned.rows[from][to] = -std::sin(angle);
    turned.rows[to][from] = std::sin(angle);
    return turned;
}

/// Scaled by `scale_x` and the pane's own vertical scale, turned about x, y and then z, and moved.
inline Matrix Matrix_Of(const Pane& pane, double scale_x) {
    Matrix moved, scaled;
    for (std::size_t i = 0; i < 3; ++i) moved.rows[i][3] = pane.translation[i];
    scaled.rows[0][0] = scale_x;
    scaled.rows[1][1] = pane.scale[1];
    return moved * Rotation(2, pane.rotation[2]) * Rotation(1, pane.rotation[1]) *
           Rotation(0, pane.rotation[0]) * scaled;
}

}  // namespace bannersmith::still
