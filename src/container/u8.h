// U8 archives: a table of nodes, their names, then the members' bytes.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"

namespace bannersmith {

/// A file of an archive, and where its bytes lie in it.
struct U8Member {
    std::string path;  ///< from the root, separated by "/", in the archive's own bytes
    std::size_t offset = 0, size = 0;
    std::size_t node = 0;  ///< where its node lies in the archive
};

/// The bytes that files get, by their indices in the list of members.
using NewMembers = std::map<std::size_t, std::string>;

/// Whether `bytes` begin as an archive does.
bool Begins_As_U8(std::string_view bytes);

/// The files of an archive, in the order of their nodes. Fails, with a reason and without a
/// subject, for everything that could lead a reader astray: nodes, names and bytes outside the
/// archive or in each other, folders that are not inside each other, names that are empty, twice
/// there or lead out of their folder, and more of anything than an archive of a console has.
Result<std::vector<U8Member>> Read_U8(std::string_view bytes);

/// What is unlike the archives of the console's own tools without being in anybody's way: a wrong
/// place of the first byte in the header, members out of order or between two multiples of 32, and
/// bytes other than zero where nothing is. Each without the archive's name.
std::vector<std::string> Odd_In_U8(std::string_view bytes, const std::vector<U8Member>& members);

/// Behind `before` the archive `bytes`, of which `members` are the files, with other bytes for some
/// of them. The files that follow a changed one move; each begins where the old one did from the
/// next multiple of the archive's alignment, 32 or less, behind the one before. Nothing else
/// changes.
std::string Replace_U8_Members(std::string before, std::string_view bytes,
                               const std::vector<U8Member>& members, const NewMembers& changed);

}  // namespace bannersmith
