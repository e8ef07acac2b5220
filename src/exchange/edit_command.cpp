#include "exchange/edit_command.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <map>

#include "base/text.h"
#include "exchange/edit_usage.h"

namespace bannersmith {

namespace {

/// In front of each value, which may then be empty and begin with a hyphen.
constexpr char ValueMark = ':';

/// The arguments as the parser takes them, from the last to the first: each option and its value as
/// one, with a mark between them.
std::vector<std::string> For_The_Parser(const std::vector<std::u16string>& arguments,
                                        const std::vector<TypedOption>& options) {
    std::vector<std::string> joined;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string argument = To_Utf8(arguments[i]);
        const std::string name = argument.substr(0, argument.find('='));
        const bool takes_value =
            std::any_of(options.begin(), options.end(), [&](const TypedOption& each) {
                return name == "--" + each.name && !each.value.empty();
            });
        const bool is_flag = !takes_value && argument.starts_with("--") && name.size() > 2;
        if (is_flag && name.size() < argument.size()) {
            throw CLI::ArgumentMismatch(name + " takes no value, or is no option",
                                        CLI::ExitCodes::ArgumentMismatch);
        }
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
    Values(const std::vector<std::u16string>& arguments, const std::vector<TypedOption>& options) {
        CLI::App parser;
        parser.set_help_flag();
        CLI::Option* banners = parser.add_option("banners", banners_);
        for (const TypedOption& option : options) {
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
        const auto run_options = Run_Options();
        const bool says_how =
            std::any_of(run_options.begin(), run_options.end(),
                        [&](const OptionInfo& each) { return each.name == name; });
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

}  // namespace

Result<EditCommand> Read_Edit_Command(const std::vector<std::u16string>& arguments,
                                      const std::u16string& program_folder) {
    Reading reading(program_folder);
    try {
        const Values values(arguments, Typed_Options());
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

}  // namespace bannersmith
