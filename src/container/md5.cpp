#include "container/md5.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <utility>

namespace bannersmith {

namespace {

using State = std::array<std::uint32_t, 4>;
constexpr std::size_t BlockSize = 64;

/// The whole part of 2^32 times the sine of 1 to 64.
std::array<std::uint32_t, BlockSize> Make_Sines() {
    std::array<std::uint32_t, BlockSize> sines{};
    for (std::size_t i = 0; i < BlockSize; ++i) {
        const double sine = std::fabs(std::sin(static_cast<double>(i + 1)));
        sines[i] = static_cast<std::uint32_t>(std::ldexp(sine, 32));
    }
    return sines;
}

const std::array<std::uint32_t, BlockSize> Sines = Make_Sines();
constexpr int Turns[4][4] = {{7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}};

std::uint32_t Read_Little(std::string_view bytes, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = 4; i-- > 0;) {
        number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
    }
    return number;
}

/// Step `I` of the 64, the number known to the compiler, which makes all of them one straight line.
template <std::size_t I>
void Step(State& state, const std::array<std::uint32_t, 16>& words) {
    constexpr std::size_t Round = I / 16;
    constexpr std::size_t Word = (Round == 0   ? I
                                  : Round == 1 ? 5 * I + 1
                                  : Round == 2 ? 3 * I + 5
                                               : 7 * I) %
                                 16;
    const auto [a, b, c, d] = state;
    const std::uint32_t mixed = Round == 0   ? (b & c) | (~b & d)
                                : Round == 1 ? (d & b) | (~d & c)
                                : Round == 2 ? b ^ c ^ d
                                             : c ^ (b | ~d);
    const std::uint32_t sum = a + mixed + Sines[I] + words[Word];
    state = {d, b + std::rotl(sum, Turns[Round][I % 4]), b, c};
}

template <std::size_t... I>
void All_Steps(State& state, const std::array<std::uint32_t, 16>& words,
               std::index_sequence<I...> /*numbers*/) {
    (Step<I>(state, words), ...);
}

void Add_Block(State& state, std::string_view block) {
    std::array<std::uint32_t, 16> words{};
    for (std::size_t i = 0; i < words.size(); ++i) words[i] = Read_Little(block, 4 * i);
    State mixed = state;
    All_Steps(mixed, words, std::make_index_sequence<BlockSize>());
    for (std::size_t i = 0; i < state.size(); ++i) state[i] += mixed[i];
}

/// What follows the last whole block: the rest, a one bit, zeros, and the count of bits.
std::string Last_Blocks(std::string_view rest, std::uint64_t size) {
    std::string blocks(rest);
    blocks += '\x80';
    while (blocks.size() % BlockSize != BlockSize - 8) blocks += '\0';
    for (unsigned i = 0; i < 8; ++i) blocks += static_cast<char>(size * 8 >> 8 * i);
    return blocks;
}

}  // namespace

std::string Md5(std::string_view bytes) {
    State state = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476};
    const std::size_t whole = bytes.size() / BlockSize * BlockSize;
    for (std::size_t at = 0; at < whole; at += BlockSize) {
        Add_Block(state, bytes.substr(at, BlockSize));
    }
    const std::string last = Last_Blocks(bytes.substr(whole), bytes.size());
    for (std::size_t at = 0; at < last.size(); at += BlockSize) {
        Add_Block(state, std::string_view(last).substr(at, BlockSize));
    }
    std::string digest;
    for (const std::uint32_t word : state) {
        for (unsigned i = 0; i < 4; ++i) digest += static_cast<char>(word >> 8 * i);
    }
    return digest;
}

}  // namespace bannersmith
