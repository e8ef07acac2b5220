// Ties the toolkit's widgets to the controls of the windows: a widget shows its control's state,
// and what a person does with it reaches the control. Showing a state never raises an event.
//
// A widget must live as long as its control is used, and the other way round.
#pragma once

#include <QLabel>
#include <QLineEdit>

#include "desktop/widgets.h"
#include "forms/controls.h"

namespace bannersmith {

/// Each shows the control now and from here on, and passes on what a person does.
void Bind(QLineEdit& edit, TextBox& box);
void Bind(ListBox& box, DropDownList& list);
void Bind(QLabel& shown, Label& label);
void Bind(QLabel& shown, PictureBox& picture);

}  // namespace bannersmith
