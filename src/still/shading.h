// The colour computation of a material: its stages, over a row of pixels.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "still/lanes.h"
#include "still/sampling.h"
#include "still/scene.h"

namespace bannersmith::still {

/// Pixels of a row, two in each; or two that stand for all.
struct Pixels {
    const Lanes* first = nullptr;
    bool is_constant = false;

    Lanes At(std::size_t pair) const { return first[is_constant ? 0 : pair]; }
};

/// A use of a texture: the material's map and coordinates, by their indices.
struct Tap {
    std::size_t map = 0, coordinates = 0;

    bool operator==(const Tap&) const = default;
};

/// A material made ready to compute colours. A material without stages has those that the console
/// gives it: its textures mixed, from C0 to C1, multiplied with the vertex colours.
class Shader {
 public:
    explicit Shader(const Material& material);

    /// The textures that the stages take, each use once.
    const std::vector<Tap>& Taps() const { return taps_; }

    /// The colours of at most `Sampler::MostPixels` pixels, `pairs` of two each. `drawn`: the
    /// colours between the vertices; `textures`: the pixels of each tap. Valid until the next call.
    Pixels Shade(Pixels drawn, const std::vector<Pixels>& textures, std::size_t pairs);

 private:
    static constexpr std::size_t MostPairs = Sampler::MostPixels / 2;
    using Row = std::array<Lanes, MostPairs>;

    /// One of the numbers that a stage computes with: its colours and its alpha are told apart.
    struct Operand {
        unsigned color = 0, alpha = 0;  ///< the numbers by which the format tells them

        bool operator==(const Operand&) const = default;
    };

    /// A stage, unpacked. Colours and alpha have settings of their own, side by side in lanes.
    struct Step {
        std::optional<std::size_t> tap;
        bool takes_drawn = false;
        std::array<std::uint8_t, 2> swaps{};   ///< of what is drawn and of the texture
        std::array<Operand, 4> operands{};     ///< a, b, c, d
        Lanes constant{};                      ///< K
        std::array<unsigned, 2> operations{};  ///< of colour and alpha: 0 adds, 1 subtracts
        bool compares = false;                 ///< one of them compares instead
        bool is_plain = true;                  ///< adds, without bias or scale
        Lanes negated{}, bias{};
        SignedLanes twice_scale{}, low{}, high{};
        std::array<std::size_t, 2> outputs{};  ///< registers of colour and alpha
    };

    Step Unpack(const Stage& stage, const Material& material);
    void Run(const Step& step, std::size_t pairs);
    Pixels Read(const Step& step, std::size_t operand, std::size_t pairs);
    Pixels Source(const Step& step, unsigned alpha_input) const;
    void Combine(const Step& step, const std::array<Pixels, 4>& inputs, std::size_t pairs,
                 Lanes* out) const;
    Lanes* Room_Of(std::size_t number, bool is_constant);
    void Write(const Step& step, std::size_t pairs, bool is_constant);
    bool Changes_Nothing(const Step& step) const;
    Pixels As_Colors(Pixels numbers, std::size_t pairs);
    static Pixels Swapped(Pixels pixels, std::uint8_t swap, std::size_t pairs, Row& room);

    std::vector<Step> steps_;
    std::vector<Tap> taps_;
    std::array<Lanes, 4> initial_{};  ///< PREV, C0 to C2
    bool ends_in_colors_ = true;

    // While a row is shaded.
    std::array<Pixels, 4> registers_;
    Pixels drawn_, texture_;
    std::array<Lanes, 4> register_constants_;  ///< apart, as a row takes the place of what it reads
    std::array<Row, 4> register_rows_, operand_rows_;
    Row drawn_row_, texture_row_, result_;
};

}  // namespace bannersmith::still
