#include "desktop/text_editor_view.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QShortcut>
#include <utility>

#include "desktop/binding.h"
#include "desktop/fields.h"
#include "desktop/fonts.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

namespace bannersmith {

TextEditorView::TextEditorView(frmHC& editor, std::function<void()> closed, QWidget* parent)
    : SecondWindow("text editor", std::move(closed), parent) {
    setWindowTitle("\"Hardcore\" Manual Text Editor");
    auto* names = new ListBox;
    names->setMinimumWidth(145);
    // The width is not that of the longest name, of which a damaged file can have millions.
    names->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    names->setToolTip(Said("The text boxes of the layout, in the order of the file"));
    auto* value = new QLineEdit;
    value->setMinimumWidth(193);
    value->setFont(Japanese_Font(FieldFont, value->font().pointSizeF()));
    value->setToolTip(Said("The box's text; ^ is a line break"));

    auto* grid = new QGridLayout(this);
    grid->addWidget(Make_Label("&Entry Name:", names), 0, 0);
    grid->addWidget(names, 0, 1);
    grid->addWidget(Make_Label("&Value:", value), 0, 2);
    grid->addWidget(value, 0, 3);
    auto* set = Make_Button("Set", Said("Write the text into the chosen box"),
                            QKeySequence("Ctrl+Return"), [&editor] { editor.cmdSet_Click(); });
    grid->addWidget(set, 1, 0, 1, 4);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(3, 3);

    Bind(*names, editor.cmbHC);
    Bind(*value, editor.txtHC);
    Leave_Undo_To_Window(*value, editor.txtHC);
    new QShortcut(QKeySequence::Undo, this, [&editor] { editor.Undo_Click(); });
    new QShortcut(QKeySequence("Ctrl+Shift+Z"), this, [&editor] { editor.Redo_Click(); });
    may_close = [&editor] { return editor.Settle(); };
    setFixedHeight(sizeHint().height());
    Follow(editor.form);
}

}  // namespace bannersmith
