#include "layout/pieces.h"

#include <algorithm>
#include <cstring>

#include "layout/record.h"

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

}  // namespace

Pieces::Pieces(std::string_view data) : tags_(Find_Tags(data)) {}

std::vector<std::string_view> Pieces::Behind_Tags(std::string_view data) const {
    std::vector<std::string_view> pieces;
    for (std::size_t k = 0; k < tags_.size(); ++k) {
        const std::size_t end = k + 1 < tags_.size() ? tags_[k + 1] : data.size();
        const std::size_t start = tags_[k] + record::Tag.size();
        pieces.push_back(data.substr(start, end - start));
    }
    return pieces;
}

std::optional<std::size_t> Pieces::Find_Record(std::string_view data, std::string_view name,
                                               Test test) const {
    std::string wanted(name);
    if (test == Test::exact) wanted.append(2, '\0');

    std::size_t end = data.size();
    for (std::size_t k = tags_.size() + 1; k-- > 0;) {
        const std::size_t start = k == 0 ? 0 : tags_[k - 1] + record::Tag.size();
        const std::string_view piece = data.substr(start, end - start);
        if (Passes(piece, wanted)) {
            const std::string_view key = piece.substr(0, NameInPiece + name.size());
            const auto tag = std::find_if(tags_.begin(), tags_.end(), [&](std::size_t at) {
                return data.substr(at + record::Tag.size()).starts_with(key);
            });
            return tag == tags_.end() ? std::nullopt : std::optional(*tag);
        }
        end = k == 0 ? 0 : tags_[k - 1];
    }
    return std::nullopt;
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
    std::vector<std::size_t> places;
    for (const std::size_t tag : tags_) {
        const bool free = places.empty() || tag >= places.back() + record.size();
        if (free && data.substr(tag).starts_with(record)) places.push_back(tag);
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
