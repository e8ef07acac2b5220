#include "mainwindow/batch_run.h"

#include <algorithm>
#include <new>
#include <utility>

#include "inspect/warnings.h"
#include "layout/format.h"
#include "layout/kind.h"
#include "system/files.h"

namespace bannersmith {

BatchRun::BatchRun(Process process, Notice report)
    : process_(std::move(process)),
      report_(std::move(report)),
      configuration_(process_.program_folder) {}

int BatchRun::Fail(int status, const Failure& failure) const {
    report_(failure);
    return status;
}

int BatchRun::Run() {
    try {
        return Edit_And_Save();
    } catch (const std::bad_alloc&) {
        return Fail(Failed, {text_, "Not enough memory"});
    }
}

int BatchRun::Edit_And_Save() {
    const auto configured = configuration_.Read();
    if (!configured) return Fail(Failed, configured.Why());
    command_ = ParseClo(process_.command_line, process_.program_folder);
    if (const auto open = Open(*configured); !open) return Fail(Failed, open.Why());
    if (opened_.banner.Bytes().size() < header::LengthEnd) {
        return Fail(NoLayout,
                    Why_No_Layout(opened_, process_.program_folder, text_, configuration_.Path()));
    }
    for (const Edit& edit : command_.edits) {
        if (const auto applied = opened_.banner.Apply(edit); !applied) {
            return Fail(Failed, applied.Why());
        }
    }
    if (const auto saved = Save(); !saved) return Fail(Failed, saved.Why());
    return Done;
}

/// The layout used last is taken also where the command line names another one, but then not held
/// for a save.
Result<> BatchRun::Open(const std::u16string& configured) {
    if (command_.path.empty() || command_.path == configured) {
        const auto held = Hold_Folder_Of(Resolve(process_.program_folder, configured));
        if (!held) return held;
    }
    Take(configured);
    if (command_.path.empty()) return {};
    Tell_Of_Cut_Path();
    if (command_.path == configured) return {};
    if (auto held = Hold_Folder_Of(command_.path); !held) return held;
    Take(command_.path);
    return {};
}

/// Until the end of the run no other one changes the layout, so neither loses what the other wrote.
Result<> BatchRun::Hold_Folder_Of(const std::u16string& layout) {
    const std::u16string file = Layout_File_Of(layout);
    if (!Ordinary_File_Exists(file)) return {};
    return lock_.Take(file);
}

void BatchRun::Take(const std::u16string& text) {
    constexpr std::size_t NoHistory = 0;
    text_ = text;
    opened_ = {};
    if (!text.empty()) opened_ = Open_Layout(process_.program_folder, text, NoHistory);
}

/// A path that was cut at a hyphen inside a name may name another file than was meant. Where the
/// whole name is one of a file, that is told; the name goes on to an option or to the end.
void BatchRun::Tell_Of_Cut_Path() const {
    for (const std::u16string& whole : command_.uncut_paths) {
        if (!Ordinary_File_Exists(whole)) continue;
        report_({whole, "Is not edited, because a hyphen ends the path on a command line"});
        return;
    }
}

Result<> BatchRun::Save() {
    const Banner& banner = opened_.banner;
    const auto plan = banner.Plan_Save();
    if (!plan) return plan.Why();
    if (banner.Was_Changed_Elsewhere()) {
        return Failure{text_, "Was changed by another program since it was loaded"};
    }
    const std::vector<std::string> odd = What_Is_Odd(*plan);  // may lack memory, so not afterwards
    if (auto saved = Save_Uninterrupted(banner, *plan, lock_, report_); !saved) return saved;
    for (const std::string& what : odd) report_({text_, "Saved, " + what});
    configuration_.Store(text_);  // which may be what was just edited
    return {};
}

/// Nobody has seen what was edited, so it is told when it looks wrong.
std::vector<std::string> BatchRun::What_Is_Odd(const SavePlan& plan) const {
    std::vector<std::string> odd = plan.notices;
    const bool colored =
        std::any_of(command_.edits.begin(), command_.edits.end(),
                    [](const Edit& edit) { return std::holds_alternative<ApplyScheme>(edit); });
    const std::string& loaded = opened_.banner.On_Disk();
    const std::string warning = Is_Layout(loaded) ? Warning_Of_Edit(loaded, plan.Layout(), colored)
                                                  : "it does not begin as a layout file";
    if (!warning.empty()) odd.push_back("but " + warning);
    return odd;
}

}  // namespace bannersmith
