// The options of the strict command, which are the columns of a recipe as well.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "banner/edit.h"
#include "base/result.h"

namespace bannersmith {

/// The picture of the game is written into a PNG file, as it is when everything else is done.
struct ExportPicture {
    std::u16string file;
};

/// What an option asks for.
using Wanted = std::variant<Edit, ExportPicture>;

/// One option with its value.
struct Wish {
    std::string option;  ///< as people know it: "--title-ger"
    Wanted what;
};

/// Whether an option or column, without hyphens, can be meant: "title-ger", "text:BOX".
bool Is_Option(std::string_view name);

/// The wish of an option or column without hyphens, "title-ger" or "text:BOX". Line breaks of the
/// value become "^". A scheme file is read here, so that one that is wrong stops everything before
/// it begins; a logo or picture is read for each banner. Fails, with the option as the subject, for
/// names and values that cannot be.
Result<Wish> Read_Wish(std::string_view name, std::u16string_view value,
                       const std::u16string& program_folder);

}  // namespace bannersmith
