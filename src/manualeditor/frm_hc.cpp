#include "manualeditor/frm_hc.h"

#include <utility>
#include <vector>

#include "base/text.h"
#include "layout/text_box.h"

namespace bannersmith {

frmHC::frmHC(MainWindowForTexts main) : main_(std::move(main)), BrlytData(main_.banner.Bytes()) {
    cmbHC.Click = [this] { cmbHC_Click(); };
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
    txtHC.Set(Read_Box(BrlytData, cmbHC.Selected()));
}

void frmHC::cmdSet_Click() {
    if (cmbHC.Index() == DropDownList::NoSelection) return;
    main_.apply(WriteBox{cmbHC.Selected(), txtHC.Text()});
}

}  // namespace bannersmith
