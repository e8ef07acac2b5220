#include "desktop/binding.h"

#include <QSignalBlocker>

#include "desktop/marks.h"
#include "desktop/text.h"

namespace bannersmith {

void Bind(QLineEdit& edit, TextBox& box) {
    constexpr int LongestText = 1 << 20;
    edit.setMaxLength(LongestText);
    // Not while the person types: setting a text moves the cursor.
    box.Shown = [&edit, &box] {
        Show_Mark(edit, box.Mark());
        if (Taken(edit.text()) == box.Text()) return;
        edit.setText(Shown(box.Text()));
        edit.setCursorPosition(0);  // so that a long text shows its beginning
    };
    box.Shown.Raise();
    QObject::connect(&edit, &QLineEdit::textEdited,
                     [&box](const QString& text) { box.Set(Taken(text)); });
}

/// A list changes by being emptied or by entries at its end, so the widget's are right as long as
/// there are as many.
void Bind(ListBox& box, DropDownList& list) {
    list.Shown = [&box, &list] {
        const QSignalBlocker quiet(box);
        if (box.count() != list.Count()) {
            QStringList entries;
            for (const std::u16string& entry : list.Entries()) entries << Shown(entry);
            box.Show_Entries(entries);
        }
        box.setCurrentIndex(list.Index());
        box.Mark_Selected(!list.Mark().empty());
        Show_Mark(box, list.Mark());
    };
    list.Shown.Raise();
    if (list.picture_of) {
        box.Show_Pictures([&list](int index) -> QIcon {
            const auto picture = list.picture_of(index);
            return picture ? QIcon(Shown_Picture(*picture, ListBox::PictureRoom)) : QIcon();
        });
    }
    QObject::connect(&box, &QComboBox::activated, [&list](int index) { list.Pick(index); });
}

void Bind(QLabel& shown, PictureBox& picture) {
    picture.Shown = [&shown, &picture] {
        const Picture& value = picture.Value();
        if (value.texels.empty()) return;
        shown.setPixmap(Shown_Picture(value, PictureSize));
    };
    picture.Shown.Raise();
}

void Bind(QLabel& shown, Label& label) {
    label.Shown = [&shown, &label] { shown.setText(Shown(label.Caption())); };
    label.Shown.Raise();
}

}  // namespace bannersmith
