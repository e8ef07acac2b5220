#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include "desktop/main_menu.h"
#include "mainwindow/form1.h"

using namespace bannersmith;

class QSplitter;

/// The view of the main window, and of the windows that it opens. `window` must outlive it.
class MainWindowView : public QMainWindow {
 public:
    explicit MainWindowView(Form1& window);

 protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

 private:
    QWidget* Make_Content();
    QWidget* Make_First_Hint();
    QWidget* Make_Halves();
    QWidget* Make_Pages();
    QWidget* Make_File_Frame();
    QWidget* Make_Save_Button();
    void Make_Status_Line();
    void Follow_Other_Windows();
    void Show_State();
    void Show_Title();
    void Take_Dropped_File();

    Form1& window_;
    MainMenu menu_;
    QWidget* first_hint_ = nullptr;
    QSplitter* halves_ = nullptr;
    QPointer<QWidget> focus_before_;  ///< had the focus when the window was disabled
    std::u16string dropped_file_;
    QTimer drag_ended_, back_;
};
