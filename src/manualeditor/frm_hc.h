// The manual text editor: the raw text of any text box of the loaded layout.
#pragma once

#include <functional>
#include <string>

#include "banner/banner.h"
#include "forms/controls.h"

namespace bannersmith {

/// What the manual text editor needs of the main window.
struct MainWindowForTexts {
    Form& form;                                    ///< disabled while the editor is open
    const Banner& banner;                          ///< whose texts are edited
    std::function<void(const Edit& edit)> apply;   ///< applies an edit to the banner
    std::function<void()> undo, redo;              ///< the last change of the banner
    std::function<void()> show_what_is_there_now;  ///< in the main window's fields
};

/// The editor as state and events. What it writes goes into the banner at once.
class frmHC {
 public:
    /// What `main` refers to, and `desktop`, must outlive this window.
    frmHC(MainWindowForTexts main, Desktop& desktop);
    frmHC(const frmHC&) = delete;
    frmHC& operator=(const frmHC&) = delete;

    Form form;
    DropDownList cmbHC;  ///< the names of all text boxes, in file order
    TextBox txtHC;       ///< the raw text of the selected one, "^" for a line break; has a mark
                         ///< while it is not set

    /// Disables the main window, lists the layout's text boxes and shows the first.
    void Form_Load();
    /// Enables the main window and shows there what is in the layout now.
    void Form_Unload();
    /// Shows the text of the selected box.
    void cmbHC_Click();
    /// Writes the text into the selected box. An empty text, or no selection, changes nothing.
    void cmdSet_Click();

    /// Takes back the last change of the banner, or brings it again, and shows the box's text.
    void Undo_Click();
    void Redo_Click();

    /// Whether another box may be chosen, and the window closed: the text is set, or the user sets
    /// it or gives it up.
    bool Settle();

 private:
    void Show_Mark();

    MainWindowForTexts main_;
    Desktop& desktop_;
    const std::string& BrlytData;
    std::u16string set_;  ///< what the box shows when nothing was typed
};

}  // namespace bannersmith
