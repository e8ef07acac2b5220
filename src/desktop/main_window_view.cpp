#include "desktop/main_window_view.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QUrl>
#include <utility>

#include "base/text.h"
#include "desktop/binding.h"
#include "desktop/color_window_view.h"
#include "desktop/game_info_view.h"
#include "desktop/game_picture_view.h"
#include "desktop/language_table_view.h"
#include "desktop/live_view_widget.h"
#include "desktop/settings.h"
#include "desktop/text.h"
#include "desktop/text_editor_view.h"
#include "desktop/widgets.h"

using namespace bannersmith;

namespace {

constexpr char WindowName[] = "main window", SplitName[] = "main window split";

/// As large as what it holds, where there is room.
class Page : public QScrollArea {
 public:
    QSize sizeHint() const override { return widget()->sizeHint(); }
};

QWidget* Scrolled(QWidget* widget, Qt::ScrollBarPolicy sideways) {
    auto* scrolled = new Page;
    scrolled->setFrameStyle(QFrame::NoFrame);
    scrolled->setFocusPolicy(Qt::NoFocus);
    scrolled->setHorizontalScrollBarPolicy(sideways);
    scrolled->setWidgetResizable(true);
    scrolled->setWidget(widget);
    return scrolled;
}

/// A page with the frame in its natural height; what does not fit is scrolled to.
QWidget* At_The_Top(QWidget* frame) {
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(0, 0, 4, 0);
    rows->addWidget(frame);
    rows->addStretch(1);
    QWidget* scrolled = Scrolled(page, Qt::ScrollBarAlwaysOff);
    scrolled->setMinimumWidth(page->minimumSizeHint().width());
    return scrolled;
}

/// Never as a move, after which the file would be deleted where it was.
void Take_As_Copy(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

}  // namespace

MainWindowView::MainWindowView(Form1& window) : window_(window), menu_(*this, window) {
    setAcceptDrops(true);
    for (QTimer* timer : {&drag_ended_, &back_}) timer->setSingleShot(true);
    connect(&drag_ended_, &QTimer::timeout, this, &MainWindowView::Take_Dropped_File);
    connect(&back_, &QTimer::timeout, this, [this] { window_.Look_At_File(); });
    setCentralWidget(Make_Content());
    Make_Status_Line();
    for (QLineEdit* edit : findChildren<QLineEdit*>()) {
        // A file is dropped on the window, not into the text under the pointer.
        edit->setAcceptDrops(false);
        if (edit->accessibleName() == "Name") edit->setFocus();
    }
    window_.form.Shown = [this] { Show_State(); };
    Follow_Other_Windows();
    Show_Title();
    resize(sizeHint().boundedTo(screen()->availableSize()));
    Restore_Position(*this, WindowName);
}

QWidget* MainWindowView::Make_Content() {
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->addWidget(first_hint_ = Make_First_Hint());
    rows->addWidget(Scrolled(Make_Halves(), Qt::ScrollBarAsNeeded), 1);
    rows->addWidget(Make_File_Frame());
    rows->addWidget(Make_Save_Button());
    return content;
}

/// For whoever starts the editor first, which shows the sample channel then; not seen with a file
/// of the user's own.
QWidget* MainWindowView::Make_First_Hint() {
    auto* hint = new QFrame;
    hint->setObjectName("first hint");
    hint->setFrameShape(QFrame::StyledPanel);
    hint->setAutoFillBackground(true);
    hint->setBackgroundRole(QPalette::ToolTipBase);
    hint->setForegroundRole(QPalette::ToolTipText);
    auto* text = new QLabel(Filled(
        Said("This is a sample. Type a name, press Set All, and see the banner change; nothing is "
             "written before Save Changes. Open your own file with %1, or drop it here. %2 shows "
             "the manual."),
        menu_.open->shortcut().toString(QKeySequence::NativeText), "F1"));
    text->setWordWrap(true);
    text->setForegroundRole(QPalette::ToolTipText);
    auto* row = new QHBoxLayout(hint);
    row->addWidget(text, 1);
    row->addWidget(Make_Button(Said("Got it"), Said("Do not show this hint again"), {}, [hint] {
        Hide_First_Hint();
        hint->hide();
    }));
    hint->hide();
    return hint;
}

QWidget* MainWindowView::Make_Halves() {
    halves_ = new QSplitter;
    halves_->setChildrenCollapsible(false);
    halves_->addWidget(Make_Pages());
    halves_->addWidget(new LiveViewWidget(window_.live));
    halves_->setStretchFactor(1, 1);
    halves_->restoreState(Settings().value(SplitName).toByteArray());
    return halves_;
}

/// One page, without a tab, unless the banner has names for the console's menu.
QWidget* MainWindowView::Make_Pages() {
    auto* pages = new QTabWidget;
    pages->setDocumentMode(true);
    pages->setTabBarAutoHide(true);
    pages->addTab(At_The_Top(Make_Game_Info(window_, menu_)), Said("&Banner"));
    QWidget* names = At_The_Top(Make_Channel_Names(window_));
    names->setParent(this);
    names->hide();
    window_.names.page.Shown = [this, pages, names] {
        const bool visible = window_.names.page.Visible();
        if (visible) pages->addTab(names, Said("Channel na&mes"));
        if (!visible) pages->removeTab(pages->indexOf(names));
    };
    return pages;
}

QWidget* MainWindowView::Make_File_Frame() {
    auto* frame = new QGroupBox;
    auto* path = new QLineEdit;
    path->setToolTip(
        Said("The layout file; a path that begins with \\ is below the program's folder"));
    path->setPlaceholderText(Said("Drop a channel's file, a layout or a folder here"));
    Bind(*path, window_.txtSrc);
    connect(path, &QLineEdit::editingFinished, this, [this] { window_.txtSrc_Leave(); });
    auto* browse = Make_Button("....", Said("Choose a layout file"), *menu_.open);
    browse->setAccessibleName(Said("Browse"));
    auto* row = new QHBoxLayout(frame);
    row->addWidget(Make_Label("F&ile:", path));
    row->addWidget(path, 1);
    row->addWidget(browse);
    return frame;
}

/// In colours of its own, as it is the one that writes; not by a palette, which some styles ignore.
QWidget* MainWindowView::Make_Save_Button() {
    QPushButton* save = Make_Button("&Save Changes", Said("Write the layout file"), *menu_.save);
    save->setStyleSheet(
        "QPushButton { background: #1A5C97; color: white; font-weight: bold; padding: 5px;"
        " border: 1px solid #12436E; border-radius: 3px; }"
        "QPushButton:hover { background: #2268A8; } QPushButton:pressed { background: #12436E; }"
        "QPushButton:focus { border: 2px solid palette(text); padding: 4px; }"
        "QPushButton:disabled { background: #6A7681; color: #E4E4E4; border-color: #6A7681; }");
    return save;
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
        Show_Title();
    };
}

