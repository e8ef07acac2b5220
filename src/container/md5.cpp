#include "container/md5.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

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

void Add_Block(State& state, std::string_view block) {
    std::array<std::uint32_t, 16> words{};
    for (std::size_t i = 0; i < words.size(); ++i) words[i] = Read_Little(block, 4 * i);
    std::uint32_t a = state[0], b = state[1], c = state[2], d = state[3];
    const auto step = [&](std::size_t i, std::uint32_t mixed, std::size_t word) {
        const std::uint32_t sum = a + mixed + Sines[i] + words[word % 16];
        a = d;
        d = c;
        c = b;
        b += std::rotl(sum, Turns[i / 16][i % 4]);
    };
    for (std::size_t i = 0; i < 16; ++i) step(i, (b & c) | (~b & d), i);
    for (std::size_t i = 16; i < 32; ++i) step(i, (d & b) | (~d & c), 5 * i + 1);
    for (std::size_t i = 32; i < 48; ++i) step(i, b ^ c ^ d, 3 * i + 5);
    for (std::size_t i = 48; i < 64; ++i) step(i, c ^ (b | ~d), 7 * i);
    state = {state[0] + a, state[1] + b, state[2] + c, state[3] + d};
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
