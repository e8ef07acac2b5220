#include "layout/record.h"

#include "base/numbers.h"

namespace bannersmith {

namespace record {

std::optional<std::size_t> Tail_Length(std::string_view record) {
    if (record.size() < FieldsEnd) return std::nullopt;
    const std::size_t text_length = Read_U16(record, TextLength);
    const bool padded = Read_U32(record, record.size() - 4) == 0;
    const std::size_t tail = text_length + (padded ? 2 : 0);
    if (text_length % 2 != 0 || tail > record.size() - FieldsEnd) return std::nullopt;
    return tail;
}

std::string_view At(std::string_view data, std::size_t offset) {
    if (data.size() - offset < SectionSize + 4) return {};
    return data.substr(offset, Read_U32(data, offset + SectionSize));
}

}  // namespace record

}  // namespace bannersmith
