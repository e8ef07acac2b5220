#pragma once

#include "colors/window/frm_color.h"
#include "desktop/second_window.h"

class QBoxLayout;
class QHBoxLayout;

namespace bannersmith {

/// The view of the colour window. What does not fit its size is scrolled to.
class ColorWindowView : public SecondWindow {
 public:
    ColorWindowView(frmColor& window, std::function<void()> closed, QWidget* parent);

    QSize sizeHint() const override;

 private:
    QBoxLayout* Make_Bar(frmColor& window);
    QHBoxLayout* Make_Row(frmColor& window, std::size_t row);
    QWidget* Make_Element(frmColor& window, std::size_t element);
    QWidget* Make_Edit_Area(frmColor& window);

    QWidget* content_;
};

}  // namespace bannersmith
