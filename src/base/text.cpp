#include "base/text.h"

#include <utf8.h>

#include <iterator>

namespace bannersmith {

namespace {

constexpr char16_t EscapedByte = 0xDC00;
constexpr char32_t Replacement = 0xFFFD;

bool Is_High_Surrogate(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool Is_Low_Surrogate(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}
bool Is_Escaped_Byte(char16_t unit) {
    return unit >= EscapedByte + 0x80 && unit <= EscapedByte + 0xFF;
}
/// A byte that belonged to no character, and not the second half of one outside the basic plane.
bool Is_Lone_Byte(std::u16string_view text, std::size_t at) {
    return Is_Escaped_Byte(text[at]) && (at == 0 || !Is_High_Surrogate(text[at - 1]));
}
/// Those of ASCII and those above it.
bool Is_Control(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

void Append_Hex(std::string& text, std::string_view prefix, unsigned value, int digits) {
    text += prefix;
    for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4) {
        text += "0123456789abcdef"[value >> shift & 0xFU];
    }
}

}  // namespace

std::u16string From_Utf8(std::string_view bytes) {
    std::u16string text;
    auto at = bytes.begin();
    while (at != bytes.end()) {
        const auto invalid = utf8::find_invalid(at, bytes.end());
        utf8::utf8to16(at, invalid, std::back_inserter(text));
        at = invalid;
        if (at != bytes.end()) {
            text += static_cast<char16_t>(EscapedByte + static_cast<unsigned char>(*at++));
        }
    }
    return text;
}

std::string To_Utf8(std::u16string_view text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (Is_High_Surrogate(unit) && i + 1 < text.size() && Is_Low_Surrogate(text[i + 1])) {
            const char16_t low = text[++i];
            utf8::append(0x10000U + ((unit - 0xD800U) << 10) + (low - 0xDC00U),
                         std::back_inserter(bytes));
        } else if (Is_Escaped_Byte(unit)) {
            bytes += static_cast<char>(unit - EscapedByte);
        } else {
            const bool lone = Is_High_Surrogate(unit) || Is_Low_Surrogate(unit);
            utf8::append(lone ? Replacement : static_cast<char32_t>(unit),
                         std::back_inserter(bytes));
        }
    }
    return bytes;
}

bool Is_Utf8(std::u16string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (Is_Lone_Byte(text, i)) return false;
    }
    return true;
}

std::string Printable(std::u16string_view text) {
    std::string shown;
    std::size_t plain = 0;  // where what has not been shown yet begins
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool byte = Is_Lone_Byte(text, i);
        if (!byte && !Is_Control(text[i])) continue;
        shown += To_Utf8(text.substr(plain, i - plain));
        if (byte) {
            Append_Hex(shown, "\\x", text[i] - EscapedByte, 2);
        } else {
            Append_Hex(shown, "\\u", text[i], 4);
        }
        plain = i + 1;
    }
    return shown + To_Utf8(text.substr(plain));
}

std::u16string Shortened(std::u16string_view text, std::size_t most) {
    if (text.size() <= most) return std::u16string(text);
    std::u16string shortened(text.substr(0, most / 2));
    return shortened.append(u"...").append(text.substr(text.size() - most / 2));
}

std::u16string From_Bytes(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) text += static_cast<unsigned char>(byte);
    return text;
}

std::optional<std::string> To_Bytes(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (const char16_t unit : text) {
        if (unit > 0xFF) return std::nullopt;
        bytes += static_cast<char>(unit);
    }
    return bytes;
}

std::u16string_view Trim(std::u16string_view text) {
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

std::u16string Capitals(std::u16string_view text) {
    std::u16string capitals(text);
    for (char16_t& unit : capitals) {
        if (unit >= u'a' && unit <= u'z') unit = static_cast<char16_t>(unit - u'a' + u'A');
    }
    return capitals;
}

std::u16string Replace_All(std::u16string_view text, std::u16string_view what,
                           std::u16string_view with) {
    if (what.empty()) return std::u16string(text);
    std::u16string result;
    std::size_t at = 0;
    for (std::size_t hit = text.find(what); hit != text.npos; hit = text.find(what, at)) {
        result.append(text.substr(at, hit - at)).append(with);
        at = hit + what.size();
    }
    return result.append(text.substr(at));
}

std::u16string_view Piece_Of(std::u16string_view text, char16_t separator, std::size_t index) {
    while (index-- > 0) {
        const std::size_t at = text.find(separator);
        if (at == text.npos) return {};
        text.remove_prefix(at + 1);
    }
    return text.substr(0, text.find(separator));
}

}  // namespace bannersmith
