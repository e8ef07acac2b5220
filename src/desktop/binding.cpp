#include "desktop/binding.h"

#include <QSignalBlocker>

#include "desktop/text.h"

void Bind(QLineEdit& edit, TextBox& box) {
    constexpr int LongestText = 1 << 20;
    edit.setMaxLength(LongestText);
    // Not while the person types: setting a text moves the cursor.
    box.Shown = [&edit, &box] {
        if (Taken(edit.text()) == box.Text()) return;
        edit.setText(Shown(box.Text()));
        edit.setCursorPosition(0);  // so that a long text shows its beginning
    };
    box.Shown.Raise();
    QObject::connect(&edit, &QLineEdit::textEdited,
                     [&box](const QString& text) { box.Set(Taken(text)); });
}

/// A list changes by being emptied or by an entry at its end, so the entries that the widget has
/// are right as long as it has no more than the list.
void Bind(QComboBox& combo, DropDownList& list) {
    list.Shown = [&combo, &list] {
        const QSignalBlocker quiet(combo);
        if (combo.count() > list.Count()) combo.clear();
        for (int i = combo.count(); i < list.Count(); ++i) {
            combo.addItem(Shown(list.Entries()[static_cast<std::size_t>(i)]));
        }
        combo.setCurrentIndex(list.Index());
    };
    list.Shown.Raise();
    QObject::connect(&combo, &QComboBox::activated, [&list](int index) { list.Pick(index); });
}

void Bind(QLabel& shown, Label& label) {
    label.Shown = [&shown, &label] { shown.setText(Shown(label.Caption())); };
    label.Shown.Raise();
}
