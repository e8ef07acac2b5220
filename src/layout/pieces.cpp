#include "layout/pieces.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <unordered_map>

#include "layout/record.h"

namespace bannersmith {

namespace {

/// Offset of the name counted from the start of a piece, which begins behind the tag.
constexpr std::size_t NameInPiece = record::Name - record::Tag.size();

std::vector<std::size_t> Find_Tags(std::string_view data) {
    std::vector<std::size_t> tags;
    for (std::size_t at = data.find(record::Tag); at != data.npos;
         at = data.find(record::Tag, at + record::Tag.size())) {
        tags.push_back(at);
    }
    return tags;
}

bool Passes(std::string_view piece, std::string_view wanted) {
    if (wanted.empty()) return true;
    return piece.size() >= NameInPiece + wanted.size() &&
           std::memcmp(piece.data() + NameInPiece, wanted.data(), wanted.size()) == 0;
}

/// Texts that are looked for all at once, each by a number; equal texts share one.
class Wanted {
 public:
    /// The text's number, counted from 0. It must outlive the object.
    std::size_t Add(std::string_view text) {
        const auto [place, added] = by_length_[text.size()].try_emplace(text, count_);
        if (added) ++count_;
        return place->second;
    }

    bool Is_Empty() const { return by_length_.empty(); }

    /// Takes the texts with which `data` begins out, and calls `found` with the number of each.
    template <typename Found>
    void Take_Beginnings(std::string_view data, Found found) {
        for (auto same = by_length_.begin(); same != by_length_.end();) {
            auto& [length, texts] = *same;
            if (length > data.size()) return;
            const auto text = texts.find(data.substr(0, length));
            if (text != texts.end()) {
                found(text->second);
                texts.erase(text);
            }
            same = texts.empty() ? by_length_.erase(same) : std::next(same);
        }
    }

 private:
    std::map<std::size_t, std::unordered_map<std::string_view, std::size_t>> by_length_;
    std::size_t count_ = 0;
};

/// Tells for one tag of a text after the other how many bytes of `record` stand there. Looks at no
/// byte of the text twice, as a record may repeat itself over and over.
class Matcher {
 public:
    /// `repeats`: for each tag of `record` how many bytes of the record stand there again; may be
    /// filled while the record itself is the text.
    Matcher(std::string_view text, std::string_view record, const std::vector<std::size_t>& repeats)
        : text_(text), record_(record), repeats_(repeats) {}

    /// For tag number `n` of the text, which is at `tag`. To be called in the tags' order.
    std::size_t At(std::size_t n, std::size_t tag) {
        std::size_t known = 0;
        if (tag + record::Tag.size() <= reach_) {  // it is a tag of the record as well
            known = std::min(repeats_[n - first_], reach_ - tag);
            if (known < reach_ - tag) return known;
        }
        const std::string_view there = text_.substr(tag + known);
        const std::string_view wanted = record_.substr(known, there.size());
        const auto end = std::mismatch(wanted.begin(), wanted.end(), there.begin()).first;
        const std::size_t length = known + static_cast<std::size_t>(end - wanted.begin());
        if (tag + length > reach_) {
            first_ = n;
            reach_ = tag + length;
        }
        return length;
    }

