#pragma once

#include "desktop/main_menu.h"
#include "mainwindow/form1.h"

class QWidget;

namespace bannersmith {

/// The frame with the fields of the main window and what a save applies. What is referred to must
/// outlive it.
QWidget* Make_Game_Info(Form1& window, MainMenu& menu);

/// The page of the names for the console's menu.
QWidget* Make_Channel_Names(Form1& window);

}  // namespace bannersmith
