#include "desktop/main_window_view.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMimeData>
#include <QStatusBar>
#include <QUrl>

#include "desktop/binding.h"
#include "desktop/color_window_view.h"
#include "desktop/fonts.h"
#include "desktop/text.h"
#include "desktop/text_editor_view.h"
#include "desktop/widgets.h"

namespace {

constexpr std::u16string_view ConsoleFont = u"Wii NTLG PGothic Regular";
constexpr double FieldPoints = 8.25;

/// The columns of the frame "Game Info".
enum Column { caption, field, selector, set, set_all, columns };

QComboBox* Make_List(DropDownList& list, const QString& tooltip) {
    auto* combo = new QComboBox;
    combo->setToolTip(tooltip);
    Bind(*combo, list);
    return combo;
}

}  // namespace

MainWindowView::MainWindowView(Form1& window) : window_(window) {
    setWindowTitle("Bannersmith[*]");
    setAcceptDrops(true);
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->addWidget(Make_Game_Info());
    rows->addWidget(Make_File_Frame());
    auto* save = Make_Button("&Save Changes", "Write the layout file", QKeySequence::Save,
                             [this] { window_.cmdSave_Click(); });
    rows->addWidget(save);
    rows->addStretch();
    setCentralWidget(content);
    Make_Status_Line();
    // A file is dropped on the window, not into the text under the pointer.
    for (QLineEdit* edit : findChildren<QLineEdit*>()) edit->setAcceptDrops(false);

    window_.form.Shown = [this] { Show_State(); };
    window_.ColorWindowMade = [this] {
        new ColorWindowView(
            *window_.ColorWindow, [this] { window_.Close_Color_Window(); }, this);
    };
    window_.TextEditorMade = [this] {
        new TextEditorView(
            *window_.TextEditor, [this] { window_.Close_Text_Editor(); }, this);
    };
    Restore_Position(*this, "main window");
}

void MainWindowView::Show_State() {
    setVisible(window_.form.Visible());
    // Not the window itself, which would take the windows in front of it along.
    const bool enabled = window_.form.Enabled();
    if (!enabled && centralWidget()->isEnabled()) focus_before_ = centralWidget()->focusWidget();
    centralWidget()->setEnabled(enabled);
    if (enabled && focus_before_ != nullptr) std::exchange(focus_before_, nullptr)->setFocus();
}

QWidget* MainWindowView::Make_Game_Info() {
    GameInfo& info = window_.info;
    auto* frame = new QGroupBox("Game Info");
    auto* grid = new QGridLayout(frame);
    const auto button = [this, grid](int row, int column, const char* name, const QString& tooltip,
                                     auto command) {
        grid->addWidget(Make_Button(name, tooltip, {}, [this, command] { command(window_); }), row,
                        column);
    };

    Add_Field(*grid, 0, "&Name:", info.txtName, true);
    Add_Selector(*grid, 0, "name", info.cmbRegion[GameInfo::title]);
    button(0, set, "Set", "Write the name for this language", [](Form1& w) { w.cmdSet_Click(0); });
    button(0, set_all, "Set All", "Write the name for every language",
           [](Form1& w) { w.cmdSetAll_Click(0); });

    Add_Field(*grid, 1, "S&ystem:", info.txtSystem, true);
    button(1, set, "Set", "Write the console's name", [](Form1& w) { w.cmdSetAll_Click(3); });

    Add_Field(*grid, 2, "Y&ear:", info.txtYear, true);
    Add_Selector(*grid, 2, "year", info.cmbRegion[GameInfo::year]);
    button(2, set, "Set", "Write the year for this language", [](Form1& w) { w.cmdSet_Click(1); });
    button(2, set_all, "Set All", "Write the year for every language",
           [](Form1& w) { w.cmdSetAll_Click(1); });

    auto* players = new QHBoxLayout;
    auto* narrow = new QLineEdit;
    narrow->setFont(Japanese_Font(ConsoleFont, FieldPoints));
    narrow->setAlignment(Qt::AlignCenter);
    narrow->setFixedWidth(48);
    QFont bold = narrow->font();
    bold.setBold(true);
    narrow->setFont(bold);
    Bind(*narrow, info.txtPlayers);
    players->addWidget(narrow);
    players->addWidget(Make_Button("Set", "Write the number of players for every language", {},
                                   [this] { window_.cmdSetAll_Click(2); }));
    players->addWidget(new QLabel("No Dashes!!  (E.g.  Type \"2\" for \"1-2\")"), 1);
    grid->addWidget(Make_Label("&Players:", narrow), 3, caption);
    grid->addLayout(players, 3, field, 1, columns - field);

    Add_Field(*grid, 4, "ESRB &Rating:", info.txtESRB, false);
    Add_Selector(*grid, 4, "rating", info.cmbRegion[GameInfo::rating]);
    button(4, set, "Set", "Write the rating for this language",
           [](Form1& w) { w.cmdSet_Click(2); });
    button(4, set_all, "Set All", "Write the rating for every language",
           [](Form1& w) { w.cmdSetAll_Click(4); });

    auto* hardcore =
        Make_Button("Hardcore Manual Text Editor", "Show and replace the text of any text box",
                    QKeySequence("Ctrl+T"), [this] { window_.cmdHC_Click(); });
    grid->addWidget(hardcore, 5, 0, 1, columns);
    grid->addLayout(Make_Padding_Row(), 6, 0, 1, columns);

    auto* schemes = Make_List(window_.cmbFileList, "The color scheme that the next save applies");
    auto* edit_colors =
        Make_Button("Color Editor And Preview", "Edit colors and see the banner",
                    QKeySequence("Ctrl+P"), [this] { window_.cmdEditColor_Click(); });
    grid->addWidget(Make_Label("&Colors:", schemes), 7, caption);
    grid->addWidget(schemes, 7, field);
    grid->addWidget(edit_colors, 7, selector, 1, columns - selector);

    auto* logos =
        Make_List(window_.cmbLogo, "The logo texture that the next save puts into the banner");
    grid->addWidget(Make_Label("&Logo:", logos), 8, caption);
    grid->addWidget(logos, 8, field);

    auto* force =
        Make_List(window_.cmbForce, "The language that the next save lets another one answer to");
    grid->addWidget(Make_Label("Region &Force:", force), 9, caption);
    grid->addWidget(force, 9, field, Qt::AlignLeft);
    grid->setColumnStretch(field, 1);
    return frame;
}

