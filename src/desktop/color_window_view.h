#pragma once

#include "colors/window/frm_color.h"
#include "desktop/second_window.h"

class QBoxLayout;

namespace bannersmith {

/// The view of the colour window. What does not fit its size is scrolled to.
class ColorWindowView : public SecondWindow {
 public:
    ColorWindowView(frmColor& window, std::function<void()> closed, QWidget* parent);

    QSize sizeHint() const override;

 private:
    QBoxLayout* Make_Bar();
    QWidget* Make_Elements();
    QWidget* Make_Previews();
    QWidget* Make_Edit_Area();

    frmColor& window_;
    QWidget* content_;
};

}  // namespace bannersmith
