// Builds animations (".brlan") of the simplest kind: curves of panes and materials.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace bannersmith {

/// A value at a frame, and how fast it changes there.
struct CurveKey {
    float frame = 0, value = 0, slope = 0;
};

/// What one curve moves: a pane (or a material), a kind of property by its four letters, and its
/// number among those of the kind.
struct Curve {
    std::string name;
    bool of_material = false;
    std::string_view kind;
    unsigned target = 0;
    std::vector<CurveKey> keys;
};

/// An animation of so many frames, with one curve for each thing that it moves.
std::string Animation_File(unsigned frames, bool loops, const std::vector<Curve>& curves);

}  // namespace bannersmith
