#include "exchange/edit_command.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <map>

#include "base/text.h"

namespace bannersmith {

namespace {

/// An option that says how, not what.
struct RunOption {
    std::string_view name, value, help;  ///< `value` is empty for one without
};

constexpr RunOption RunOptions[] = {
    {"recipe", "FILE", "a banner a row, CSV or JSON; columns are options"},
    {"export-recipe", "FORMAT", "csv or json: print what the banners hold as a recipe"},
    {"output", "FILE", "write a copy of the one banner"},
    {"output-folder", "FOLDER", "write copies below a folder"},
    {"backup", "SUFFIX", "keep each old file under its name with the suffix"},
    {"dry-run", "", "write nothing, only tell"},
    {"diff", "", "show what changes, old and new"},
    {"json", "", "report as JSON"},
    {"jobs", "N", "work with N threads, 8 unless given"},
    {"lenient", "", "an option that finds nothing to change is no failure"},
    {"quiet", "", "tell only what went wrong"},
};

/// Every option as it can be typed, with its value.
struct Typed {
    std::string name;
    std::string_view value;
};

std::vector<Typed> All_Options() {
    std::vector<Typed> all;
    for (const OptionInfo& option : Edit_Options()) {
        const std::string name(option.name);
        if (option.key != OptionKey::each_language) all.push_back({name, option.value});
        if (option.key != OptionKey::language && option.key != OptionKey::each_language) continue;
        for (const std::string_view code : Option_Languages()) {
            all.push_back({name + "-" + std::string(code), option.value});
        }
    }
    for (const RunOption& option : RunOptions) {
        all.push_back({std::string(option.name), option.value});
    }
    return all;
}

/// In front of each value, which may then be empty and begin with a hyphen.
constexpr char ValueMark = ':';

/// The arguments as the parser takes them, from the last to the first: each option and its value as
/// one, with a mark between them.
std::vector<std::string> For_The_Parser(const std::vector<std::u16string>& arguments,
                                        const std::vector<Typed>& options) {
    std::vector<std::string> joined;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string argument = To_Utf8(arguments[i]);
        const std::string name = argument.substr(0, argument.find('='));
        const bool takes_value = std::any_of(
            options.begin(), options.end(),
            [&](const Typed& each) { return name == "--" + each.name && !each.value.empty(); });
        if (!takes_value) {
            joined.push_back(argument);
        } else if (name.size() < argument.size()) {
            joined.push_back(name + "=" + ValueMark + argument.substr(name.size() + 1));
        } else if (i + 1 < arguments.size()) {
            joined.push_back(name + "=" + ValueMark + To_Utf8(arguments[++i]));
        } else {
            throw CLI::ArgumentMismatch(name + " needs a value", CLI::ExitCodes::ArgumentMismatch);
        }
    }
    std::reverse(joined.begin(), joined.end());
    return joined;
}

Failure Misused(const std::string& reason) {
    return {u"", reason};
}

/// Options by their names, each with its values in their order.
class Values {
 public:
    Values(const std::vector<std::u16string>& arguments, const std::vector<Typed>& options) {
        CLI::App parser;
        parser.set_help_flag();
        CLI::Option* banners = parser.add_option("banners", banners_);
        for (const Typed& option : options) {
            const std::string name = "--" + option.name;
            if (option.value.empty()) {
                parser.add_flag(name);
            } else {
                parser.add_option(name)->allow_extra_args(false)->multi_option_policy(
                    CLI::MultiOptionPolicy::TakeAll);
            }
        }
        parser.parse(For_The_Parser(arguments, options));
        std::map<const CLI::Option*, std::size_t> taken;
        for (const CLI::Option* option : parser.parse_order()) {
            if (option == banners) continue;
            const bool flag = option->get_items_expected_max() == 0;
            const std::string value = flag ? ":" : option->results()[taken[option]++];
            given_.emplace_back(option->get_lnames().front(), value.substr(1));
        }
    }

    /// All options in the order of the command line.
    const std::vector<std::pair<std::string, std::string>>& Given() const { return given_; }

    std::vector<std::u16string> Banners() const {
        std::vector<std::u16string> banners;
        for (const std::string& banner : banners_) banners.push_back(From_Utf8(banner));
        return banners;
    }

 private:
    std::vector<std::string> banners_;
    std::vector<std::pair<std::string, std::string>> given_;
};

/// Collects what the options say.
class Reading {
 public:
    explicit Reading(const std::u16string& program_folder) : program_folder_(program_folder) {
        command.shelf.threads = UsualThreads;
    }

    EditCommand command;

    Result<> Take(const std::string& name, const std::string& value) {
        const bool keyed = name == "text" || name == "color";
        if (!keyed && std::find(seen_.begin(), seen_.end(), name) != seen_.end()) {
            return Misused("--" + name + " is there twice");
        }
        seen_.push_back(name);
        const bool says_how = std::any_of(std::begin(RunOptions), std::end(RunOptions),
                                          [&](const RunOption& each) { return each.name == name; });
        if (says_how) return Take_How(name, value);
        auto wish = Read_Wish(name, From_Utf8(value), program_folder_);
        if (!wish) {
            return Misused(To_Utf8(wish.Why().subject) + " \"" + value +
                           "\": " + wish.Why().reason);
        }
        command.shelf.for_all.push_back(std::move(*wish));
        return {};
    }

