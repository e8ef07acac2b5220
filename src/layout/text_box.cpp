#include "layout/text_box.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "base/numbers.h"
#include "layout/pieces.h"
#include "layout/record.h"

namespace bannersmith {

namespace {

constexpr std::string_view NoneEnding = "_NONE";

std::string Writing_Name(std::string_view name, Pieces::Test test) {
    if (test == Pieces::Test::exact || !name.ends_with(NoneEnding)) return std::string(name);
    name.remove_suffix(NoneEnding.size());
    return std::string(name) + '\0';
}

/// The display text of the record at `offset`; empty where there is none that can be read.
std::u16string Read_At(std::string_view data, std::optional<std::size_t> offset) {
    if (!offset) return {};
    const std::string_view record = record::At(data, *offset);
    const auto tail = record::Tail_Length(record);
    if (!tail) return {};
    return Decode_Text(record.substr(record.size() - *tail));
}

std::u16string Read(std::string_view data, const Pieces& pieces, std::string_view name) {
    return Read_At(data, pieces.Find_Record(data, name, Pieces::Test::exact));
}

/// The record with `text` in place of its old text; nothing when it cannot hold one.
std::optional<std::string> Rebuild(std::string_view record, std::u16string_view text) {
    const auto old_tail = record::Tail_Length(record);
    if (!old_tail) return std::nullopt;
    std::string tail = Encode_Text(text) + std::string(2, '\0');
    if (tail.size() > std::numeric_limits<std::uint16_t>::max()) return std::nullopt;
    const auto text_length = static_cast<std::uint16_t>(tail.size());
    if (const auto odd = Get_Remainder(4, text_length)) {
        tail.append(4 - static_cast<std::size_t>(odd), '\0');
    }

    std::string fresh(record.substr(0, record.size() - *old_tail));
    fresh += tail;
    Write_U32(fresh, record::SectionSize, static_cast<std::uint32_t>(fresh.size()));
    Write_U16(fresh, record::BufferLength, text_length);
    Write_U16(fresh, record::TextLength, text_length);
    return fresh;
}

void Write(std::string& data, Pieces& pieces, std::string_view name, std::u16string_view text,
           Pieces::Test test = Pieces::Test::prefix) {
    if (text.empty()) return;
    const auto offset = pieces.Find_Record(data, Writing_Name(name, test), test);
    if (!offset) return;
    const std::string old(record::At(data, *offset));
    const auto fresh = Rebuild(old, text);
    if (!fresh || *fresh == old) return;
    pieces.Replace(data, old, *fresh);
}

}  // namespace

std::u16string Get_Text(std::string_view data, std::string_view name) {
    return Read(data, Pieces(data), name);
}

std::vector<std::u16string> Get_Texts(std::string_view data,
                                      std::span<const std::string_view> names) {
    std::vector<std::u16string> texts;
    texts.reserve(names.size());
    for (const auto& offset : Pieces(data).Find_Records(data, names, Pieces::Test::exact)) {
        texts.push_back(Read_At(data, offset));
    }
    return texts;
}

std::string Set_Text(std::string data, std::string_view name, std::u16string_view text) {
    Pieces pieces(data);
    Write(data, pieces, name, text);
    return data;
}

std::string Set_Texts(std::string data, std::span<const BoxText> texts) {
    Pieces pieces(data);
    for (const BoxText& box : texts) Write(data, pieces, box.name, box.text, box.test);
    return data;
}

bool Has_Text_Box(std::string_view data, std::string_view name, Pieces::Test test) {
    const auto offset = Pieces(data).Find_Record(data, Writing_Name(name, test), test);
    return offset && record::Tail_Length(record::At(data, *offset));
}

bool Is_Written_Where_It_Is_Read(std::string_view data, std::string_view name, Pieces::Test test,
                                 std::string_view read_name) {
    const Pieces pieces(data);
    const auto read = pieces.Find_Record(data, read_name, Pieces::Test::exact);
    return read && pieces.Find_Record(data, Writing_Name(name, test), test) == read;
}

std::string Rewrite_Texts(std::string data, std::span<const std::string> names) {
    Pieces pieces(data);
    for (const std::string& name : names) Write(data, pieces, name, Read(data, pieces, name));
    return data;
}

std::vector<std::string> Text_Box_Names(std::string_view data) {
    constexpr std::size_t NameInPiece = record::Name - record::Tag.size();
    std::vector<std::string> names;
    for (const std::string_view piece : Pieces(data).Behind_Tags(data)) {
        std::string name(
            piece.substr(std::min(NameInPiece, piece.size()), record::ListedNameBytes));
        std::erase(name, '\0');
        names.push_back(std::move(name));
    }
    return names;
}

std::u16string Decode_Text(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const char16_t unit = Read_U16(bytes, at);
        if (unit != 0) text += unit == u'\n' ? u'^' : unit;
    }
    return text;
}

std::string Encode_Text(std::u16string_view text) {
    std::string bytes(text.size() * 2, '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        Write_U16(bytes, i * 2, text[i] == u'^' ? u'\n' : text[i]);
    }
    return bytes;
}

std::int16_t Get_Remainder(int divisor, int value) {
    return static_cast<std::int16_t>(value % divisor);
}

}  // namespace bannersmith
