// Numbers as a layout stores them. This floor knows nothing but bytes: it includes nothing of the
// floors above it and nothing of the platform.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace bannersmith {

/// The unsigned big-endian 16-bit number at `offset`. The caller makes sure that offset + 2 bytes
/// lie inside `bytes`.
inline std::uint16_t Read_U16(std::string_view bytes, std::size_t offset) {
    return static_cast<std::uint16_t>(static_cast<unsigned char>(bytes[offset]) << 8 |
                                      static_cast<unsigned char>(bytes[offset + 1]));
}

/// The unsigned big-endian 32-bit number at `offset`, with the same duty of the caller.
inline std::uint32_t Read_U32(std::string_view bytes, std::size_t offset) {
    return static_cast<std::uint32_t>(Read_U16(bytes, offset)) << 16 | Read_U16(bytes, offset + 2);
}

/// The IEEE 754 number of four bytes at `offset`, with the same duty of the caller.
inline float Read_F32(std::string_view bytes, std::size_t offset) {
    return std::bit_cast<float>(Read_U32(bytes, offset));
}

/// Overwrites two bytes of `bytes` at `offset` with `value`, high byte first. The caller makes sure
/// that they lie inside `bytes`.
inline void Write_U16(std::string& bytes, std::size_t offset, std::uint16_t value) {
    bytes[offset] = static_cast<char>(value >> 8);
    bytes[offset + 1] = static_cast<char>(value & 0xFF);
}

/// Overwrites four bytes of `bytes` at `offset` with `value`, highest byte first, with the same
/// duty of the caller.
inline void Write_U32(std::string& bytes, std::size_t offset, std::uint32_t value) {
    Write_U16(bytes, offset, static_cast<std::uint16_t>(value >> 16));
    Write_U16(bytes, offset + 2, static_cast<std::uint16_t>(value & 0xFFFF));
}

}  // namespace bannersmith
