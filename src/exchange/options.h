// The options of the strict command, which are the columns of a recipe as well.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "banner/edit.h"
#include "base/result.h"

namespace bannersmith {

/// What stands behind the name of an option to say which text, line or colour is meant.
enum class OptionKey {
    none,
    language,       ///< "--title-ger"; without it every language
    each_language,  ///< the same, never without it
    box,            ///< "--text BOX=TEXT", as a column also "text:BOX"
    element,        ///< "--color ELEMENT=RRGGBB,RRGGBB", as a column also "color:ELEMENT"
};

/// One option.
struct OptionInfo {
    std::string_view name;  ///< without hyphens and key
    OptionKey key;
    std::string_view value;  ///< how the help calls what stands behind it
    std::string_view help;   ///< one line or two
};

/// All options that say what a banner becomes, in the order of the help.
std::span<const OptionInfo> Edit_Options();

/// The languages of the options, as they are typed.
std::span<const std::string_view> Option_Languages();

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

/// The wish of an option or column without hyphens, "title-ger" or "text:BOX". Line breaks of the
/// value become "^". A scheme file is read here, so that one that is wrong stops everything before
/// it begins; a logo or picture is read for each banner. Fails, with the option as the subject, for
/// names and values that cannot be.
Result<Wish> Read_Wish(std::string_view name, std::u16string_view value,
                       const std::u16string& program_folder);

}  // namespace bannersmith
