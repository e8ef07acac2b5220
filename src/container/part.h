// A part of a channel, such as banner.bin: content that may be packed as an LZ77 stream, behind an
// IMD5 header that may be missing.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"
#include "container/lz77.h"

namespace bannersmith {

/// How the bytes of a part are made up. It points into them.
struct Part {
    std::string_view header;   ///< IMD5, 32 bytes, or empty
    std::string_view payload;  ///< the content as it is stored
    std::string_view tail;     ///< what lies behind the payload that the header tells of
    std::optional<Lz77Form> packed;

    /// Whether the checksum of the header is that of the payload; true without a header.
    bool Checksum_Holds() const;

    /// Bytes of the content, for a packed one as it says itself.
    std::size_t Content_Size() const;

    /// The same where it is certain: an archive, a sound, or a stream that unpacks to so many bytes
    /// or says the same as `said`.
    std::optional<std::size_t> Certain_Size(std::size_t said) const;
};

/// Whether `bytes` begin as a part does that can be told from anything else: with an IMD5 header or
/// as an LZ77 stream.
bool Begins_As_Part(std::string_view bytes);

/// The make-up of a part. Fails, with a reason and without a subject, where its header is cut off
/// or tells of more bytes than there are.
Result<Part> Read_Part(std::string_view bytes);

/// What a part holds, and the bytes behind its stream.
struct PartContent {
    std::string bytes;
    std::string rest;
};

/// Unpacks a part. Fails as `Lz77_Decompress` does.
Result<PartContent> Unpack(const Part& part);

/// Whether the bytes behind a part's stream, or behind its payload, are more than a filling.
bool Has_Bytes_Behind(const Part& part, const PartContent& content);

/// The bytes of a part like `part`, which holds `old`, with `content` in its place: packed in the
/// same form, as far as it is the same in the same way, with the bytes that stood behind its stream
/// (zeros that filled it up to a multiple of four do so again), its header with new length and
/// checksum.
std::string Pack(const Part& part, std::string_view content, const PartContent& old);

}  // namespace bannersmith
