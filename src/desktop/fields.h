// The boxes of texts that go into a banner, as all windows have them.
#pragma once

#include <QLineEdit>

#include "forms/controls.h"

namespace bannersmith {

/// A box in the console's font, as far as it is installed. Its own undo works while its text is not
/// set yet; otherwise the keys are those of the window.
QLineEdit* Make_Field(TextBox& box, bool bold);

/// Lets the keys of undo and redo pass `edit` by while `box` has no mark.
void Leave_Undo_To_Window(QLineEdit& edit, const TextBox& box);

}  // namespace bannersmith
