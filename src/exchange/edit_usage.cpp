#include "exchange/edit_usage.h"

#include <array>

namespace bannersmith {

namespace {

constexpr std::array<std::string_view, 10> Codes = {"eng", "ger", "fra", "ita", "spa",
                                                    "ned", "jpn", "kor", "chs", "cht"};

constexpr OptionInfo EditOptions[] = {
    {"title", OptionKey::language, "TEXT", "the game's name; ^ is a line break"},
    {"year", OptionKey::language, "N", "the release year, four digits"},
    {"players", OptionKey::language, "N", "the highest number of players, 1 to 99"},
    {"rating", OptionKey::language, "TEXT", "the rating"},
    {"system", OptionKey::none, "TEXT", "the console's name"},
    {"text", OptionKey::box, "TEXT", "the raw text of the box of exactly that name"},
    {"colors", OptionKey::none, "SCHEME", "a scheme of the folder schemes, or a .vccs file"},
    {"color", OptionKey::element, "RRGGBB,RRGGBB", "the two colors of an element, as Back0"},
    {"logo", OptionKey::none, "FILE", "a file of the folder logos, or a texture or picture"},
    {"picture", OptionKey::none, "FILE", "the picture of the game, in banner and icon"},
    {"force", OptionKey::none, "LANG", "let another language's items answer to this one"},
    {"pad", OptionKey::none, "N", "pad to N bytes, +N adds N; without it as it was"},
    {"name", OptionKey::language, "TEXT", "the channel's name in the console's menu"},
    {"subtitle", OptionKey::each_language, "TEXT", "the second line of that name"},
    {"export-picture", OptionKey::none, "FILE", "write the picture of the game as PNG"},
};

constexpr OptionInfo RunOptions[] = {
    {"recipe", OptionKey::none, "FILE", "a banner a row, CSV or JSON; columns are options"},
    {"export-recipe", OptionKey::none, "FORMAT",
     "csv or json: print what the banners hold as a recipe"},
    {"output", OptionKey::none, "FILE", "write a copy of the one banner"},
    {"output-folder", OptionKey::none, "FOLDER", "write copies below a folder"},
    {"backup", OptionKey::none, "SUFFIX", "keep each old file under its name with the suffix"},
    {"dry-run", OptionKey::none, "", "write nothing, only tell"},
    {"diff", OptionKey::none, "", "show what changes, old and new"},
    {"json", OptionKey::none, "", "report as JSON"},
    {"jobs", OptionKey::none, "N", "work with N threads, 8 unless given"},
    {"lenient", OptionKey::none, "", "an option that finds nothing to change is no failure"},
    {"quiet", OptionKey::none, "", "tell only what went wrong"},
};

/// "  --title[-LANG] TEXT  the game's name".
std::string Help_Line(const std::string& option, std::string_view help) {
    constexpr std::size_t Column = 34;
    std::string line = "  " + option;
    if (line.size() + 2 > Column)
        return line + "\n" + std::string(Column, ' ') + std::string(help) + "\n";
    line.resize(Column, ' ');
    return line + std::string(help) + "\n";
}

std::string Shown_Option(const OptionInfo& option) {
    const std::string name = "--" + std::string(option.name), value(option.value);
    switch (option.key) {
        case OptionKey::language:
            return name + "[-LANG] " + value;
        case OptionKey::each_language:
            return name + "-LANG " + value;
        case OptionKey::box:
            return name + " BOX=" + value;
        case OptionKey::element:
            return name + " ELEMENT=" + value;
        default:
            return value.empty() ? name : name + " " + value;
    }
}

bool Takes_File(std::string_view value) {
    return value == "FILE" || value == "FOLDER" || value == "SCHEME";
}

std::string Bash_Completion(const std::vector<TypedOption>& options) {
    std::string words, files;
    for (const auto& [name, value] : options) {
        words += " --" + name;
        if (Takes_File(value)) files += (files.empty() ? "--" : "|--") + name;
    }
    return "_bannersmith_edit() {\n"
           "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}\n"
           "    case $before in\n"
           "        " +
           files +
           ") COMPREPLY=($(compgen -f -- \"$word\")); return ;;\n"
           "        --export-recipe) COMPREPLY=($(compgen -W 'csv json' -- \"$word\")); return ;;\n"
           "    esac\n"
           "    case $word in\n"
           "        -*) COMPREPLY=($(compgen -W '" +
           words.substr(1) +
           "' -- \"$word\")) ;;\n"
           "        *) COMPREPLY=($(compgen -f -- \"$word\")) ;;\n"
           "    esac\n"
           "}\n"
           "complete -o filenames -F _bannersmith_edit bannersmith-edit\n";
}

std::string Zsh_Completion(const std::vector<TypedOption>& options) {
    std::string script = "#compdef bannersmith-edit\n_arguments \\\n";
    for (const auto& [name, value] : options) {
        const std::string argument =
            value.empty() ? "" : "=:" + std::string(value) + (Takes_File(value) ? ":_files" : ":");
        script.append("    '--").append(name).append(argument).append("' \\\n");
    }
    return script + "    '*:banner:_files'\n";
}

std::string Fish_Completion(const std::vector<TypedOption>& options) {
    std::string script;
    for (const auto& [name, value] : options) {
        script += "complete -c bannersmith-edit -l " + name;
        if (!value.empty()) script += Takes_File(value) ? " -r -F" : " -x";
        script += "\n";
    }
    return script;
}

}  // namespace

std::span<const OptionInfo> Edit_Options() {
    return EditOptions;
}

std::span<const OptionInfo> Run_Options() {
    return RunOptions;
}

std::span<const std::string_view> Option_Languages() {
    return Codes;
}

std::vector<TypedOption> Typed_Options() {
    std::vector<TypedOption> all;
    for (const OptionInfo& option : EditOptions) {
        const std::string name(option.name);
        if (option.key != OptionKey::each_language) all.push_back({name, option.value});
        if (option.key != OptionKey::language && option.key != OptionKey::each_language) continue;
        for (const std::string_view code : Codes) {
            all.push_back({name + "-" + std::string(code), option.value});
        }
    }
    for (const OptionInfo& option : RunOptions) {
        all.push_back({std::string(option.name), option.value});
    }
    return all;
}

std::string Edit_Usage() {
    std::string usage =
        "usage: bannersmith-edit [OPTION...] BANNER...\n"
        "       bannersmith-edit --recipe FILE [OPTION...]\n"
        "       bannersmith-edit --export-recipe csv|json BANNER...\n"
        "       bannersmith-edit --completion bash|zsh|fish\n"
        "       bannersmith-edit --help | --version\n"
        "\n"
        "Edits and saves banners: layout files (banner.brlyt), the archives of channels\n"
        "(00000000.app, opening.bnr, banner.bin), unpacked channels. Paths are below the\n"
        "current folder. A value stands behind = or a blank; ^ in it is a line break. LANG\n"
        "is eng, ger, fra, ita, spa, ned or jpn, where they exist also kor, chs or cht.\n"
        "Options are applied in their order.\n"
        "\n";
    for (const OptionInfo& option : EditOptions) {
        usage += Help_Line(Shown_Option(option), option.help);
    }
    usage += "\n";
    for (const OptionInfo& option : RunOptions) {
        usage += Help_Line(Shown_Option(option), option.help);
    }
    return usage +
           "\n"
           "A shelf of banners goes through a spreadsheet and back:\n"
           "  bannersmith-edit --export-recipe csv shelf/*.app >shelf.csv\n"
           "  bannersmith-edit --recipe shelf.csv\n"
           "\n"
           "Exit status: 0 all done; 1 some failed, each told in a line, and are as they were;\n"
           "2 wrong usage or a wrong row of a recipe, nothing was touched.\n";
}

std::string Completion_Script(std::string_view shell) {
    std::vector<TypedOption> options = Typed_Options();
    options.push_back({"completion", "SHELL"});
    options.push_back({"help", ""});
    options.push_back({"version", ""});
    if (shell == "bash") return Bash_Completion(options);
    if (shell == "zsh") return Zsh_Completion(options);
    return shell == "fish" ? Fish_Completion(options) : std::string();
}

}  // namespace bannersmith
