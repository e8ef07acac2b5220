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

std::uint32_t Read_Little(const char* bytes) {
    const auto byte = [&](int i) { return std::uint32_t{static_cast<unsigned char>(bytes[i])}; };
    return byte(0) | byte(1) << 8 | byte(2) << 16 | byte(3) << 24;
}

/// Step `I` of the 64, the number known to the compiler, which makes all of them one straight line
/// without memory: what the steps call a, b, c and d moves on by one place each time.
template <std::size_t I>
void Step(State& state, const std::array<std::uint32_t, 16>& words) {
    constexpr std::size_t Round = I / 16;
    constexpr std::size_t Word = (Round == 0   ? I
                                  : Round == 1 ? 5 * I + 1
                                  : Round == 2 ? 3 * I + 5
                                               : 7 * I) %
                                 16;
    std::uint32_t& a = state[(BlockSize - I) % 4];
    const std::uint32_t b = state[(BlockSize - I + 1) % 4];
    const std::uint32_t c = state[(BlockSize - I + 2) % 4];
    const std::uint32_t d = state[(BlockSize - I + 3) % 4];
    const std::uint32_t mixed = Round == 0   ? d ^ (b & (c ^ d))
                                : Round == 1 ? c ^ (d & (b ^ c))
                                : Round == 2 ? b ^ c ^ d
                                             : c ^ (b | ~d);
    a = b + std::rotl(a + mixed + Sines[I] + words[Word], Turns[Round][I % 4]);
}

template <std::size_t... I>
void All_Steps(State& state, const std::array<std::uint32_t, 16>& words,
               std::index_sequence<I...> /*numbers*/) {
    (Step<I>(state, words), ...);
}

void Add_Block(State& state, std::string_view block) {
    std::array<std::uint32_t, 16> words{};
    for (std::size_t i = 0; i < words.size(); ++i) words[i] = Read_Little(&block[4 * i]);
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
