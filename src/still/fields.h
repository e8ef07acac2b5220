#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/numbers.h"

namespace bannersmith::still {

/// The fields of a record that may be cut off: whatever lies behind its end reads as zero.
class Fields {
 public:
    explicit Fields(std::string_view bytes) : bytes_(bytes) {}

    bool Has(std::size_t offset, std::size_t count) const {
        return offset <= bytes_.size() && bytes_.size() - offset >= count;
    }

    std::uint8_t U8(std::size_t offset) const {
        return Has(offset, 1) ? static_cast<std::uint8_t>(bytes_[offset]) : std::uint8_t{0};
    }
    std::uint16_t U16(std::size_t offset) const {
        return Has(offset, 2) ? Read_U16(bytes_, offset) : std::uint16_t{0};
    }
    std::uint32_t U32(std::size_t offset) const {
        return Has(offset, 4) ? Read_U32(bytes_, offset) : 0;
    }
    float F32(std::size_t offset) const { return Has(offset, 4) ? Read_F32(bytes_, offset) : 0; }

    template <std::size_t Count>
    std::array<float, Count> Floats(std::size_t offset) const {
        std::array<float, Count> floats{};
        for (std::size_t i = 0; i < Count; ++i) floats[i] = F32(offset + 4 * i);
        return floats;
    }
    template <std::size_t Count>
    std::array<std::uint8_t, Count> Bytes(std::size_t offset) const {
        std::array<std::uint8_t, Count> bytes{};
        for (std::size_t i = 0; i < Count; ++i) bytes[i] = U8(offset + i);
        return bytes;
    }

    /// The text of at most `count` bytes up to the first zero byte.
    std::string Name(std::size_t offset, std::size_t count = std::string_view::npos) const {
        if (offset > bytes_.size()) return {};
        const std::string_view field = bytes_.substr(offset, count);
        return std::string(field.substr(0, field.find('\0')));
    }

    /// What stands from `offset` on; nothing behind the end.
    Fields Behind(std::size_t offset) const {
        return Fields(offset <= bytes_.size() ? bytes_.substr(offset) : std::string_view{});
    }

    std::size_t Size() const { return bytes_.size(); }

 private:
    std::string_view bytes_;
};

}  // namespace bannersmith::still
