// Textures as they are drawn: filtered between their texels, and going on beyond their sides.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "still/lanes.h"
#include "still/scene.h"
#include "texture/picture.h"

namespace bannersmith::still {

/// How a coordinate moves along a row of pixels, in texels.
struct Travel {
    double start = 0, step = 0;
};

/// A texture with the border that its wraps need, so that the four texels around any place lie
/// beside each other.
class Texels {
 public:
    /// `picture` has at least one texel.
    Texels(const Picture& picture, Wrap s, Wrap t);

    std::size_t Width() const { return width_; }
    std::size_t Height() const { return height_; }

    /// The border's kind, which clamped and mirrored textures share.
    static bool Goes_Around(Wrap wrap) { return wrap == Wrap::repeat; }

 private:
    friend class Sampler;

    std::size_t width_, height_;
    std::vector<std::uint32_t> texels_;  ///< rows of width + 2
};

/// The pixels of a row that one use of a texture takes. Keeps what the next row can share.
class Sampler {
 public:
    /// At most so many pixels at once: those of a row of the wide screen.
    static constexpr std::size_t MostPixels = 832;

    Sampler(const Texels& texels, Wrap s, Wrap t) : texels_(&texels), s_(s), t_(t) {}

    const Texels& Source() const { return *texels_; }

    /// `count` pixels into `out`, two in each, an odd last one with anything beside it. `s` and `t`
    /// travel by pixel; they are finite.
    void Take(const Travel& s, const Travel& t, std::size_t count, Lanes* out);

 private:
    /// Places along one side, in texels of the bordered texture, the lower eight bits the fraction.
    class Axis {
     public:
        /// Whether all places are the first one.
        bool Follow(const Travel& travel, Wrap wrap, std::size_t side, std::size_t count);
        std::array<std::uint32_t, MostPixels> places;

     private:
        Travel last_{};
        std::size_t known_ = 0;
    };

    const Texels* texels_;
    Wrap s_, t_;
    Axis across_, down_;
};

}  // namespace bannersmith::still
