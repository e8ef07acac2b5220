// Small widgets that the toolkit has not, and what all windows share.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QColor>
#include <QComboBox>
#include <QHash>
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

/// The room that a picture is shown in.
inline constexpr QSize PictureSize(256, 192);

/// A picture, no larger than `room`, on a dark ground as the console shows it.
QPixmap Shown_Picture(const Picture& picture, QSize room);

/// A box of one colour that can be clicked, also with the keyboard.
class ColorButton : public QAbstractButton {
 public:
    /// `name` tells which colour it is, and `words` what has it. The button shows the colour of
    /// `box`, which must outlive it or no longer change.
    ColorButton(ColorBox& box, const QString& name, const QString& words, QSize size);

    QSize sizeHint() const override { return size_; }

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    void Show_Color();

    ColorBox& box_;
    QString name_, words_;
    QSize size_;
    QColor color_;
};

/// A drop-down list that the mouse wheel leaves alone: a person who scrolls past it has not chosen
/// another entry.
class ListBox : public QComboBox {
 public:
    ListBox();

    /// Shows other entries in place of those before, all in one step, and selects none.
    void Show_Entries(const QStringList& entries) { entries_.Set(entries); }

    /// Shows the picture that `icon_of` has for an entry beside it, from when the list is opened
    /// first: by then all of them are asked for, each once.
    void Show_Pictures(std::function<QIcon(int index)> icon_of);

    static constexpr QSize PictureRoom{64, 32};  ///< of such a picture

    /// What a screen reader says for an entry, where that is not its text.
    void Speak_Entries(std::function<QString(const QString& entry)> in_words);

    /// Lets the selected entry stand out, or none.
    void Mark_Selected(bool is_marked);

    /// A list of many entries is opened with a line above them in which can be searched.
    void showPopup() override;

 protected:
    void wheelEvent(QWheelEvent* event) override;

 private:
    /// The texts, and the pictures as far as they were asked for.
    class Entries : public QStringListModel {
     public:
        void Set(const QStringList& entries);
        QVariant data(const QModelIndex& index, int role) const override;
        std::function<QIcon(int index)> icon_of;
        std::function<QString(const QString& entry)> in_words;
        int marked = -1;

     private:
        QIcon Icon_Of(int row) const;

        mutable QHash<int, QIcon> icons_;
    };

    Entries entries_;
    std::function<QIcon(int index)> icon_of_;
};

/// A label whose text ends in "..." where it does not fit; the tooltip has all of it, and so has
/// its name for screen readers, with commas in place of bars.
class ElidedLabel : public QLabel {
 public:
    void Show_Text(const QString& text);

 protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A button with a caption, a tooltip that also names its shortcut, and what it runs.
QPushButton* Make_Button(const QString& caption, const QString& tooltip,
                         const QKeySequence& shortcut, std::function<void()> run);

/// The same for a command that a menu has, too, with its shortcut.
QPushButton* Make_Button(const QString& caption, const QString& tooltip, QAction& command);

/// A label that names `buddy`, to which its mnemonic leads.
QLabel* Make_Label(const QString& caption, QWidget* buddy);

/// What the desktop calls the program in its menu entry and its icon theme.
inline constexpr char DesktopFileName[] = "org.bannersmith.Bannersmith";

/// The program's own icon, drawn at the usual sizes.
QIcon Program_Icon();

}  // namespace bannersmith
