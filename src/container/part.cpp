#include "container/part.h"

#include "base/numbers.h"
#include "container/md5.h"
#include "container/u8.h"

namespace bannersmith {

namespace {

using namespace std::string_view_literals;

constexpr auto Magic = "IMD5"sv;
constexpr std::size_t HeaderSize = 0x20, LengthAt = 4, DigestAt = 0x10, DigestSize = 16;
constexpr std::size_t Filling = 4;

/// Whether `rest`, behind a stream, only fills it up.
bool Fills_Up(std::string_view rest, std::size_t payload_size) {
    return rest.size() < Filling && payload_size % Filling == 0 &&
           rest.find_first_not_of('\0') == rest.npos;
}

std::string Header(std::string_view old, std::string_view payload) {
    std::string header(old);
    Write_U32(header, LengthAt, static_cast<std::uint32_t>(payload.size()));
    return header.replace(DigestAt, DigestSize, Md5(payload));
}

}  // namespace

bool Part::Checksum_Holds() const {
    return header.empty() || header.substr(DigestAt, DigestSize) == Md5(payload);
}

std::size_t Part::Content_Size() const {
    return packed ? Lz77_Declared_Size(payload).value_or(0) : payload.size();
}

std::optional<std::size_t> Part::Certain_Size(std::size_t said) const {
    if (packed) {
        if (Content_Size() == said) return said;
        const auto contents = Lz77_Decompress(payload);
        return contents ? std::optional(contents->bytes.size()) : std::nullopt;
    }
    if (Begins_As_U8(payload) || payload.starts_with("BNS ")) return payload.size();
    return std::nullopt;
}

bool Begins_As_Part(std::string_view bytes) {
    return bytes.starts_with(Magic) || bytes.starts_with("LZ77") || Lz77_Form_Of(bytes);
}

Result<Part> Read_Part(std::string_view bytes) {
    Part part;
    part.payload = bytes;
    if (bytes.starts_with(Magic)) {
        if (bytes.size() < HeaderSize) return Failure{u"", "IMD5 header is cut off"};
        const std::size_t length = Read_U32(bytes, LengthAt);
        if (length > bytes.size() - HeaderSize) {
            return Failure{u"", "IMD5 header tells of more bytes than there are"};
        }
        part.header = bytes.substr(0, HeaderSize);
        part.payload = bytes.substr(HeaderSize, length);
        part.tail = bytes.substr(HeaderSize + length);
    }
    part.packed = Lz77_Form_Of(part.payload);
    return part;
}

Result<PartContent> Unpack(const Part& part) {
    if (!part.packed) return PartContent{std::string(part.payload), {}};
    auto contents = Lz77_Decompress(part.payload);
    if (!contents) return contents.Why();
    return PartContent{std::move(contents->bytes),
                       std::string(part.payload.substr(contents->stream_size))};
}

bool Has_Bytes_Behind(const Part& part, const PartContent& content) {
    return !part.tail.empty() ||
           !Fills_Up(content.rest, content.rest.empty() ? 0 : part.payload.size());
}

std::string Pack(const Part& part, std::string_view content, const PartContent& old) {
    const std::string& rest = old.rest;
    std::string payload = part.packed
                              ? Lz77_Compress(content, *part.packed, {part.payload, old.bytes})
                              : std::string(content);
    if (part.packed && Fills_Up(rest, part.payload.size())) {
        while (payload.size() % Filling != 0) payload += '\0';
    } else {
        payload += rest;
    }
    if (part.header.empty()) return payload;
    payload.insert(0, Header(part.header, payload)) += part.tail;
    return payload;
}

}  // namespace bannersmith
