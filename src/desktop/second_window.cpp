#include "desktop/second_window.h"

#include <utility>

#include "desktop/settings.h"

namespace bannersmith {

SecondWindow::SecondWindow(QString name, std::function<void()> closed, QWidget* parent)
    : QDialog(parent), name_(std::move(name)), closed_(std::move(closed)) {}

void SecondWindow::Follow(Form& form) {
    form.Shown = [this, &form] { setVisible(form.Visible()); };
    Restore_Position(*this, name_);
}

/// Escape, the close box and the window manager all end here.
void SecondWindow::done(int result) {
    if (may_close && closed_ && !may_close()) return;
    Store_Position(*this, name_);
    QDialog::done(result);
    deleteLater();
    if (closed_) std::exchange(closed_, {})();
}

}  // namespace bannersmith
