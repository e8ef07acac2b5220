// The save command of the main window.
#include <utility>

#include "base/text.h"
#include "layout/file_length.h"
#include "layout/format.h"
#include "layout/kind.h"
#include "mainwindow/form1.h"

namespace bannersmith {

void Form1::cmdSave_Click() {
    auto checked = Check_Save();
    if (checked && !Save_Is_Wanted()) {
        lblLastCommand.Set(u"Not saved");
        return;
    }
    const auto saved = checked ? Save() : checked.Why();
    if (!saved) {
        desktop_.Report(saved.Why());
        lblLastCommand.Set(u"Not saved");
        return;
    }
    desktop_.Message(u"File Successfully Saved!");
    txtSrc_Change();
    const bool logo_unplaced = cmbLogo.Index() > 0 && !saved->has_logo;
    std::u16string about;
    for (const std::string& notice : saved->notices) about += u", " + From_Utf8(notice);
    lblLastCommand.Set(logo_unplaced ? u"Saved; the banner has no logo texture to replace"
                                     : u"Saved" + about);
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
    if (!Is_Layout(BrlytData) &&
        !desktop_.Confirm(txtSrc.Text() + u" is not a layout file. Save it all the same?")) {
        return false;
    }
    const std::string lost = opened_.banner.Lost_By_Force_Of(cmbForce.Selected());
    if (!lost.empty() && !desktop_.Confirm(txtSrc.Text() + u": " + From_Utf8(lost) +
                                           u". Force the region all the same?")) {
        return false;
    }
    return !opened_.banner.Was_Changed_Elsewhere() ||
           desktop_.Confirm(txtSrc.Text() +
                            u" was changed by another program since it was loaded. Save over it?");
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
