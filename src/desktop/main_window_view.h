#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include "mainwindow/form1.h"

using namespace bannersmith;

class QBoxLayout;
class QComboBox;
class QGridLayout;
class QPushButton;

/// The view of the main window, and of the windows that it opens. `window` must outlive it.
class MainWindowView : public QMainWindow {
 public:
    explicit MainWindowView(Form1& window);

 protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

 private:
    QWidget* Make_Pages();
    QWidget* Make_Game_Info();
    QWidget* Make_Channel_Names();
    QWidget* Make_File_Frame();
    void Add_Field(QGridLayout& grid, int row, const QString& name, TextBox& box, bool bold);
    void Add_Selector(QGridLayout& grid, int row, const QString& name, Field list,
                      std::int16_t set_index, std::int16_t set_all_index);
    QPushButton* Set_All_Button(const QString& name, const QString& tooltip, std::int16_t index);
    void Add_Players(QGridLayout& grid, int row);
    void Add_Looks(QGridLayout& grid, int row);
    QBoxLayout* Make_Padding_Row();
    void Make_Status_Line();
    void Show_State();
    void Take_Dropped_File();

    Form1& window_;
    QPointer<QWidget> focus_before_;  ///< had the focus when the window was disabled
    std::u16string dropped_file_;
    QTimer drag_ended_;
};
