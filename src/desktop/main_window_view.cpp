#include "desktop/main_window_view.h"

#include <QCloseEvent>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMimeData>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QUrl>
#include <utility>

#include "desktop/binding.h"
#include "desktop/color_window_view.h"
#include "desktop/fonts.h"
#include "desktop/game_picture_view.h"
#include "desktop/live_view_widget.h"
#include "desktop/text.h"
#include "desktop/text_editor_view.h"
#include "desktop/widgets.h"

using namespace bannersmith;

namespace {

constexpr double FieldPoints = 8.25;

/// The columns of the frame "Game Info".
enum Column { caption, field, selector, set, set_all, columns };

QLineEdit* Make_Field(TextBox& box, bool bold) {
    auto* edit = new QLineEdit;
    QFont font = Japanese_Font(FieldFont, FieldPoints);
    font.setBold(bold);
    edit->setFont(font);
    Bind(*edit, box);
    return edit;
}

QComboBox* Make_List(DropDownList& list, const QString& tooltip) {
    auto* combo = new ListBox;
    combo->setToolTip(tooltip);
    Bind(*combo, list);
    return combo;
}

/// A page with the frame in its natural height.
QWidget* At_The_Top(QWidget* frame) {
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins({});
    rows->addWidget(frame);
    rows->addStretch(1);
    return page;
}

/// Never as a move, after which the file would be deleted where it was.
void Take_As_Copy(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

}  // namespace

MainWindowView::MainWindowView(Form1& window) : window_(window) {
    setWindowTitle("Bannersmith[*]");
    setAcceptDrops(true);
    drag_ended_.setSingleShot(true);
    connect(&drag_ended_, &QTimer::timeout, this, &MainWindowView::Take_Dropped_File);
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    auto* halves = new QSplitter;
    halves->setChildrenCollapsible(false);
    halves->addWidget(Make_Pages());
    halves->addWidget(new LiveViewWidget(window_.live));
    halves->setStretchFactor(1, 1);
    rows->addWidget(halves, 1);
    rows->addWidget(Make_File_Frame());
    auto* save = Make_Button("&Save Changes", "Write the layout file", QKeySequence::Save,
                             [this] { window_.cmdSave_Click(); });
    rows->addWidget(save);
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
    window_.PictureWindowMade = [this] {
        new GamePictureView(
            *window_.PictureWindow, [this] { window_.Close_Picture_Window(); }, this);
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

/// One page, without a tab, unless the banner has names for the console's menu.
QWidget* MainWindowView::Make_Pages() {
    auto* pages = new QTabWidget;
    pages->setDocumentMode(true);
    pages->setTabBarAutoHide(true);
    pages->addTab(At_The_Top(Make_Game_Info()), "&Banner");
    QWidget* names = At_The_Top(Make_Channel_Names());
    names->setParent(this);
    names->hide();
    window_.names.page.Shown = [this, pages, names] {
        const bool visible = window_.names.page.Visible();
        if (visible) pages->addTab(names, "C&hannel names");
        if (!visible) pages->removeTab(pages->indexOf(names));
    };
    return pages;
}

QWidget* MainWindowView::Make_Channel_Names() {
    auto* page = new QGroupBox("Channel names");
    auto* grid = new QGridLayout(page);
    grid->addWidget(new QLabel("Up to 20 characters a line, as the console's menu shows them"), 0,
                    1, 1, 2);
    int row = 1;
    for (std::size_t language = 0; language < NameLanguages.size(); ++language, ++row) {
        const QString code = Shown(std::u16string(NameLanguages[language]));
        grid->addWidget(new QLabel(code + ":"), row, 0);
        for (std::size_t line = 0; line < NameLines; ++line) {
            QLineEdit* edit = Make_Field(window_.names.txtNames[language][line], false);
            edit->setAccessibleName(QString("%1, line %2").arg(code).arg(line + 1));
            edit->setMinimumHeight(edit->sizeHint().height());  // the window grows instead
            grid->addWidget(edit, row, 1 + static_cast<int>(line));
        }
    }
    grid->addWidget(Make_Button("Set", "Write the names that differ", {},
                                [this] { window_.cmdSetNames_Click(); }),
                    row, 1, 1, 2);
    return page;
}

QWidget* MainWindowView::Make_Game_Info() {
    GameInfo& info = window_.info;
    auto* frame = new QGroupBox("Game Info");
    auto* grid = new QGridLayout(frame);
    Add_Field(*grid, 0, "&Name:", info.txtName, true);
    Add_Selector(*grid, 0, "name", Field::title, 0, 0);
    Add_Field(*grid, 1, "S&ystem:", info.txtSystem, true);
    grid->addWidget(Set_All_Button("Set", "Write the console's name", 3), 1, set);
    Add_Field(*grid, 2, "Y&ear:", info.txtYear, true);
    Add_Selector(*grid, 2, "year", Field::year, 1, 1);
    Add_Players(*grid, 3);
    Add_Field(*grid, 4, "ESRB &Rating:", info.txtESRB, false);
    Add_Selector(*grid, 4, "rating", Field::rating, 2, 4);
    auto* hardcore =
        Make_Button("Hardcore Manual Text Editor", "Show and replace the text of any text box",
                    QKeySequence("Ctrl+T"), [this] { window_.cmdHC_Click(); });
    grid->addWidget(hardcore, 5, 0, 1, columns);
    grid->addLayout(Make_Padding_Row(), 6, 0, 1, columns);
    Add_Looks(*grid, 7);
    grid->setColumnStretch(field, 1);
    return frame;
}

void MainWindowView::Add_Field(QGridLayout& grid, int row, const QString& name, TextBox& box,
                               bool bold) {
    QLineEdit* edit = Make_Field(box, bold);
    edit->setMinimumWidth(220);
    grid.addWidget(Make_Label(name, edit), row, caption);
    grid.addWidget(edit, row, field);
}

/// The language list behind a field, and the buttons that write the field for that language or for
/// all, by their indexes.
void MainWindowView::Add_Selector(QGridLayout& grid, int row, const QString& name, Field list,
                                  std::int16_t set_index, std::int16_t set_all_index) {
    auto* combo = Make_List(window_.info.cmbRegion[static_cast<std::size_t>(list)],
                            "The language of the " + name + " shown");
    combo->setAccessibleName("Language of the " + name);
    grid.addWidget(combo, row, selector);
    grid.addWidget(Make_Button("Set", "Write the " + name + " for this language", {},
                               [this, set_index] { window_.cmdSet_Click(set_index); }),
                   row, set);
    grid.addWidget(
        Set_All_Button("Set All", "Write the " + name + " for every language", set_all_index), row,
        set_all);
}

QPushButton* MainWindowView::Set_All_Button(const QString& name, const QString& tooltip,
                                            std::int16_t index) {
    return Make_Button(name, tooltip, {}, [this, index] { window_.cmdSetAll_Click(index); });
}

/// The number of players needs little room and has no language of its own.
void MainWindowView::Add_Players(QGridLayout& grid, int row) {
    QLineEdit* narrow = Make_Field(window_.info.txtPlayers, true);
    narrow->setAlignment(Qt::AlignCenter);
    narrow->setFixedWidth(48);
    auto* players = new QHBoxLayout;
    players->addWidget(narrow);
    players->addWidget(Set_All_Button("Set", "Write the number of players for every language", 2));
    players->addWidget(new QLabel("No Dashes!!  (E.g.  Type \"2\" for \"1-2\")"), 1);
    grid.addWidget(Make_Label("&Players:", narrow), row, caption);
    grid.addLayout(players, row, field, 1, columns - field);
}

/// What a save does beside writing the texts.
void MainWindowView::Add_Looks(QGridLayout& grid, int row) {
    auto* schemes = Make_List(window_.cmbFileList, "The color scheme that the next save applies");
    auto* logos =
        Make_List(window_.cmbLogo, "The logo texture that the next save puts into the banner");
    auto* force =
        Make_List(window_.cmbForce, "The language that the next save lets another one answer to");
    grid.addWidget(Make_Label("&Colors:", schemes), row, caption);
    grid.addWidget(schemes, row, field);
    grid.addWidget(Make_Button("Color Editor And Preview", "Edit colors and see the banner",
                               QKeySequence("Ctrl+P"), [this] { window_.cmdEditColor_Click(); }),
                   row, selector, 1, columns - selector);
    grid.addWidget(Make_Label("&Logo:", logos), row + 1, caption);
    grid.addWidget(logos, row + 1, field);
    grid.addWidget(Make_Button("Game Pic&ture...", "See, replace and export the game's picture",
                               QKeySequence("Ctrl+G"), [this] { window_.cmdPicture_Click(); }),
                   row + 1, selector, 1, columns - selector);
    grid.addWidget(Make_Label("Region &Force:", force), row + 2, caption);
    grid.addWidget(force, row + 2, field, Qt::AlignLeft);
}

QBoxLayout* MainWindowView::Make_Padding_Row() {
    auto* padding = new QLineEdit;
    padding->setFixedWidth(padding->fontMetrics().horizontalAdvance("+2684354560"));
    padding->setToolTip("Length to fill the file up to; +N appends N bytes; 0 for none");
    Bind(*padding, window_.txtPad);
    auto* row = new QHBoxLayout;
    row->addWidget(Make_Label("Paddin&g (fixes corrupted images)", padding));
    row->addWidget(padding);
    row->addStretch();
    return row;
}

QWidget* MainWindowView::Make_File_Frame() {
    auto* frame = new QGroupBox;
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
    const bool can_copy = event->possibleActions().testFlag(Qt::CopyAction);
    if (window_.form.Enabled() && files.size() == 1 && files[0].isLocalFile() && can_copy) {
        Take_As_Copy(*event);
    }
}

void MainWindowView::dropEvent(QDropEvent* event) {
    Take_As_Copy(*event);
    const QString file = event->mimeData()->urls().value(0).toLocalFile();
    dropped_file_ = Taken(QDir::toNativeSeparators(file));
    drag_ended_.start(0);
}

/// Not before the drag has ended: a question would hold up the program that the file comes from.
void MainWindowView::Take_Dropped_File() {
    activateWindow();
    if (window_.form.Enabled()) window_.Take_File(dropped_file_);
}
