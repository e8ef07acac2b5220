// The split of a layout at every "txt1" that each text-box lookup works on.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace bannersmith {

/// Where the four bytes "txt1" stand in one layout. Made by one pass over the data, valid for these
/// bytes alone, and kept right by `Replace`, the only change that may be made to the data while the
/// object is in use. It serves routines that look up many boxes of the same data.
class Pieces {
 public:
    enum class Test {
        exact,              ///< the name and two zero bytes
        prefix,             ///< the name alone
        prefix_not_korean,  ///< the same, but no name that ends in "_KOR"
    };

    /// Splits `data`, which is not kept: each call is handed the same bytes again.
    explicit Pieces(std::string_view data);

    /// What stands behind each tag, up to the next one or the end of the data, in order.
    std::vector<std::string_view> Behind_Tags(std::string_view data) const;

    /// The offset of the record that a lookup of `name` takes. The last piece that passes the test
    /// tells the section size and the four bytes after it; the first place in the data with the
    /// tag, those eight bytes and the name is the record. The piece in front of the first "txt1" is
    /// tested like the others, so nothing may be found although a piece passed.
    std::optional<std::size_t> Find_Record(std::string_view data, std::string_view name,
                                           Test test) const;

    /// What `Find_Record` returns for each of `names`, in time that grows with the data and the
    /// names, not with their product.
    std::vector<std::optional<std::size_t>> Find_Records(std::string_view data,
                                                         std::span<const std::string_view> names,
                                                         Test test) const;

    /// Puts `fresh` in place of every occurrence of `old` in `data`, from left to right and without
    /// overlap. Both begin with "txt1" and `fresh` ends in a zero byte.
    void Replace(std::string& data, std::string_view old, std::string_view fresh);

 private:
    std::string_view Piece(std::string_view data, std::size_t index) const;
    std::vector<std::size_t> Occurrences(std::string_view data, std::string_view record) const;
    void Follow_Replacement(const std::vector<std::size_t>& places, std::size_t old_size,
                            std::string_view fresh);

    std::vector<std::size_t> tags_;
};

}  // namespace bannersmith