void MainWindowView::Add_Field(QGridLayout& grid, int row, const QString& name, TextBox& box,
                               bool bold) {
    auto* edit = new QLineEdit;
    QFont font = Japanese_Font(ConsoleFont, FieldPoints);
    font.setBold(bold);
    edit->setFont(font);
    edit->setMinimumWidth(220);
    Bind(*edit, box);
    grid.addWidget(Make_Label(name, edit), row, caption);
    grid.addWidget(edit, row, field);
}

void MainWindowView::Add_Selector(QGridLayout& grid, int row, const QString& name,
                                  DropDownList& list) {
    auto* combo = Make_List(list, "The language of the " + name + " shown");
    combo->setAccessibleName("Language of the " + name);
    grid.addWidget(combo, row, selector);
}

QBoxLayout* MainWindowView::Make_Padding_Row() {
    auto* padding = new QLineEdit;
    padding->setFixedWidth(90);
    padding->setToolTip("Length to fill the file up to; +N appends N bytes; 0 for none");
    Bind(*padding, window_.txtPad);
    auto* row = new QHBoxLayout;
    row->addWidget(Make_Label("Paddin&g (fixes corrupted images)", padding));
    row->addWidget(padding);
    row->addStretch();
    return row;
}

QWidget* MainWindowView::Make_File_Frame() {
    auto* frame = new QFrame;
    frame->setFrameStyle(QFrame::StyledPanel);
    auto* path = new QLineEdit;
    path->setToolTip("The layout file; a path that begins with \\ is below the program's folder");
    Bind(*path, window_.txtSrc);
    auto* browse = Make_Button("....", "Choose a layout file", QKeySequence::Open,
                               [this] { window_.cmdFileBrowse_Click(); });
    browse->setAccessibleName("Browse");
    auto* row = new QHBoxLayout(frame);
    row->addWidget(Make_Label("F&ile:", path));
    row->addWidget(path, 1);
    row->addWidget(browse);
    return frame;
}

void MainWindowView::Make_Status_Line() {
    auto* loaded = new ElidedLabel;
    auto* last = new ElidedLabel;
    auto* lines = new QWidget;
    auto* rows = new QVBoxLayout(lines);
    rows->setContentsMargins(4, 0, 0, 2);
    rows->setSpacing(0);
    for (ElidedLabel* line : {loaded, last}) {
        line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        rows->addWidget(line);
    }
    statusBar()->addWidget(lines, 1);
    window_.lblLastCommand.Shown = [this, last] {
        last->Show_Text(Shown(window_.lblLastCommand.Caption()));
    };
    window_.lblLoaded.Shown = [this, loaded] {
        loaded->Show_Text(Shown(window_.lblLoaded.Caption()));
        setWindowModified(window_.Has_Unsaved_Changes());
    };
}

void MainWindowView::closeEvent(QCloseEvent* event) {
    event->setAccepted(window_.May_Close());
    if (event->isAccepted()) Store_Position(*this, "main window");
}

void MainWindowView::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> files = event->mimeData()->urls();
    if (window_.form.Enabled() && files.size() == 1 && files[0].isLocalFile())
        event->acceptProposedAction();
}

void MainWindowView::dropEvent(QDropEvent* event) {
    window_.Take_File(Taken(event->mimeData()->urls().value(0).toLocalFile()));
    event->acceptProposedAction();
}
