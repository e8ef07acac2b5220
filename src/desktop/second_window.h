#pragma once

#include <QDialog>
#include <functional>

#include "forms/controls.h"

namespace bannersmith {

/// What the views of the windows beside the main one share. `closed` runs once, when the user has
/// closed the window; the unit may be gone afterwards, and the view deletes itself.
class SecondWindow : public QDialog {
 public:
    /// `name`: under which the window's position is kept.
    SecondWindow(QString name, std::function<void()> closed, QWidget* parent);

 protected:
    /// Whether the user may close the window; without this, always.
    std::function<bool()> may_close;

    /// To be called when all widgets are there: takes the kept position, and shows and hides the
    /// window with `form`.
    void Follow(Form& form);

    void done(int result) override;

 private:
    QString name_;
    std::function<void()> closed_;
};

}  // namespace bannersmith
