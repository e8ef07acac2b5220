#include "still/shading.h"

#include <algorithm>
#include <variant>

namespace bannersmith::still {

namespace {

// The inputs of a stage by their numbers.
namespace color_input {
constexpr unsigned Previous = 0, C0 = 2, C1 = 4, Texture = 8, Drawn = 10, One = 12, Half = 13,
                   Constant = 14, Zero = 15;
}
namespace alpha_input {
constexpr unsigned Previous = 0, A0 = 1, A1 = 2, Texture = 4, Drawn = 5, Constant = 6, Zero = 7;
}

constexpr std::uint8_t NothingDrawn = 0xFF, ColorAndAlphaDrawn = 4;
constexpr std::size_t NoMap = 0x1FF;
constexpr std::uint8_t SameChannels = 0xE4;
constexpr std::uint16_t HalfOf255 = 128;
constexpr unsigned FirstComparison = 8;

/// The sixteen bytes of a stage that only adds: a, b, c and d of colour and alpha.
Stage Plain_Stage(std::size_t map, std::array<unsigned, 4> color, std::array<unsigned, 4> alpha,
                  unsigned constant = 0) {
    const auto low_first = [](unsigned low, unsigned high) {
        return static_cast<std::uint8_t>(low | high << 4);
    };
    const auto end = static_cast<std::uint8_t>(1 | constant << 3);  // clamped, to PREV
    const auto coordinates = static_cast<std::uint8_t>(map);
    return {coordinates,
            ColorAndAlphaDrawn,
            coordinates,
            0,
            low_first(color[0], color[1]),
            low_first(color[2], color[3]),
            0,
            end,
            low_first(alpha[0], alpha[1]),
            low_first(alpha[2], alpha[3]),
            0,
            end,
            0,
            0,
            0,
            0};
}

/// How each texture of several weighs: by a component of K3, then of K2, alpha first.
unsigned Weight(std::size_t map) {
    constexpr std::array<unsigned, 8> Selectors = {0x1F, 0x1B, 0x17, 0x13, 0x1E, 0x1A, 0x16, 0x12};
    return Selectors[map % Selectors.size()];
}

void Add_Mixed_Textures(std::vector<Stage>& stages, std::size_t count) {
    namespace color = color_input;
    namespace alpha = alpha_input;
    if (count == 2) {
        stages.push_back(Plain_Stage(0, {color::Zero, color::Zero, color::Zero, color::Texture},
                                     {alpha::Zero, alpha::Zero, alpha::Zero, alpha::Texture}));
        stages.push_back(Plain_Stage(
            1, {color::Texture, color::Previous, color::Constant, color::Zero},
            {alpha::Texture, alpha::Previous, alpha::Constant, alpha::Zero}, Weight(0)));
        return;
    }
    for (std::size_t map = 0; map < count; ++map) {
        stages.push_back(Plain_Stage(
            map,
            {color::Zero, color::Texture, color::Constant, map > 0 ? color::Previous : color::Zero},
            {alpha::Zero, alpha::Texture, alpha::Constant, map > 0 ? alpha::Previous : alpha::Zero},
            Weight(map)));
    }
}

/// The stages of a material that has none of its own.
std::vector<Stage> Default_Stages(const Material& material) {
    namespace color = color_input;
    namespace alpha = alpha_input;
    const std::size_t count = material.maps.size();
    const bool is_tinted = material.registers[0] != std::array<std::int16_t, 4>{0, 0, 0, 0} ||
                           material.registers[1] != std::array<std::int16_t, 4>{255, 255, 255, 255};
    if (count == 0) {
        return {Plain_Stage(0, {color::Zero, color::C1, color::Drawn, color::Zero},
                            {alpha::Zero, alpha::A1, alpha::Drawn, alpha::Zero})};
    }
    std::vector<Stage> stages;
    if (count > 1) Add_Mixed_Textures(stages, count);
    const unsigned mixed = count > 1 ? color::Previous : color::Texture;
    const unsigned mixed_alpha = count > 1 ? alpha::Previous : alpha::Texture;
    if (count == 1 || is_tinted) {
        stages.push_back(Plain_Stage(0, {color::C0, color::C1, mixed, color::Zero},
                                     {alpha::A0, alpha::A1, mixed_alpha, alpha::Zero}));
    }
    stages.push_back(Plain_Stage(0, {color::Zero, color::Previous, color::Drawn, color::Zero},
                                 {alpha::Zero, alpha::Previous, alpha::Drawn, alpha::Zero}));
    return stages;
}

/// What a selector takes for each channel: an eighth, a colour, or one component of it.
std::array<std::uint8_t, 4> Constant_Of(unsigned selector, const Material& material) {
    if (selector < 8) {
        const auto eighths = static_cast<std::uint8_t>((255 * (8 - selector) + 4) / 8);
        return {eighths, eighths, eighths, eighths};
    }
    constexpr unsigned FirstColor = 0x0C, FirstComponent = 0x10;
    if (selector < FirstColor) return {};
    const Rgba& color = material.constants[selector % 4];
    if (selector < FirstComponent) return color;
    const std::uint8_t component = color[(selector - FirstComponent) / 4];
    return {component, component, component, component};
}

/// `of_color` in the lanes with colours, `of_alpha` in those with alpha.
Lanes Split(int of_color, int of_alpha) {
    return Both(std::array{of_color, of_color, of_color, of_alpha});
}

/// A register's number as the hardware holds it: eleven bits with a sign.
Lanes Shortened(Lanes number) {
    constexpr int Unused = 5;
    return reinterpret_cast<Lanes>(reinterpret_cast<SignedLanes>(number << Unused) >> Unused);
}

bool Are_White(Pixels pixels) {
    if (!pixels.is_constant) return false;
    const Lanes& first = *pixels.first;
    for (std::size_t lane = 0; lane < 8; ++lane) {
        if (first[lane] != 255) return false;
    }
    return true;
}

/// The colour input that takes the colours of the pixels whose alpha an alpha input takes.
unsigned Color_Beside(unsigned alpha) {
    constexpr std::array<unsigned, 8> Beside = {
        color_input::Previous, color_input::C0,    color_input::C1,       color_input::C1 + 2,
        color_input::Texture,  color_input::Drawn, color_input::Constant, color_input::Zero};
    return Beside[alpha];
}

/// The pixels of a row, which are all one, or each its own.
struct Same {
    Lanes pixels;
    Lanes operator[](std::size_t) const { return pixels; }
};
struct Each {
    const Lanes* pixels;
    Lanes operator[](std::size_t pair) const { return pixels[pair]; }
};
using Input = std::variant<Same, Each>;

Input Input_Of(Pixels pixels) {
    if (pixels.is_constant) return Same{*pixels.first};
    return Each{pixels.first};
}

/// From a to b by c, and d on top of it, cut to colours, which is all that most stages do.
void Mix_Row(const std::array<Pixels, 4>& inputs, std::size_t pairs, Lanes* out) {
    const SignedLanes least{}, most = reinterpret_cast<SignedLanes>(Everywhere(255));
    std::visit(
        [&](auto a, auto b, auto c, auto d) {
            for (std::size_t i = 0; i < pairs; ++i) {
                const Lanes mixed = Mix(a[i] & 0xFF, b[i] & 0xFF, c[i] & 0xFF);
                auto sum = reinterpret_cast<SignedLanes>(mixed + d[i]);
                sum = sum > most ? most : sum;
                out[i] = reinterpret_cast<Lanes>(sum < least ? least : sum);
            }
        },
        Input_Of(inputs[0]), Input_Of(inputs[1]), Input_Of(inputs[2]), Input_Of(inputs[3]));
}

/// What a comparing stage adds to d: c where a is above b, or is b.
std::uint16_t Compared(unsigned operation, std::size_t channel, const Lanes& a, const Lanes& b,
                       const Lanes& c, std::size_t first) {
    const auto number = [&](const Lanes& lanes) -> std::uint32_t {
        const auto at = [&](std::size_t i) { return lanes[first + i] & 0xFFU; };
        switch (operation / 2) {
            case 4:
                return at(0);
            case 5:
                return at(0) | at(1) << 8;
            case 6:
                return at(0) | at(1) << 8 | at(2) << 16;
            default:
                return at(channel);
        }
    };
    const bool holds = operation % 2 == 0 ? number(a) > number(b) : number(a) == number(b);
    return holds ? c[first + channel] & 0xFF : 0;
}

}  // namespace

Shader::Shader(const Material& material) {
    for (std::size_t i = 0; i < 3; ++i) initial_[i + 1] = Shortened(Both(material.registers[i]));
    Material with_stages = material;
    if (material.stages.empty()) {
        with_stages.stages = Default_Stages(material);
        with_stages.swaps = Material().swaps;
    }
    for (const Stage& stage : with_stages.stages) steps_.push_back(Unpack(stage, with_stages));
    const Step& last = steps_.back();
    ends_in_colors_ =
        last.outputs == std::array<std::size_t, 2>{0, 0} && last.low[0] == 0 && last.low[3] == 0;
}

Shader::Step Shader::Unpack(const Stage& stage, const Material& material) {
    Step step;
    step.takes_drawn = stage[1] == ColorAndAlphaDrawn;
    step.swaps = {material.swaps[stage[3] >> 1 & 3], material.swaps[stage[3] >> 3 & 3]};
    bool takes_texture = false;
    for (std::size_t i = 0; i < 4; ++i) {
        const auto nibble = [&](std::size_t byte) {
            return stage[byte + i / 2] >> (i % 2 * 4) & 0xFU;
        };
        step.operands[i] = {nibble(4), nibble(8) & 7};
        takes_texture = takes_texture || step.operands[i].color / 2 == color_input::Texture / 2 ||
                        step.operands[i].alpha == alpha_input::Texture;
    }
    // From zero to zero the way does not matter: it is taken as it lies beside the alpha.
    const auto& [a, b, c, d] = step.operands;
    const bool compares_colors = (stage[6] & 0xF) >= FirstComparison;
    if (a.color == color_input::Zero && b.color == color_input::Zero && !compares_colors) {
        step.operands[2].color = Color_Beside(c.alpha);
    }
    const std::size_t map = stage[2] | (stage[3] & 1U) << 8;
    if (takes_texture && map < material.maps.size()) {
        const Tap tap{map, stage[0]};
        const auto known = std::find(taps_.begin(), taps_.end(), tap);
        step.tap = static_cast<std::size_t>(known - taps_.begin());
        if (known == taps_.end()) taps_.push_back(tap);
    }
    const auto color_constant = Constant_Of(stage[7] >> 3, material);
    const auto alpha_constant = Constant_Of(stage[11] >> 3, material);
    step.constant = Both(
        std::array{color_constant[0], color_constant[1], color_constant[2], alpha_constant[3]});
    std::array<int, 2> bias{}, scale{}, low{}, high{};
    for (std::size_t half = 0; half < 2; ++half) {
        constexpr std::array Biases = {0, 128, -128, 0}, TwiceScales = {2, 4, 8, 1};
        const unsigned operation = stage[6 + 4 * half], end = stage[7 + 4 * half];
        step.operations[half] = operation & 0xF;
        bias[half] = Biases[operation >> 4 & 3];
        scale[half] = TwiceScales[operation >> 6];
        low[half] = (end & 1) != 0 ? 0 : -1024;
        high[half] = (end & 1) != 0 ? 255 : 1023;
        step.outputs[half] = end >> 1 & 3;
    }
    const auto subtracts = [&](std::size_t half) { return step.operations[half] == 1 ? -1 : 0; };
    step.negated = Split(subtracts(0), subtracts(1));
    step.bias = Split(bias[0], bias[1]);
    step.twice_scale = reinterpret_cast<SignedLanes>(Split(scale[0], scale[1]));
    step.low = reinterpret_cast<SignedLanes>(Split(low[0], low[1]));
    step.high = reinterpret_cast<SignedLanes>(Split(high[0], high[1]));
    step.compares = std::max(step.operations[0], step.operations[1]) >= FirstComparison;
    step.is_plain = step.operations == std::array{0U, 0U} && bias == std::array{0, 0} &&
                    scale == std::array{2, 2};
    return step;
}

Pixels Shader::Shade(Pixels drawn, const std::vector<Pixels>& textures, std::size_t pairs) {
    for (std::size_t i = 0; i < registers_.size(); ++i) registers_[i] = {&initial_[i], true};
    static const Lanes Nothing{};
    for (const Step& step : steps_) {
        drawn_ = step.takes_drawn ? Swapped(drawn, step.swaps[0], pairs, drawn_row_)
                                  : Pixels{&Nothing, true};
        texture_ = step.tap ? Swapped(textures[*step.tap], step.swaps[1], pairs, texture_row_)
                            : Pixels{&Nothing, true};
        if (!Changes_Nothing(step)) Run(step, pairs);
    }
    return As_Colors(registers_[0], pairs);
}

/// Multiplying with white is what most materials without stages end with.
bool Shader::Changes_Nothing(const Step& step) const {
    using namespace color_input;
    const bool multiplies = step.is_plain && step.outputs == std::array<std::size_t, 2>{0, 0} &&
                            step.operands[0] == Operand{Zero, alpha_input::Zero} &&
                            step.operands[1] == Operand{Previous, alpha_input::Previous} &&
                            step.operands[2] == Operand{Drawn, alpha_input::Drawn} &&
                            step.operands[3] == Operand{Zero, alpha_input::Zero};
    return multiplies && Are_White(drawn_);
}

/// A register can hold what is no colour, unless the last stage that wrote it cut that off.
Pixels Shader::As_Colors(Pixels numbers, std::size_t pairs) {
    if (ends_in_colors_) return numbers;
    const SignedLanes zero{}, most = reinterpret_cast<SignedLanes>(Everywhere(255));
    for (std::size_t i = 0; i < (numbers.is_constant ? 1 : pairs); ++i) {
        const auto number = reinterpret_cast<SignedLanes>(numbers.At(i));
        const SignedLanes above = number < zero ? zero : number;
        result_[i] = reinterpret_cast<Lanes>(above > most ? most : above);
    }
    return {result_.data(), numbers.is_constant};
}

Pixels Shader::Swapped(Pixels pixels, std::uint8_t swap, std::size_t pairs, Row& room) {
    if (swap == SameChannels) return pixels;
    for (std::size_t i = 0; i < (pixels.is_constant ? 1 : pairs); ++i) {
        const Lanes from = pixels.At(i);
        for (std::size_t lane = 0; lane < 8; ++lane) {
            room[i][lane] = from[lane / 4 * 4 + (swap >> (lane % 4 * 2) & 3)];
        }
    }
    return {room.data(), pixels.is_constant};
}

/// The pixels whose alpha an alpha input takes, and whose colours a colour input of that kind does.
Pixels Shader::Source(const Step& step, unsigned alpha_input) const {
    static const Lanes Nothing{};
    if (alpha_input < alpha_input::Texture) return registers_[alpha_input];
    if (alpha_input == alpha_input::Texture) return texture_;
    if (alpha_input == alpha_input::Drawn) return drawn_;
    if (alpha_input == alpha_input::Constant) return {&step.constant, true};
    return {&Nothing, true};
}

Pixels Shader::Read(const Step& step, std::size_t operand, std::size_t pairs) {
    static const Lanes One = Everywhere(255), Half = Everywhere(HalfOf255);
    const unsigned color = step.operands[operand].color;
    const Pixels alpha = Source(step, step.operands[operand].alpha);
    // Colour inputs come in twos, the colours and the alpha of the same pixels, up to those of what
    // is drawn.
    const bool is_spread = color < color_input::One && color % 2 == 1;
    Pixels source = Source(step, color / 2);
    if (color == color_input::One) source = {&One, true};
    if (color == color_input::Half) source = {&Half, true};
    if (color == color_input::Constant) source = {&step.constant, true};
    if (color == color_input::Zero) source = Source(step, alpha_input::Zero);
    if (source.first == alpha.first && !is_spread) return source;
    const bool is_constant = source.is_constant && alpha.is_constant;
    Row& row = operand_rows_[operand];
    for (std::size_t i = 0; i < (is_constant ? 1 : pairs); ++i) {
        const Lanes colors = is_spread ? Spread_Alpha(source.At(i)) : source.At(i);
        row[i] = (colors & Color_Lanes()) | (alpha.At(i) & Alpha_Lanes());
    }
    return {row.data(), is_constant};
}

void Shader::Combine(const Step& step, const std::array<Pixels, 4>& inputs, std::size_t pairs,
                     Lanes* out) const {
    const bool clamps = step.low[0] == 0 && step.low[3] == 0;
    if (step.is_plain && clamps) return Mix_Row(inputs, pairs, out);
    const auto clamped = [&](SignedLanes sum) {
        sum = sum > step.high ? step.high : sum;
        return reinterpret_cast<Lanes>(sum < step.low ? step.low : sum);
    };
    for (std::size_t i = 0; i < pairs; ++i) {
        const Lanes mixed =
            Mix(inputs[0].At(i) & 0xFF, inputs[1].At(i) & 0xFF, inputs[2].At(i) & 0xFF);
        const Lanes sum = inputs[3].At(i) + ((mixed ^ step.negated) - step.negated) + step.bias;
        Lanes result = clamped((reinterpret_cast<SignedLanes>(sum) * step.twice_scale) >> 1);
        for (std::size_t lane = 0; step.compares && lane < 8; ++lane) {
            const unsigned operation = step.operations[lane % 4 / 3];
            if (operation < FirstComparison) continue;
            const auto d = static_cast<std::int16_t>(inputs[3].At(i)[lane]);
            const int total = d + Compared(operation, lane % 4, inputs[0].At(i), inputs[1].At(i),
                                           inputs[2].At(i), lane / 4 * 4);
            result[lane] =
                static_cast<std::uint16_t>(std::clamp<int>(total, step.low[lane], step.high[lane]));
        }
        out[i] = result;
    }
}

void Shader::Run(const Step& step, std::size_t pairs) {
    std::array<Pixels, 4> inputs;
    bool is_constant = true;
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        inputs[i] = Read(step, i, pairs);
        is_constant = is_constant && inputs[i].is_constant;
    }
    const std::size_t count = is_constant ? 1 : pairs;
    if (step.outputs[0] == step.outputs[1]) {
        Lanes* out = Room_Of(step.outputs[0], is_constant);
        Combine(step, inputs, count, out);
        registers_[step.outputs[0]] = {out, is_constant};
    } else {
        Combine(step, inputs, count, result_.data());
        Write(step, pairs, is_constant);
    }
}

Lanes* Shader::Room_Of(std::size_t number, bool is_constant) {
    return is_constant ? &register_constants_[number] : register_rows_[number].data();
}

/// Colours go to one register, alpha to another one.
void Shader::Write(const Step& step, std::size_t pairs, bool is_constant) {
    for (std::size_t half = 0; half < 2; ++half) {
        const Lanes written = half == 0 ? Color_Lanes() : Alpha_Lanes();
        Pixels& old = registers_[step.outputs[half]];
        const bool stays_constant = is_constant && old.is_constant;
        Lanes* row = Room_Of(step.outputs[half], stays_constant);
        for (std::size_t i = 0; i < (stays_constant ? 1 : pairs); ++i) {
            row[i] = (result_[is_constant ? 0 : i] & written) | (old.At(i) & ~written);
        }
        old = {row, stays_constant};
    }
}

}  // namespace bannersmith::still
