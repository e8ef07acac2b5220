#include "desktop/qt_desktop.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <vector>

#include "base/color.h"
#include "base/message.h"
#include "base/text.h"
#include "desktop/fonts.h"
#include "desktop/reasons.h"
#include "desktop/text.h"
#include "desktop/widgets.h"
#include "system/code_page.h"
#include "system/process.h"

namespace bannersmith {

namespace {

void Show_Box(QMessageBox::Icon icon, const QString& text) {
    QMessageBox box(icon, "Bannersmith", text, QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

/// "Text (*.a)|*.a|All (*.*)|*.*" as the toolkit has it: descriptions with a pattern in brackets
/// behind each, which it does not show. There "*.*" would leave out names without a dot.
QStringList Toolkit_Filters(const std::u16string& filter) {
    const QStringList parts = Shown(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        filters << parts[i] + " (" + (parts[i + 1] == "*.*" ? "*" : parts[i + 1]) + ")";
    }
    return filters;
}

}  // namespace

void QtDesktop::Message(const std::u16string& text) {
    Show_Box(QMessageBox::NoIcon, Shown(text));
}

bool QtDesktop::Confirm(const std::u16string& question) {
    QMessageBox box(QMessageBox::Question, "Bannersmith", Shown(question),
                    QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

std::size_t QtDesktop::Choose(const std::u16string& question,
                              const std::vector<std::u16string>& answers) {
    QMessageBox box(QMessageBox::Question, "Bannersmith", Shown(question), QMessageBox::NoButton,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    std::vector<QAbstractButton*> buttons;
    for (const std::u16string& answer : answers) {
        const bool is_last = buttons.size() + 1 == answers.size();
        buttons.push_back(box.addButton(
            Shown(answer), is_last ? QMessageBox::RejectRole : QMessageBox::AcceptRole));
    }
    box.setDefaultButton(static_cast<QPushButton*>(buttons.front()));
    box.setEscapeButton(buttons.back());
    box.exec();
    const auto given = std::find(buttons.begin(), buttons.end() - 1, box.clickedButton());
    return static_cast<std::size_t>(given - buttons.begin());
}

void QtDesktop::Report(const Failure& failure) {
    Print_Failure(failure);
    const QString reason = Reason_In_Words(Readable(From_Utf8(failure.reason)));
    Show_Box(QMessageBox::Critical,
             QString::fromStdString(Readable(failure.subject)) + "\n\n" + reason);
}

std::u16string QtDesktop::Open_File(const std::u16string& filter, const std::u16string& last) {
    const QFileInfo folder(QFileInfo(Shown(last).replace('\\', '/')).path());
    QFileDialog dialog(QApplication::activeWindow());
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(Toolkit_Filters(filter));
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    if (folder.isDir()) dialog.setDirectory(folder.filePath());
    if (dialog.exec() != QDialog::Accepted) return {};
    return Taken(QDir::toNativeSeparators(dialog.selectedFiles().value(0)));
}

std::u16string QtDesktop::Save_File(const std::u16string& filter, const std::u16string& name) {
    QFileDialog dialog(QApplication::activeWindow());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(Toolkit_Filters(filter));
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.selectFile(Shown(name));
    if (dialog.exec() != QDialog::Accepted) return {};
    return Taken(QDir::toNativeSeparators(dialog.selectedFiles().value(0)));
}

std::u16string QtDesktop::Ask(const std::u16string& prompt, const std::u16string& title) {
    return Taken(QInputDialog::getText(QApplication::activeWindow(), Shown(title), Shown(prompt)));
}

Color QtDesktop::Choose_Color(Color color) {
    const QColor chosen = QColorDialog::getColor(Shown_Color(color), QApplication::activeWindow());
    if (!chosen.isValid()) return color;
    return Make_Color(static_cast<std::uint8_t>(chosen.red()),
                      static_cast<std::uint8_t>(chosen.green()),
                      static_cast<std::uint8_t>(chosen.blue()));
}

/// Measured large, so that hinting does not matter, with a little room for it.
float QtDesktop::Text_Width(std::u16string_view text, const Font& font) {
    constexpr double LargePoints = 72, TwipsPerInch = 1440, Room = 60, MoreRoom = 1.02;
    const QFontMetricsF metrics(Japanese_Font(font.family, LargePoints));
    const double inches = metrics.horizontalAdvance(Shown(text)) / metrics.fontDpi();
    return static_cast<float>(inches * TwipsPerInch * font.points / LargePoints * MoreRoom + Room);
}

std::u16string QtDesktop::In_Code_Page(std::u16string_view text) {
    return From_Code_Page(To_Code_Page(text));
}

}  // namespace bannersmith
