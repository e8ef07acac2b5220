#include "desktop/fields.h"

#include <QApplication>
#include <QKeyEvent>

#include "desktop/binding.h"
#include "desktop/fonts.h"

namespace bannersmith {

namespace {

/// A box takes these keys for itself by accepting an event that asks for that.
class UndoOfWindow : public QObject {
 public:
    UndoOfWindow(QLineEdit& edit, const TextBox& box) : QObject(&edit), box_(box) {}

 protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride || !box_.Mark().empty()) return false;
        auto& key = static_cast<QKeyEvent&>(*event);
        const bool passes = key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
        if (passes) key.ignore();
        return passes;
    }

 private:
    const TextBox& box_;
};

}  // namespace

void Leave_Undo_To_Window(QLineEdit& edit, const TextBox& box) {
    edit.installEventFilter(new UndoOfWindow(edit, box));
}

QLineEdit* Make_Field(TextBox& box, bool bold) {
    auto* edit = new QLineEdit;
    QFont font = Japanese_Font(FieldFont, QApplication::font().pointSizeF());
    font.setBold(bold);
    edit->setFont(font);
    Bind(*edit, box);
    Leave_Undo_To_Window(*edit, box);
    return edit;
}

}  // namespace bannersmith
