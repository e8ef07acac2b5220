// The save command of the main window.
#include <utility>

#include "base/text.h"
#include "forms/say.h"
#include "gameinfo/languages.h"
#include "layout/file_length.h"
#include "layout/format.h"
#include "layout/kind.h"
#include "mainwindow/form1.h"

namespace bannersmith {

/// Whether the file has everything now.
bool Form1::Save_Changes() {
    const auto saved = Settle_Kept_Work() ? Save_As_Wanted() : std::nullopt;
    if (!saved) {
        lblLastCommand.Set(Say("Not saved"));
        return false;
    }
    desktop_.Message(u"File Successfully Saved!");
    Load_Saved(*saved);
    Tell_Saved(*saved);
    return true;
}

/// Nothing where it is refused, not wanted, or fails, which is told.
std::optional<SavePlan> Form1::Save_As_Wanted() {
    const auto checked = Check_Save();
    if (checked && !Save_Is_Wanted()) return std::nullopt;
    auto saved = checked ? Save() : checked.Why();
    if (saved) return std::move(*saved);
    desktop_.Report(saved.Why());
    return std::nullopt;
}

/// What was there before the save can still be taken back.
void Form1::Load_Saved(const SavePlan& plan) {
    Banner saved = std::move(opened_.banner);
    Load();
    if (opened_.banner.Is_Loaded()) {
        opened_.banner.Continue(std::move(saved), plan, What_A_Save_Adds());
    }
    Tell_What_Is_Loaded();
}

void Form1::Tell_Saved(const SavePlan& plan) {
    std::u16string about = Say("Saved");
    if (cmbFileList.Index() == DropDownList::NoSelection) about += u", " + Say("no colors applied");
    for (const std::string& notice : plan.notices) about += u", " + From_Utf8(notice);
    const bool logo_unplaced = cmbLogo.Index() > 0 && !plan.has_logo;
    lblLastCommand.Set(logo_unplaced ? Say("Saved; the banner has no logo texture to replace")
                                     : about);
}

/// To the texts that were set; nothing where that is nothing.
std::u16string Form1::What_A_Save_Adds() const {
    std::u16string added;
    const std::vector<Edit> chosen = Chosen_Edits();
    for (const Edit& edit : chosen) {
        const auto* force = std::get_if<ForceRegion>(&edit);
        if (std::holds_alternative<SetPadding>(edit) || (force && force->code == NoLanguage))
            continue;
        added += (added.empty() ? u"" : u", ") + Name_Of(edit);
    }
    return added.empty() ? added : Filled(Say("Save with %1"), added);
}

/// Everything that can be refused is refused before anything is asked.
Result<> Form1::Check_Save() const {
    if (BrlytData.size() < header::LengthEnd) {
        return Why_No_Layout(opened_, process_.program_folder, txtSrc.Text(), u"File");
    }
    if (const auto padding = Read_Padding(txtPad.Text()); !padding) return padding.Why();
    return {};
}

/// Whoever named another file by mistake would not get it back, nor what another program wrote.
bool Form1::Save_Is_Wanted() {
    if (!Settle_Fields()) return false;
    if (!Is_Layout(BrlytData) &&
        !desktop_.Confirm(
            Filled(Say("%1 is not a layout file. Save it all the same?"), txtSrc.Text()))) {
        return false;
    }
    const std::string lost = opened_.banner.Lost_By_Force_Of(cmbForce.Selected());
    if (!lost.empty() && !desktop_.Confirm(Filled(Say("%1: %2. Force the region all the same?"),
                                                  txtSrc.Text(), From_Utf8(lost)))) {
        return false;
    }
    return Settle_Change_Elsewhere();
}

/// What was written.
Result<SavePlan> Form1::Save() {
    auto plan = opened_.banner.Plan_Save(Chosen_Edits());
    if (!plan) return plan;
    const auto saved = Save_Uninterrupted(opened_.banner, *plan, {},
                                          [this](const Failure& loss) { desktop_.Report(loss); });
    if (!saved) return saved.Why();
    return plan;
}

/// The first entry of either list stands for what the banner has.
std::vector<Edit> Form1::Chosen_Edits() const {
    const std::u16string& folder = process_.program_folder;
    std::vector<Edit> edits = {SetPadding{txtPad.Text()}, ForceRegion{cmbForce.Selected()}};
    if (cmbFileList.Index() > 0) {
        edits.push_back(ApplyScheme{Scheme_Path(folder, cmbFileList.Selected())});
    }
    if (cmbLogo.Index() > 0) {
        edits.push_back(ReplaceLogo{Logo_Path(folder, cmbLogo.Selected())});
    }
    return edits;
}

}  // namespace bannersmith
