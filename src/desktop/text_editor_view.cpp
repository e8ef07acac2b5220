#include "desktop/text_editor_view.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <utility>

#include "desktop/binding.h"
#include "desktop/fonts.h"
#include "desktop/widgets.h"

TextEditorView::TextEditorView(frmHC& editor, std::function<void()> closed, QWidget* parent)
    : QDialog(parent), closed_(std::move(closed)) {
    setWindowTitle("\"Hardcore\" Manual Text Editor");
    auto* names = new QComboBox;
    names->setMinimumWidth(145);
    names->setToolTip("The text boxes of the layout, in the order of the file");
    auto* value = new QLineEdit;
    value->setMinimumWidth(193);
    value->setFont(Japanese_Font(u"Wii NTLG PGothic Regular", value->font().pointSizeF()));
    value->setToolTip("The box's text; ^ is a line break");

    auto* grid = new QGridLayout(this);
    grid->addWidget(Make_Label("&Entry Name:", names), 0, 0);
    grid->addWidget(names, 0, 1);
    grid->addWidget(Make_Label("&Value:", value), 0, 2);
    grid->addWidget(value, 0, 3);
    auto* set = Make_Button("Set", "Write the text into the chosen box",
                            QKeySequence("Ctrl+Return"), [&editor] { editor.cmdSet_Click(); });
    grid->addWidget(set, 1, 0, 1, 4);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(3, 3);

    Bind(*names, editor.cmbHC);
    Bind(*value, editor.txtHC);
    editor.form.Shown = [this, &editor] { setVisible(editor.form.Visible()); };
    setFixedHeight(sizeHint().height());
    Restore_Position(*this, "text editor");
}

/// Escape, the close box and the window manager all end here.
void TextEditorView::done(int result) {
    Store_Position(*this, "text editor");
    QDialog::done(result);
    deleteLater();
    if (closed_) std::exchange(closed_, {})();
}
