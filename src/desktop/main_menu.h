#pragma once

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QObject>

#include "mainwindow/form1.h"

class QMenu;

namespace bannersmith {

/// The main window's commands, each with its key, in the menu bar. Buttons run the same ones.
class MainMenu : public QObject {
 public:
    /// What is referred to must outlive the object.
    MainMenu(QMainWindow& view, Form1& window);

    QAction *open, *save, *texts, *colors, *picture, *languages;

    /// Whether the commands can be used.
    void Set_Enabled(bool enabled);

 private:
    QAction* Add(QMenu& menu, const QString& text, const QKeySequence& key,
                 std::function<void()> run);
    void Add_File_Menu();
    void Add_Edit_Menu();
    void Add_View_Menu();
    void Add_Help_Menu();
    void Fill_Recent(QMenu& menu);
    void Show_History();

    QMainWindow& view_;
    Form1& window_;
    QList<QAction*> commands_;
    QActionGroup language_choices_{this};
    QAction *undo_, *redo_;
};

}  // namespace bannersmith
