// The manual text editor: the raw text of any text box of the loaded layout.
#pragma once

#include "forms/controls.h"
#include "gameinfo/game_info.h"

namespace bannersmith {

/// The editor as state and events. What it writes goes into `BrlytData` at once.
class frmHC {
 public:
    /// `main_form` and `info` are the main window's and must outlive this window.
    frmHC(Form& main_form, GameInfo& info);
    frmHC(const frmHC&) = delete;
    frmHC& operator=(const frmHC&) = delete;

    Form form;
    DropDownList cmbHC;  ///< the names of all text boxes, in file order
    TextBox txtHC;       ///< the raw text of the selected one, "^" for a line break
    Event Written;       ///< after each Set

    /// Disables the main window, lists the layout's text boxes and shows the first.
    void Form_Load();
    /// Enables the main window and shows there what is in the layout now.
    void Form_Unload();
    /// Shows the text of the selected box.
    void cmbHC_Click();
    /// Writes the text into the selected box. An empty text, or no selection, changes nothing.
    void cmdSet_Click();

 private:
    Form& main_form_;
    GameInfo& info_;
};

}  // namespace bannersmith
