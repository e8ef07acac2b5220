#include "manualeditor/frm_hc.h"

#include "base/text.h"
#include "gameinfo/boxes.h"
#include "layout/mod_globals.h"
#include "layout/text_box.h"

namespace bannersmith {

frmHC::frmHC(Form& main_form, GameInfo& info) : main_form_(main_form), info_(info) {
    cmbHC.Click = [this] { cmbHC_Click(); };
}

void frmHC::Form_Load() {
    main_form_.Set_Enabled(false);
    cmbHC.Clear();
    std::vector<std::u16string> names;
    for (const std::string& name : Text_Box_Names(BrlytData)) names.push_back(From_Bytes(name));
    cmbHC.Add(names);
    cmbHC.Select(0);
}

void frmHC::Form_Unload() {
    main_form_.Set_Enabled(true);
    for (std::size_t i = 0; i < info_.cmbRegion.size(); ++i) {
        info_.cmbRegion_click(static_cast<std::int16_t>(i));
    }
    info_.Show_System();
}

void frmHC::cmbHC_Click() {
    txtHC.Set(Read_Box(cmbHC.Selected()));
}

void frmHC::cmdSet_Click() {
    if (cmbHC.Index() == DropDownList::NoSelection) return;
    Write_Box(cmbHC.Selected(), txtHC.Text());
    Written.Raise();
}

}  // namespace bannersmith
