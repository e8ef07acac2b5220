#pragma once

#include "colors/frm_color.h"
#include "desktop/second_window.h"

class QBoxLayout;

/// The view of the colour window.
class ColorWindowView : public SecondWindow {
 public:
    ColorWindowView(frmColor& window, std::function<void()> closed, QWidget* parent);

 private:
    QBoxLayout* Make_Bar(frmColor& window);
    QWidget* Make_Element(frmColor& window, std::u16string_view key);
    QWidget* Make_Edit_Area(frmColor& window);
};
