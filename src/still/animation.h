// An animation (".brlan"): curves that move the panes and materials of a layout.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "still/scene.h"

namespace bannersmith::still {

/// A value at a frame, and for a smooth curve how fast it changes there.
struct Key {
    float frame = 0, value = 0, slope = 0;
};

/// What one number does over time. Keys are in the order of their frames.
struct Curve {
    bool is_smooth = false;  ///< Hermite between the keys, else each value holds up to the next key
    std::vector<Key> keys;   ///< at least one

    /// The value at a frame: of two keys on one frame the later one's, outside the keys that of the
    /// first or last one.
    float At(float frame) const;
};

/// One of the numbers that an animation moves.
struct AnimationTarget {
    std::string name;  ///< of the pane or material
    bool of_material = false;
    std::string kind;                 ///< four letters: "RLPA"
    std::uint8_t id = 0, target = 0;  ///< which texture matrix or map; which number of the kind
    Curve curve;
};

/// An animation.
struct Animation {
    std::size_t frames = 0;             ///< how many
    std::vector<std::string> textures;  ///< that its texture changes name
    std::vector<AnimationTarget> targets;
    std::vector<std::string> faults;  ///< what is broken and so moves nothing
};

/// The animation in `bytes`. Fails, without a subject, where they are none.
Result<Animation> Read_Animation(std::string_view bytes);

/// Moves the scene to `frame` of the animation. What the scene lacks is passed over; what the
/// animation does not move stays as it is.
void Move_To(Scene& scene, const Animation& animation, float frame);

}  // namespace bannersmith::still
