#pragma once

#include <string>
#include <vector>

#include "base/numbers.h"
#include "layout/text_box.h"

namespace bannersmith {

/// The rules of lookup and writing in their plainest form: split, search and replace as strings.
namespace plain {

using namespace std::string_literals;

inline std::vector<std::string> Split(const std::string& data) {
    std::vector<std::string> pieces;
    std::size_t start = 0;
    for (std::size_t at; (at = data.find("txt1", start)) != data.npos; start = at + 4) {
        pieces.push_back(data.substr(start, at - start));
    }
    pieces.push_back(data.substr(start));
    return pieces;
}

inline std::string Find(const std::string& data, const std::string& name, const std::string& wanted) {
    std::string key;
    for (const std::string& piece : Split(data)) {
        if (wanted.empty() || (piece.size() >= 8 + wanted.size() && piece.substr(8, wanted.size()) == wanted)) {
            key = "txt1" + piece.substr(0, 8 + name.size());
        }
    }
    const std::size_t at = key.empty() ? data.npos : data.find(key);
    if (at == data.npos || data.size() - at < 8) return {};
    const std::string record = data.substr(at, Read_U32(data, at + 4));
    if (record.size() < 0x50 || Read_U16(record, 0x4E) % 2) return {};
    return record;
}

inline std::size_t Tail(const std::string& record) {
    return Read_U16(record, 0x4E) + (record.ends_with("\0\0\0\0"s) ? 2U : 0U);
}

inline std::u16string Get(const std::string& data, const std::string& name) {
    const std::string record = Find(data, name, name + "\0\0"s);
    if (record.empty() || Tail(record) > record.size() - 0x50) return {};
    return Decode_Text(record.substr(record.size() - Tail(record)));
}

inline std::string Set(const std::string& data, std::string name, const std::u16string& text) {
    if (name.ends_with("_NONE")) name = name.substr(0, name.size() - 5) + '\0';
    const std::string old = text.empty() ? "" : Find(data, name, name);
    if (old.empty() || Tail(old) > old.size() - 0x50) return data;
    std::string fresh = old.substr(0, old.size() - Tail(old)) + Encode_Text(text) + "\0\0"s;
    const auto length = static_cast<std::uint16_t>(2 * text.size() + 2);
    if (length % 4) fresh += "\0\0"s;
    Write_U32(fresh, 4, static_cast<std::uint32_t>(fresh.size()));
    Write_U16(fresh, 0x4C, length);
    Write_U16(fresh, 0x4E, length);
    std::string result;
    std::size_t start = 0;
    for (std::size_t at; (at = data.find(old, start)) != data.npos; start = at + old.size()) {
        result += data.substr(start, at - start) + fresh;
    }
    return result + data.substr(start);
}

}  // namespace plain

}  // namespace bannersmith
