#pragma once

#include <QDialog>
#include <functional>

#include "manualeditor/frm_hc.h"

/// The view of the manual text editor. `closed` runs once, when the user has closed the window; the
/// unit may be gone afterwards, and the view deletes itself.
class TextEditorView : public QDialog {
 public:
    TextEditorView(frmHC& editor, std::function<void()> closed, QWidget* parent);

 protected:
    void done(int result) override;

 private:
    std::function<void()> closed_;
};