void MainWindowView::Follow_Other_Windows() {
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
    window_.TableWindowMade = [this] {
        new LanguageTableView(
            *window_.TableWindow, [this] { window_.Close_Table_Window(); }, this);
    };
}

/// File and folder in front, as a list of windows has room for the beginning.
void MainWindowView::Show_Title() {
    const std::u16string file = window_.Loaded_File();
    first_hint_->setVisible(window_.Shows_A_Sample() && Shows_First_Hint());
    setWindowModified(window_.Has_Unsaved_Changes());
    if (file.empty()) return setWindowTitle("Bannersmith[*]");
    const QFileInfo path(Shown(file).replace('\\', '/'));
    setWindowTitle(path.fileName() + "[*] \u2013 " + QDir::toNativeSeparators(path.path()) +
                   " \u2013 Bannersmith");
    Remember_File(QDir::toNativeSeparators(path.filePath()));
}

void MainWindowView::Show_State() {
    setVisible(window_.form.Visible());
    // Not the window itself, which would take the windows in front of it along.
    const bool enabled = window_.form.Enabled();
    if (!enabled && centralWidget()->isEnabled()) focus_before_ = centralWidget()->focusWidget();
    centralWidget()->setEnabled(enabled);
    menu_.Set_Enabled(enabled);
    if (enabled && focus_before_ != nullptr) std::exchange(focus_before_, nullptr)->setFocus();
}

void MainWindowView::closeEvent(QCloseEvent* event) {
    event->setAccepted(window_.May_Close());
    if (!event->isAccepted()) return;
    Store_Position(*this, WindowName);
    Settings().setValue(SplitName, halves_->saveState());
}

/// Not at once: a question in the middle of a change of windows would come back to this.
void MainWindowView::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) back_.start(0);
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
