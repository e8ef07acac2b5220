// Small widgets that the toolkit has not, and what all windows share.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QStringListModel>
#include <QWidget>
#include <functional>

#include "forms/controls.h"
#include "forms/desktop.h"

namespace bannersmith {

/// A colour of the windows as the toolkit has it.
QColor Shown_Color(Color color);

/// A box of one colour that can be clicked, also with the keyboard.
class ColorButton : public QAbstractButton {
 public:
    /// `name` tells which colour it is. The button shows the colour of `box`, which must outlive it
    /// or no longer change.
    ColorButton(ColorBox& box, const QString& name, QSize size, QWidget* parent = nullptr);

    QSize sizeHint() const override { return size_; }

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    void Show_Color();

    ColorBox& box_;
    QString name_;
    QSize size_;
    QColor color_;
};

/// A drop-down list that the mouse wheel leaves alone: a person who scrolls past it has not chosen
/// another entry.
class ListBox : public QComboBox {
 public:
    ListBox();

    /// Shows other entries in place of those before, all in one step, and selects none.
    void Show_Entries(const QStringList& entries) { entries_.setStringList(entries); }

 protected:
    void wheelEvent(QWheelEvent* event) override;

 private:
    QStringListModel entries_;
};

/// A label whose text ends in "..." where it does not fit; the tooltip has all of it.
class ElidedLabel : public QLabel {
 public:
    void Show_Text(const QString& text);

 protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A button with a caption, a tooltip that also names its shortcut, and what it runs.
QPushButton* Make_Button(const QString& caption, const QString& tooltip,
                         const QKeySequence& shortcut, std::function<void()> run);

/// A label that names `buddy`, to which its mnemonic leads.
QLabel* Make_Label(const QString& caption, QWidget* buddy);

/// What the desktop calls the program in its menu entry and its icon theme.
inline constexpr char DesktopFileName[] = "org.bannersmith.Bannersmith";

/// The program's own icon, drawn at the usual sizes.
QIcon Program_Icon();

/// Restores where the window called `name` was at the end of the last run, and stores it.
void Restore_Position(QWidget& window, const QString& name);
void Store_Position(const QWidget& window, const QString& name);

}  // namespace bannersmith
