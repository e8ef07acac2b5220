// What the windows remember for their user from run to run, in a file of the user's on every
// system, so that nothing is left in a registry.
#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>

class QWidget;

namespace bannersmith {

/// All of it. Keys without a group are positions of windows, by their names.
QSettings Settings();

/// Restores where the window called `name` was at the end of the last run, and stores it.
void Restore_Position(QWidget& window, const QString& name);
void Store_Position(const QWidget& window, const QString& name);

/// The paths of the files opened last, the latest first.
QStringList Recent_Files();
/// Puts one in front.
void Remember_File(const QString& path);

/// The code of the language that the user chose for the windows; empty for the system's.
QString Chosen_Language();
void Choose_Language(const QString& code);

/// Whether the hint for the first start is still to be shown.
bool Shows_First_Hint();
void Hide_First_Hint();

}  // namespace bannersmith
