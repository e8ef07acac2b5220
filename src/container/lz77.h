// LZ77 streams as the console's loader reads them: a header, then groups of a flag byte and eight
// tokens, a literal byte or a copy out of the last 4096 bytes each.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"

namespace bannersmith {

/// How a stream is written: with the letters "LZ77" in front or without, and in which of the two
/// ways copies are stored. The size behind the type byte is little-endian.
struct Lz77Form {
    enum Type : unsigned char { short_copies = 0x10, long_copies = 0x11 };
    bool tagged = true;
    Type type = short_copies;
};

/// What a stream holds, and how many bytes of it that took; what lies behind is not read.
struct Lz77Contents {
    std::string bytes;
    std::size_t stream_size = 0;
};

/// The form of the stream that `bytes` begins with. Without the letters in front of it a stream is
/// told by its first bytes being those of a U8 archive.
std::optional<Lz77Form> Lz77_Form_Of(std::string_view bytes);

/// The number of bytes that a stream says it holds, for one that has a form. Nothing where it ends
/// before it says so.
std::optional<std::size_t> Lz77_Declared_Size(std::string_view stream);

/// What the stream at the beginning of `bytes` holds. Memory is taken only for what is really
/// there. Fails where the stream ends too early, copies from before its start, runs over the size
/// that it says, or says one above `MostLz77Size`; the failure has no subject.
Result<Lz77Contents> Lz77_Decompress(std::string_view bytes);

/// Bytes that a stream may hold. The console's own limit is far below.
inline constexpr std::size_t MostLz77Size = std::size_t{32} << 20;

/// A stream, and the bytes that it was found to hold.
struct Lz77Source {
    std::string_view stream, bytes;
};

/// A stream of this form that holds `bytes`, at most `MostLz77Size` of them: matches are looked for
/// among a bounded number of places, and a longer one at the next byte is preferred. Where `bytes`
/// begin and end as those of `old`, a stream of the same form, do, its tokens are taken over.
std::string Lz77_Compress(std::string_view bytes, Lz77Form form, const Lz77Source& old = {});

}  // namespace bannersmith
