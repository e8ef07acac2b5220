#pragma once

#include "desktop/second_window.h"
#include "manualeditor/frm_hc.h"

namespace bannersmith {

/// The view of the manual text editor.
class TextEditorView : public SecondWindow {
 public:
    TextEditorView(frmHC& editor, std::function<void()> closed, QWidget* parent);
};

}  // namespace bannersmith
