// bannersmith-edit: edits one banner or a shelf of them, by options or by a recipe.
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <new>
#include <set>
#include <string>
#include <vector>

#include "base/message.h"
#include "base/text.h"
#include "exchange/edit_command.h"
#include "exchange/edit_usage.h"
#include "exchange/recipe.h"
#include "exchange/report.h"
#include "exchange/shelf_jobs.h"
#include "layout/kind.h"
#include "system/data_folder.h"
#include "system/files.h"
#include "system/interruptions.h"
#include "system/native_path.h"
#include "system/process.h"

using namespace bannersmith;

namespace {

constexpr int Done = 0, SomeFailed = 1, Misused = 2;

void Tell(const Failure& failure) {
    Print("bannersmith-edit: " + One_Line(failure) + "\n", stderr);
}

/// Tells of outcomes as they come.
class Teller {
 public:
    Teller(const EditCommand& command, std::size_t all)
        : command_(command),
          all_(all),
          shows_progress_(Is_Terminal(stderr) && (command.quiet || !Is_Terminal(stdout))) {
        if (command_.json) Write("[");
    }

    void Take(const Outcome& outcome) {
        const bool failed = outcome.status == Outcome::Status::failed;
        ++told_;
        done_ += failed ? 0 : 1;
        failed_ = failed_ || failed;
        const std::string trouble = Trouble_Lines(outcome);
        if (!trouble.empty()) {
            Clear_Progress();
            Print(trouble, stderr);
        }
        if (command_.json) {
            Write((told_ == 1 ? "" : ",\n ") + Outcome_Json(outcome));
        } else if (!command_.quiet || command_.diff) {
            Write(Outcome_Lines(outcome, command_.diff));
        }
        if (shows_progress_) {
            const auto elapsed = std::chrono::steady_clock::now() - begin_;
            Print("\r\x1B[K" + Progress_Line(told_, all_, elapsed), stderr);
        }
    }

    /// The exit status.
    int Finish(bool whole) {
        Clear_Progress();
        if (command_.json) Write("]\n");
        if (!whole) {
            Tell({u"Interrupted",
                  std::to_string(done_) + " of " + std::to_string(all_) + " are done"});
        }
        if (!written_) Tell({u"standard output", "Cannot be written"});
        return failed_ || !written_ || !whole ? SomeFailed : Done;
    }

 private:
    void Write(const std::string& text) { written_ = Print(text, stdout) && written_; }

    void Clear_Progress() const {
        if (shows_progress_) Print("\r\x1B[K", stderr);
    }

    const EditCommand& command_;
    const std::size_t all_;
    const bool shows_progress_;
    const std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
    std::size_t told_ = 0, done_ = 0;
    bool failed_ = false, written_ = true;
};

std::u16string Current_Folder() {
    std::error_code ignored;
    return Text_Of(std::filesystem::current_path(ignored));
}

int Edit_Shelf(const EditCommand& command, const std::u16string& program_folder) {
    std::string recipe;
    if (!command.recipe.empty()) {
        auto read = Read_File(command.recipe);
        if (!read) return Tell(read.Why()), Misused;
        recipe = std::move(*read);
    }
    ShelfOptions options = command.shelf;
    options.current_folder = Current_Folder();
    ShelfJobs jobs(command, recipe, program_folder);
    const auto count = jobs.Check();
    if (!count) return Tell(count.Why()), Misused;
    Teller teller(command, *count);
    const InterruptionsHeld held;
    Shelf shelf(
        std::move(options), [&] { return jobs.Next().Value_Or({}); },
        [&](const Outcome& outcome) { teller.Take(outcome); });
    return teller.Finish(shelf.Run());
}

/// What a banner holds, as a row of a recipe.
Result<std::vector<OptionValue>> Values_In(const std::u16string& path) {
    constexpr std::size_t NoHistory = 0;
    const auto banner = Banner::Load({Layout_File_Of(path), path}, NoHistory);
    if (!banner) return banner.Why();
    if (!Is_Layout(banner->On_Disk())) {
        return Failure{path, "Is neither a layout file nor an archive"};
    }
    return Values_Of(banner->Bytes(), banner->Names());
}

/// The columns that the banners need, those of the first first.
std::vector<std::string> Columns_For(const std::vector<std::u16string>& banners) {
    std::vector<std::string> columns = {std::string(BannerColumn)};
    std::set<std::string> known;
    for (const std::u16string& banner : banners) {
        for (const OptionValue& value : Values_In(banner).Value_Or({})) {
            if (known.insert(value.option).second) columns.push_back(value.option);
        }
    }
    return columns;
}

int Export_Recipe(const EditCommand& command) {
    const bool csv = command.export_recipe == "csv";
    const std::vector<std::string> columns =
        csv ? Columns_For(command.banners) : std::vector<std::string>();
    int status = Done;
    bool written = !csv || Print(Csv_Row(columns), stdout);
    for (const std::u16string& banner : command.banners) {
        const auto values = Values_In(banner);
        if (!values) {
            Tell(values.Why());
            status = SomeFailed;
            continue;
        }
        const std::string row =
            csv ? Csv_Of(banner, *values, columns) : Json_Of(banner, *values) + "\n";
        written = Print(row, stdout) && written;
    }
    if (written) return status;
    Tell({u"standard output", "Cannot be written"});
    return SomeFailed;
}

int Run(const std::vector<std::u16string>& arguments) {
    const std::u16string program_folder = Data_Folder(std::getenv);
    const auto command = Read_Edit_Command(arguments, program_folder);
    if (!command) {
        Print("bannersmith-edit: " + Readable(From_Utf8(command.Why().reason)) +
                  "\nbannersmith-edit --help lists the options.\n",
              stderr);
        return Misused;
    }
    return command->export_recipe.empty() ? Edit_Shelf(*command, program_folder)
                                          : Export_Recipe(*command);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::u16string> arguments = Arguments(argc, argv);
    if (arguments == std::vector<std::u16string>{u"--help"}) {
        return Print(Edit_Usage(), stdout) ? Done : SomeFailed;
    }
    if (arguments == std::vector<std::u16string>{u"--version"}) {
        return Print("bannersmith-edit " BANNERSMITH_VERSION "\n", stdout) ? Done : SomeFailed;
    }
    if (arguments.size() == 2 && arguments[0] == u"--completion") {
        const std::string script = Completion_Script(To_Utf8(arguments[1]));
        if (!script.empty()) return Print(script, stdout) ? Done : SomeFailed;
    }
    try {
        return Run(arguments);
    } catch (const std::bad_alloc&) {
        Tell({u"", "Not enough memory"});
        return SomeFailed;
    }
}
