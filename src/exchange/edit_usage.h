// The options of the strict command as they are typed and told of.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

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

/// All options that say what a banner becomes, which are the columns of a recipe as well, in the
/// order of the help.
std::span<const OptionInfo> Edit_Options();

/// All options that say how the work is done, none of them with a key. The value is empty for one
/// without.
std::span<const OptionInfo> Run_Options();

/// The languages of the options, as they are typed.
std::span<const std::string_view> Option_Languages();

/// An option as it can be typed, without hyphens, and its value as the help calls it.
struct TypedOption {
    std::string name;
    std::string_view value;
};

/// All of them, those of each language among them.
std::vector<TypedOption> Typed_Options();

/// What `--help` prints, made from the options.
std::string Edit_Usage();

/// The completion script of a shell: "bash", "zsh" or "fish". Empty for any other.
std::string Completion_Script(std::string_view shell);

}  // namespace bannersmith