    /// What only all options together show.
    Result<> Check() const {
        const ShelfOptions& shelf = command.shelf;
        const bool copies = !shelf.output.empty() || !shelf.output_folder.empty();
        const bool exports = !command.export_recipe.empty();
        const auto says = [&](const char* name) {
            return std::find(seen_.begin(), seen_.end(), name) != seen_.end();
        };
        if (command.banners.empty() && command.recipe.empty()) return Misused("No banner is named");
        if (exports && seen_.size() > 1) return Misused("--export-recipe stands alone");
        if (!exports && !copies && shelf.for_all.empty() && command.recipe.empty()) {
            return Misused("No edit is named");
        }
        if (says("output") && says("output-folder")) {
            return Misused("--output and --output-folder exclude each other");
        }
        if (copies && says("backup")) return Misused("--backup is not for copies");
        const bool one = command.banners.size() == 1 && command.recipe.empty();
        if (says("output") && !one) return Misused("--output is for one banner");
        if (says("export-picture") && !one) return Misused("--export-picture is for one banner");
        if (command.json && command.diff) return Misused("--json shows what changes anyway");
        return {};
    }

 private:
    static constexpr unsigned UsualThreads = 8;  // that mostly wait for the disk
    static constexpr unsigned MostThreads = 64;

    Result<> Take_How(const std::string& name, const std::string& value) {
        const std::u16string text = From_Utf8(value);
        ShelfOptions& shelf = command.shelf;
        const std::pair<const char*, std::u16string*> texts[] = {
            {"recipe", &command.recipe},
            {"output", &shelf.output},
            {"output-folder", &shelf.output_folder},
            {"backup", &shelf.backup}};
        for (const auto& [option, place] : texts) {
            if (name != option) continue;
            if (text.empty()) return Misused("--" + name + " is empty");
            *place = text;
        }
        const std::pair<const char*, bool*> flags[] = {{"dry-run", &shelf.dry_run},
                                                       {"diff", &command.diff},
                                                       {"json", &command.json},
                                                       {"lenient", &shelf.lenient},
                                                       {"quiet", &command.quiet}};
        for (const auto& [option, place] : flags) {
            if (name == option) *place = true;
        }
        if (name == "backup" && value.find_first_of("/\\") != value.npos) {
            return Misused("--backup \"" + value + "\": Is no suffix of a name");
        }
        if (name == "export-recipe") {
            if (value != "csv" && value != "json") {
                return Misused("--export-recipe is csv or json");
            }
            command.export_recipe = value;
        }
        return name == "jobs" ? Take_Jobs(value) : Result<>();
    }

    Result<> Take_Jobs(const std::string& value) {
        const bool number = !value.empty() && value.size() <= 2 &&
                            value.find_first_not_of("0123456789") == value.npos;
        const unsigned jobs = number ? static_cast<unsigned>(std::stoul(value)) : 0;
        if (jobs < 1 || jobs > MostThreads) return Misused("--jobs is a number from 1 to 64");
        command.shelf.threads = jobs;
        return {};
    }

    const std::u16string& program_folder_;
    std::vector<std::string> seen_;
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
            return name + " " + value;
    }
}

bool Takes_File(std::string_view value) {
    return value == "FILE" || value == "FOLDER" || value == "SCHEME";
}

std::string Bash_Completion(const std::vector<Typed>& options) {
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

std::string Zsh_Completion(const std::vector<Typed>& options) {
    std::string script = "#compdef bannersmith-edit\n_arguments \\\n";
    for (const auto& [name, value] : options) {
        const std::string argument =
            value.empty() ? "" : "=:" + std::string(value) + (Takes_File(value) ? ":_files" : ":");
        script += "    '--" + name + argument + "' \\\n";
    }
    return script + "    '*:banner:_files'\n";
}

std::string Fish_Completion(const std::vector<Typed>& options) {
    std::string script;
    for (const auto& [name, value] : options) {
        script += "complete -c bannersmith-edit -l " + name;
        if (!value.empty()) script += Takes_File(value) ? " -r -F" : " -x";
        script += "\n";
    }
    return script;
}

}  // namespace

Result<EditCommand> Read_Edit_Command(const std::vector<std::u16string>& arguments,
                                      const std::u16string& program_folder) {
    Reading reading(program_folder);
    try {
        const Values values(arguments, All_Options());
        reading.command.banners = values.Banners();
        for (const auto& [name, value] : values.Given()) {
            if (auto taken = reading.Take(name, value); !taken) return taken.Why();
        }
    } catch (const CLI::Error& error) {
        return Misused(error.what());
    }
    if (auto checked = reading.Check(); !checked) return checked.Why();
    return std::move(reading.command);
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
    for (const OptionInfo& option : Edit_Options()) {
        usage += Help_Line(Shown_Option(option), option.help);
    }
    usage += "\n";
    for (const RunOption& option : RunOptions) {
        const std::string value(option.value);
        usage += Help_Line("--" + std::string(option.name) + (value.empty() ? "" : " ") + value,
                           option.help);
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
    std::vector<Typed> options = All_Options();
    options.push_back({"completion", "SHELL"});
    options.push_back({"help", ""});
    options.push_back({"version", ""});
    if (shell == "bash") return Bash_Completion(options);
    if (shell == "zsh") return Zsh_Completion(options);
    return shell == "fish" ? Fish_Completion(options) : std::string();
}

}  // namespace bannersmith
