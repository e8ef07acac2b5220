#include "manualeditor/frm_hc.h"

#include <utility>
#include <vector>

#include "base/text.h"
#include "forms/say.h"
#include "layout/text_box.h"

namespace bannersmith {

frmHC::frmHC(MainWindowForTexts main, Desktop& desktop)
    : main_(std::move(main)), desktop_(desktop), BrlytData(main_.banner.Bytes()) {
    cmbHC.Click = [this] { cmbHC_Click(); };
    cmbHC.may_pick = [this] { return Settle(); };
    txtHC.Change = [this] { Show_Mark(); };
}

void frmHC::Form_Load() {
    main_.form.Set_Enabled(false);
    cmbHC.Clear();
    std::vector<std::u16string> names;
    for (const std::string& name : Text_Box_Names(BrlytData)) names.push_back(From_Bytes(name));
    cmbHC.Add(names);
    cmbHC.Select(0);
}

void frmHC::Form_Unload() {
    main_.form.Set_Enabled(true);
    main_.show_what_is_there_now();
}

void frmHC::cmbHC_Click() {
    set_ = Read_Box(BrlytData, cmbHC.Selected());
    txtHC.Set(set_);
    Show_Mark();
}

void frmHC::Show_Mark() {
    const bool is_unset = cmbHC.Index() != DropDownList::NoSelection && txtHC.Text() != set_;
    txtHC.Set_Mark(is_unset ? Say("Typed, but not set yet") : u"");
}

void frmHC::cmdSet_Click() {
    if (cmbHC.Index() == DropDownList::NoSelection) return;
    main_.apply(WriteBox{cmbHC.Selected(), txtHC.Text()});
    if (!txtHC.Text().empty()) set_ = txtHC.Text();
    Show_Mark();
}

void frmHC::Undo_Click() {
    main_.undo();
    cmbHC_Click();
}

void frmHC::Redo_Click() {
    main_.redo();
    cmbHC_Click();
}

bool frmHC::Settle() {
    if (txtHC.Mark().empty()) return true;
    const auto answer =
        desktop_.Choose(Filled(Say("%1 was typed and is not set."), cmbHC.Selected()),
                        {Say("Set it first"), Say("Discard"), Say("Cancel")});
    if (answer == 0) cmdSet_Click();
    if (answer == 1) txtHC.Set(set_);
    return answer != 2;
}

}  // namespace bannersmith