 private:
    std::string_view text_, record_;
    const std::vector<std::size_t>& repeats_;
    std::size_t first_ = 0, reach_ = 0;  // the tag from which most of the text is known, its end
};

std::vector<std::size_t> Repeats(std::string_view record) {
    const std::vector<std::size_t> tags = Find_Tags(record);
    std::vector<std::size_t> repeats = {record.size()};
    repeats.reserve(tags.size());
    Matcher matcher(record, record, repeats);
    for (std::size_t n = 1; n < tags.size(); ++n) repeats.push_back(matcher.At(n, tags[n]));
    return repeats;
}

/// Moves what lies between the places together and puts `fresh`, no longer than the old stretch,
/// into each of them.
void Splice_Shorter(std::string& data, const std::vector<std::size_t>& places, std::size_t old_size,
                    std::string_view fresh) {
    char* out = data.data() + places.front();
    for (std::size_t i = 0; i < places.size(); ++i) {
        const char* rest = data.data() + places[i] + old_size;
        const char* rest_end = data.data() + (i + 1 < places.size() ? places[i + 1] : data.size());
        out = std::copy(fresh.begin(), fresh.end(), out);
        if (out != rest) std::memmove(out, rest, static_cast<std::size_t>(rest_end - rest));
        out += rest_end - rest;
    }
    data.resize(static_cast<std::size_t>(out - data.data()));
}

/// The same for a longer `fresh`, from the last place to the first, so that nothing is overwritten
/// before it has moved.
void Splice_Longer(std::string& data, const std::vector<std::size_t>& places, std::size_t old_size,
                   std::string_view fresh) {
    std::size_t rest_end = data.size();
    data.resize(data.size() + places.size() * (fresh.size() - old_size));
    char* out = data.data() + data.size();
    for (std::size_t i = places.size(); i-- > 0;) {
        const std::size_t rest = places[i] + old_size;
        out -= rest_end - rest;
        std::memmove(out, data.data() + rest, rest_end - rest);
        out -= fresh.size();
        std::copy(fresh.begin(), fresh.end(), out);
        rest_end = places[i];
    }
}

/// Whether what stands behind a tag has such a name, of 16 bytes at most.
bool Names_A_Korean_Box(std::string_view piece) {
    constexpr std::size_t LongestName = 16;
    std::string_view name = piece.substr(std::min(NameInPiece, piece.size()), LongestName);
    name = name.substr(0, name.find('\0'));
    return name.ends_with("_KOR");
}

}  // namespace

Pieces::Pieces(std::string_view data) : tags_(Find_Tags(data)) {}

std::vector<std::string_view> Pieces::Behind_Tags(std::string_view data) const {
    std::vector<std::string_view> pieces;
    pieces.reserve(tags_.size());
    for (std::size_t k = 1; k <= tags_.size(); ++k) pieces.push_back(Piece(data, k));
    return pieces;
}

/// Piece 0 stands in front of the first tag.
std::string_view Pieces::Piece(std::string_view data, std::size_t index) const {
    const std::size_t start = index == 0 ? 0 : tags_[index - 1] + record::Tag.size();
    const std::size_t end = index < tags_.size() ? tags_[index] : data.size();
    return data.substr(start, end - start);
}

std::optional<std::size_t> Pieces::Find_Record(std::string_view data, std::string_view name,
                                               Test test) const {
    std::string wanted(name);
    if (test == Test::exact) wanted.append(2, '\0');
    const auto is_left_out = [&](std::string_view piece) {
        return test == Test::prefix_not_korean && Names_A_Korean_Box(piece);
    };

    for (std::size_t k = tags_.size() + 1; k-- > 0;) {
        const std::string_view piece = Piece(data, k);
        if (!Passes(piece, wanted) || is_left_out(piece)) continue;
        const std::string_view key = piece.substr(0, NameInPiece + name.size());
        const auto tag = std::find_if(tags_.begin(), tags_.end(), [&](std::size_t at) {
            const std::string_view rest = data.substr(at + record::Tag.size());
            return rest.starts_with(key) && !is_left_out(rest);
        });
        return tag == tags_.end() ? std::nullopt : std::optional(*tag);
    }
    return std::nullopt;
}

std::vector<std::optional<std::size_t>> Pieces::Find_Records(
    std::string_view data, std::span<const std::string_view> names, Test test) const {
    std::vector<std::string> texts(names.begin(), names.end());
    std::vector<std::size_t> numbers(names.size());
    Wanted wanted;
    for (std::size_t i = 0; i < names.size(); ++i) {
        numbers[i] = wanted.Add(texts[i].append(test == Test::exact ? 2 : 0, '\0'));
    }

    std::vector<std::optional<std::string_view>> taken(names.size());
    for (std::size_t k = tags_.size() + 1; k-- > 0 && !wanted.Is_Empty();) {
        const std::string_view piece = Piece(data, k);
        const std::string_view name = piece.substr(std::min(NameInPiece, piece.size()));
        wanted.Take_Beginnings(name, [&](std::size_t number) { taken[number] = piece; });
    }

    Wanted keys;
    std::vector<std::optional<std::size_t>> key_numbers(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto& piece = taken[numbers[i]];
        if (piece) key_numbers[i] = keys.Add(piece->substr(0, NameInPiece + names[i].size()));
    }
    std::vector<std::optional<std::size_t>> found(names.size());
    for (const std::size_t tag : tags_) {
        if (keys.Is_Empty()) break;
        keys.Take_Beginnings(data.substr(tag + record::Tag.size()),
                             [&](std::size_t number) { found[number] = tag; });
    }
    std::vector<std::optional<std::size_t>> records(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (key_numbers[i]) records[i] = found[*key_numbers[i]];
    }
    return records;
}

void Pieces::Replace(std::string& data, std::string_view old, std::string_view fresh) {
    const std::vector<std::size_t> places = Occurrences(data, old);
    if (fresh.size() <= old.size()) {
        Splice_Shorter(data, places, old.size(), fresh);
    } else {
        Splice_Longer(data, places, old.size(), fresh);
    }
    Follow_Replacement(places, old.size(), fresh);
}

std::vector<std::size_t> Pieces::Occurrences(std::string_view data, std::string_view record) const {
    const std::vector<std::size_t> repeats = Repeats(record);
    Matcher matcher(data, record, repeats);
    std::vector<std::size_t> places;
    for (std::size_t n = 0; n < tags_.size(); ++n) {
        const bool free = places.empty() || tags_[n] >= places.back() + record.size();
        const bool there = matcher.At(n, tags_[n]) == record.size();
        if (free && there) places.push_back(tags_[n]);
    }
    return places;
}

/// Moves the tags along. A tag can neither cross the start of a record, which is itself a tag, nor
/// the end of a fresh one, which is a zero byte, so only the fresh record itself has to be
/// searched.
void Pieces::Follow_Replacement(const std::vector<std::size_t>& places, std::size_t old_size,
                                std::string_view fresh) {
    const std::vector<std::size_t> inside = Find_Tags(fresh);
    std::vector<std::size_t> moved;
    moved.reserve(tags_.size() + places.size() * inside.size());
    std::size_t next = 0;
    for (const std::size_t tag : tags_) {
        // Modular arithmetic: a shorter record moves what follows to the front.
        const std::size_t shift = next * (fresh.size() - old_size);
        if (next > 0 && tag < places[next - 1] + old_size) continue;
        if (next < places.size() && tag == places[next]) {
            for (const std::size_t at : inside) moved.push_back(tag + shift + at);
            ++next;
        } else {
            moved.push_back(tag + shift);
        }
    }
    tags_ = std::move(moved);
}

}  // namespace bannersmith
