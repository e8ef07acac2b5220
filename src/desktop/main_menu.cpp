#include "desktop/main_menu.h"

#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include "base/text.h"
#include "desktop/help_window.h"
#include "desktop/languages.h"
#include "desktop/settings.h"
#include "desktop/text.h"

namespace bannersmith {

MainMenu::MainMenu(QMainWindow& view, Form1& window) : view_(view), window_(window) {
    Add_File_Menu();
    Add_Edit_Menu();
    Add_View_Menu();
    Add_Help_Menu();
}

void MainMenu::Set_Enabled(bool enabled) {
    for (QAction* command : commands_) command->setEnabled(enabled);
    if (enabled) Show_History();
}

QAction* MainMenu::Add(QMenu& menu, const QString& text, const QKeySequence& key,
                       std::function<void()> run) {
    auto* action = menu.addAction(text);
    connect(action, &QAction::triggered, this, std::move(run));
    action->setShortcut(key);
    commands_ << action;
    return action;
}

void MainMenu::Add_File_Menu() {
    QMenu& menu = *view_.menuBar()->addMenu(Said("&File"));
    open =
        Add(menu, Said("&Open..."), QKeySequence::Open, [this] { window_.cmdFileBrowse_Click(); });
    QMenu* recent = menu.addMenu(Said("Open &Recent"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { Fill_Recent(*recent); });
    Add(menu, Said("Re&load"), QKeySequence::Refresh, [this] { window_.cmdReload_Click(); });
    menu.addSeparator();
    save =
        Add(menu, Said("&Save Changes"), QKeySequence::Save, [this] { window_.cmdSave_Click(); });
    menu.addSeparator();
    Add(menu, Said("&Quit"), QKeySequence("Ctrl+Q"), [this] { view_.close(); });
}

void MainMenu::Fill_Recent(QMenu& menu) {
    menu.clear();
    for (const QString& file : Recent_Files()) {
        menu.addAction(QString(file).replace("&", "&&"), this,
                       [this, file] { window_.Take_File(Taken(file)); });
    }
    if (menu.isEmpty()) menu.addAction(Said("No file yet"))->setEnabled(false);
}

void MainMenu::Add_Edit_Menu() {
    QMenu& menu = *view_.menuBar()->addMenu(Said("E&dit"));
    undo_ = Add(menu, {}, QKeySequence::Undo, [this] { window_.Undo_Click(); });
    redo_ = Add(menu, {}, QKeySequence("Ctrl+Shift+Z"), [this] { window_.Redo_Click(); });
    menu.addSeparator();
    languages = Add(menu, Said("&All Languages..."), QKeySequence("Ctrl+L"),
                    [this] { window_.cmdLanguages_Click(); });
    texts = Add(menu, Said("&Hardcore Manual Text Editor"), QKeySequence("Ctrl+T"),
                [this] { window_.cmdHC_Click(); });
    colors = Add(menu, Said("&Color Editor And Preview"), QKeySequence("Ctrl+P"),
                 [this] { window_.cmdEditColor_Click(); });
    picture = Add(menu, Said("&Game Picture..."), QKeySequence("Ctrl+G"),
                  [this] { window_.cmdPicture_Click(); });
    window_.lblUndo.Shown = [this] { Show_History(); };
    window_.lblRedo.Shown = [this] { Show_History(); };
    Show_History();
}

void MainMenu::Show_History() {
    const auto show = [](QAction& action, const Label& label, const char* with,
                         const char* without) {
        const std::u16string name = Replace_All(label.Caption(), u"&", u"&&");
        action.setEnabled(!name.empty());
        action.setText(Shown(name.empty() ? Say(without) : Filled(Say(with), name)));
    };
    show(*undo_, window_.lblUndo, QT_TRID_NOOP("&Undo %1"), QT_TRID_NOOP("&Undo"));
    show(*redo_, window_.lblRedo, QT_TRID_NOOP("&Redo %1"), QT_TRID_NOOP("&Redo"));
}

void MainMenu::Add_View_Menu() {
    QMenu& menu = *view_.menuBar()->addMenu(Said("&View"));
    Add(menu, Said("&Play or Stop"), QKeySequence("F9"), [this] { window_.live.Play_Click(); });
    menu.addSeparator();
    QMenu& list = *menu.addMenu(Said("&Language of the windows"));
    for (const auto& [code, name] : Window_Languages()) {
        QAction* action = list.addAction(name, this, [this, code = code] {
            Choose_Language(code);
            QMessageBox::information(
                &view_, "Bannersmith",
                Said("The windows speak this language from the next start on."));
        });
        action->setCheckable(true);
        action->setChecked(code == Chosen_Language());
        language_choices_.addAction(action);
    }
}

void MainMenu::Add_Help_Menu() {
    QMenu& menu = *view_.menuBar()->addMenu(Said("&Help"));
    Add(menu, Said("&Manual"), QKeySequence::HelpContents, [this] { Show_Manual(view_); });
    Add(menu, Said("&About Bannersmith"), {}, [this] { Show_About(view_); });
}

}  // namespace bannersmith
