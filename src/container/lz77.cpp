#include "container/lz77.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace bannersmith {

namespace {

using namespace std::string_view_literals;

constexpr auto Tag = "LZ77"sv;
constexpr auto FirstOfU8 = "\x55\xAA\x38\x2D"sv;
constexpr std::size_t Window = 4096, ShortestCopy = 3, LongestShort = 18;
constexpr std::size_t LongestTwo = 16, LongestThree = 0x110, LongestFour = 0x10110;

unsigned Byte(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

/// Behind the tag: the size, and where the groups begin.
struct Header {
    std::size_t size = 0, end = 0;
};

std::optional<Header> Read_Header(std::string_view stream) {
    std::size_t at = stream.starts_with(Tag) ? Tag.size() : 0;
    if (stream.size() < at + 4) return std::nullopt;
    std::size_t size =
        Byte(stream, at + 1) | Byte(stream, at + 2) << 8 | Byte(stream, at + 3) << 16;
    at += 4;
    if (size != 0 || stream.size() < at + 4) return Header{size, at};
    for (std::size_t i = 4; i-- > 0;) size = size << 8 | Byte(stream, at + i);
    return Header{size, at + 4};
}

struct Copy {
    std::size_t length = 0, distance = 0, stored = 0;  ///< `stored`: bytes that say so
};

/// How many bytes a copy whose first byte is `first` takes.
std::size_t Stored_Size(Lz77Form::Type type, unsigned first) {
    if (type == Lz77Form::short_copies || first >> 4 > 1) return 2;
    return first >> 4 == 0 ? 3 : 4;
}

/// A copy, all of whose bytes are there.
Copy Read_Copy(Lz77Form::Type type, std::string_view bytes) {
    const unsigned first = Byte(bytes, 0), high = first >> 4, low = first & 15;
    const std::size_t stored = Stored_Size(type, first);
    const std::size_t distance =
        ((Byte(bytes, stored - 2) & 15U) << 8 | Byte(bytes, stored - 1)) + 1;
    if (type == Lz77Form::short_copies) return {high + ShortestCopy, distance, stored};
    if (stored == 2) return {high + 1, distance, stored};
    if (stored == 3) return {(low << 4 | Byte(bytes, 1) >> 4) + LongestTwo + 1, distance, stored};
    const std::size_t length = low << 12 | Byte(bytes, 1) << 4 | Byte(bytes, 2) >> 4;
    return {length + LongestThree + 1, distance, stored};
}

Failure Broken(const char* reason) {
    return {u"", std::string("LZ77 stream ") + reason};
}

/// A copy, or with the distance 0 a literal byte.
struct Token {
    std::size_t length = 1, distance = 0;
    char literal = 0;
};

/// Goes through the tokens of a stream, as far as the size that it says.
class TokenReader {
 public:
    /// `place`: where the groups begin, which stand for `size` bytes.
    TokenReader(Lz77Form::Type type, std::string_view stream, std::size_t place, std::size_t size)
        : type_(type), stream_(stream), size_(size), place_(place) {}

    /// Goes on to the next token. False where there is none: at the end, and where the stream is
    /// broken.
    bool Next() {
        token_.length = 0;
        if (end_ >= size_ || fault_ != nullptr) return false;
        fault_ = Read();
        if (fault_ != nullptr) token_.length = 0;
        end_ += token_.length;
        return fault_ == nullptr;
    }

    /// The token, and where in the bytes what it stands for begins and ends; behind the last one an
    /// empty token at the end.
    const Token& Now() const { return token_; }
    std::size_t At() const { return end_ - token_.length; }
    std::size_t End() const { return end_; }

    /// Where the stream goes on behind the token.
    std::size_t Place() const { return place_; }
    /// What the stream is broken by; null for a sound one.
    const char* Fault() const { return fault_; }

 private:
    const char* Read() {
        if (bit_ == 0) {
            if (place_ == stream_.size()) return "ends too early";
            flags_ = Byte(stream_, place_++);
            bit_ = 0x80;
        }
        const bool is_copy = (flags_ & bit_) != 0;
        bit_ >>= 1;
        const std::size_t left = stream_.size() - place_;
        if (left == 0) return "ends too early";
        if (!is_copy) {
            token_ = {1, 0, stream_[place_++]};
            return nullptr;
        }
        if (left < Stored_Size(type_, Byte(stream_, place_))) return "ends too early";
        const Copy copy = Read_Copy(type_, stream_.substr(place_));
        if (copy.distance > end_) return "copies from before its start";
        if (copy.length > size_ - end_) return "holds more than it says";
        token_ = {copy.length, copy.distance, 0};
        place_ += copy.stored;
        return nullptr;
    }

    Lz77Form::Type type_;
    std::string_view stream_;
    std::size_t size_, place_, end_ = 0;
    unsigned flags_ = 0, bit_ = 0;
    Token token_;
    const char* fault_ = nullptr;
};

/// Appends what the token stands for.
void Append(std::string& bytes, const Token& token) {
    const std::size_t from = bytes.size() - token.distance;
    if (token.distance == 0) {
        bytes += token.literal;
    } else if (token.distance >= token.length) {
        bytes.append(bytes, from, token.length);
    } else {
        for (std::size_t i = 0; i < token.length; ++i) bytes += bytes[from + i];
    }
}

/// How far two texts are the same from their start, and from where on to their end, as a place in
/// the first; the stretches do not overlap.
struct SameEnds {
    std::size_t front = 0, back = 0;

    SameEnds(std::string_view a, std::string_view b) {
        const std::size_t most = std::min(a.size(), b.size());
        const auto same = [&](std::size_t size) {
            return a.substr(front, size) == b.substr(front, size);
        };
        while (front + Stride <= most && same(Stride)) front += Stride;
        while (front < most && same(1)) ++front;
        std::size_t length = 0;
        const auto same_at_end = [&](std::size_t size) {
            return length + size <= most - front && a.substr(a.size() - length - size, size) ==
                                                        b.substr(b.size() - length - size, size);
        };
        while (same_at_end(Stride)) length += Stride;
        while (same_at_end(1)) ++length;
        back = a.size() - length;
    }

 private:
    static constexpr std::size_t Stride = 256;  // bytes that are compared at once
};

/// Collects tokens into groups.
class GroupWriter {
 public:
    GroupWriter(std::string& stream, Lz77Form::Type type) : stream_(stream), type_(type) {}

    void Write(const Token& token) {
        if (token.distance == 0) {
            group_[size_++] = token.literal;
        } else {
            flags_ |= bit_;
            Put_Copy(token.length, token.distance - 1);
        }
        bit_ >>= 1;
        if (bit_ == 0) End_Group();
    }

    /// Writes the group that is not full yet.
    void End_Group() {
        if (size_ == 1) return;
        group_[0] = static_cast<char>(flags_);
        stream_.append(group_.data(), size_);
        flags_ = 0;
        bit_ = 0x80;
        size_ = 1;
    }

 private:
    void Put_Copy(std::size_t length, std::size_t back) {
        if (type_ == Lz77Form::short_copies) {
            Put(((length - ShortestCopy) << 12) | back, 2);
        } else if (length <= LongestTwo) {
            Put((length - 1) << 12 | back, 2);
        } else if (length <= LongestThree) {
            Put((length - LongestTwo - 1) << 12 | back, 3);
        } else {
            Put(std::size_t{1} << 28 | (length - LongestThree - 1) << 12 | back, 4);
        }
    }

    void Put(std::size_t number, unsigned count) {
        while (count-- > 0) group_[size_++] = static_cast<char>(number >> 8 * count);
    }

    std::string& stream_;
    Lz77Form::Type type_;
    std::array<char, 1 + 8 * 4> group_{};  ///< the flags, and eight tokens of four bytes at most
    std::size_t size_ = 1;
    unsigned flags_ = 0, bit_ = 0x80;
};

struct Match {
    std::size_t length = 0, distance = 0;
};

/// Finds the longest match among the places of the window that begin with the same three bytes, the
/// nearest first, a bounded number of them, so that the time is linear in the bytes.
class MatchFinder {
 public:
    /// Of a match that is as long no better one is looked for.
    static constexpr std::size_t GoodEnough = 0x110;

    /// `first`: the first place that matches are looked for.
    MatchFinder(std::string_view bytes, std::size_t longest, std::size_t first)
        : bytes_(bytes),
          longest_(longest),
          entered_(first - std::min(first, Window)),
          newest_(std::size_t{1} << HashBits, Nowhere) {
        older_.fill(Nowhere);
    }

    /// The best match for the bytes at `at`, which never becomes smaller; none where fewer than
    /// three bytes match.
    Match Find(std::size_t at) {
        Enter_Up_To(at);
        Match best;
        const std::size_t room = std::min(longest_, bytes_.size() - at);
        if (room < ShortestCopy) return best;
        std::uint32_t place = newest_[Hash(at)];
        for (unsigned tries = 0; tries < MostTries && place != Nowhere && at - place <= Window;
             ++tries, place = older_[place % Window]) {
            const std::size_t length = Common(place, at, room, best.length);
            if (length > best.length) best = {length, at - place};
            if (length >= std::min(room, GoodEnough)) break;
        }
        return best.length < ShortestCopy ? Match() : best;
    }

 private:
    /// Places are kept in 32 bits, so that the tables stay in the processor's nearest memory.
    static constexpr std::uint32_t Nowhere = ~std::uint32_t{0};
    static constexpr unsigned HashBits = 13, MostTries = 256;

    std::size_t Hash(std::size_t at) const {
        const std::uint32_t three =
            Byte(bytes_, at) << 16 | Byte(bytes_, at + 1) << 8 | Byte(bytes_, at + 2);
        return three * 0x9E3779B1U >> (32 - HashBits);
    }

    /// Makes the places in front of `at` known.
    void Enter_Up_To(std::size_t at) {
        for (; entered_ < at && entered_ + ShortestCopy <= bytes_.size(); ++entered_) {
            std::uint32_t& newest = newest_[Hash(entered_)];
            older_[entered_ % Window] = newest;
            newest = static_cast<std::uint32_t>(entered_);
        }
    }

    /// How many bytes at `place` and `at` are the same, up to `room`; 0 where there are not more
    /// than `known`.
    std::size_t Common(std::size_t place, std::size_t at, std::size_t room,
                       std::size_t known) const {
        if (known < room && bytes_[place + known] != bytes_[at + known]) return 0;
        std::size_t length = 0;
        while (length < room && bytes_[place + length] == bytes_[at + length]) ++length;
        return length;
    }

    std::string_view bytes_;
    std::size_t longest_, entered_ = 0;
    std::vector<std::uint32_t> newest_;          ///< by hash
    std::array<std::uint32_t, Window> older_{};  ///< by place: the one before with the same hash
};

void Append_Header(std::string& stream, std::size_t size, Lz77Form form) {
    if (form.tagged) stream += Tag;
    const bool fits = size != 0 && size < std::size_t{1} << 24;
    stream += static_cast<char>(form.type);
    for (unsigned i = 0; i < 3; ++i) stream += static_cast<char>(fits ? size >> 8 * i : 0);
    for (unsigned i = 0; !fits && i < 4; ++i) stream += static_cast<char>(size >> 8 * i);
}

}  // namespace

std::optional<Lz77Form> Lz77_Form_Of(std::string_view bytes) {
    const bool tagged = bytes.starts_with(Tag);
    const std::string_view header = bytes.substr(tagged ? Tag.size() : 0);
    if (header.size() < 4) return std::nullopt;
    const auto type = static_cast<Lz77Form::Type>(header[0]);
    if (type != Lz77Form::short_copies && type != Lz77Form::long_copies) return std::nullopt;
    const bool holds_u8 = header.size() >= 9 && (Byte(header, 4) & 0xF0U) == 0 &&
                          header.substr(5).starts_with(FirstOfU8);
    if (!tagged && !holds_u8) return std::nullopt;
    return Lz77Form{tagged, type};
}

std::optional<std::size_t> Lz77_Declared_Size(std::string_view stream) {
    const auto header = Read_Header(stream);
    if (!header) return std::nullopt;
    return header->size;
}

Result<Lz77Contents> Lz77_Decompress(std::string_view bytes) {
    const auto form = Lz77_Form_Of(bytes);
    const auto header = Read_Header(bytes);
    if (!form) return Broken("is of an unknown kind");
    if (!header) return Broken("ends too early");
    if (header->size > MostLz77Size) return Broken("says that it holds more than 32 MiB");
    Lz77Contents contents;
    constexpr std::size_t MostPerByte = 9;  // of short copies
    contents.bytes.reserve(std::min(header->size, MostPerByte * bytes.size()));
    TokenReader tokens(form->type, bytes, header->end, header->size);
    while (tokens.Next()) Append(contents.bytes, tokens.Now());
    if (tokens.Fault() != nullptr) return Broken(tokens.Fault());
    contents.stream_size = tokens.Place();
    return contents;
}

std::string Lz77_Compress(std::string_view bytes, Lz77Form form, const Lz77Source& old) {
    std::string stream;
    stream.reserve(old.stream.size());
    Append_Header(stream, bytes.size(), form);
    GroupWriter writer(stream, form.type);
    const SameEnds same(bytes, old.bytes);
    const Header old_header = Read_Header(old.stream).value_or(Header());
    TokenReader tokens(form.type, old.stream, old_header.end, old_header.size);
    bool left = tokens.Next();
    for (; left && tokens.End() <= same.front; left = tokens.Next()) writer.Write(tokens.Now());
    std::size_t at = tokens.At();
    MatchFinder finder(bytes, form.type == Lz77Form::short_copies ? LongestShort : LongestFour, at);
    const auto rejoins = [&](std::size_t place) {
        if (place < same.back + Window) return false;  // copies may come from what has changed
        const std::size_t old_place = place + old.bytes.size() - bytes.size();
        while (left && tokens.At() < old_place) left = tokens.Next();
        return left && tokens.At() == old_place;
    };
    for (Match match = finder.Find(at); at < bytes.size();) {
        if (rejoins(at)) break;
        const Match next = match.length < MatchFinder::GoodEnough ? finder.Find(at + 1) : Match();
        if (match.length == 0 || next.length > match.length) {
            writer.Write({1, 0, bytes[at++]});
            match = next;
        } else {
            writer.Write({match.length, match.distance, {}});
            at += match.length;
            match = finder.Find(at);
        }
    }
    for (; at < bytes.size(); at += tokens.Now().length, tokens.Next()) {
        writer.Write(tokens.Now());
    }
    writer.End_Group();
    return stream;
}

}  // namespace bannersmith
