#pragma once

#include <QDialog>
#include <functional>

#include "colors/frm_color.h"

class QBoxLayout;

/// The view of the colour window. `closed` runs once, when the user has closed the window; the unit
/// may be gone afterwards, and the view deletes itself.
class ColorWindowView : public QDialog {
 public:
    ColorWindowView(frmColor& window, std::function<void()> closed, QWidget* parent);

 protected:
    void done(int result) override;

 private:
    QBoxLayout* Make_Bar(frmColor& window);
    QWidget* Make_Element(frmColor& window, std::u16string_view key);
    QWidget* Make_Edit_Area(frmColor& window);

    std::function<void()> closed_;
};
