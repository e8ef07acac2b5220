#include "desktop/settings.h"

#include <QWidget>

namespace bannersmith {

namespace {

constexpr char Recent[] = "files/recent", Language[] = "windows/language",
               Hint[] = "windows/hinted";

}  // namespace

QSettings Settings() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, "Bannersmith", "Bannersmith");
}

void Restore_Position(QWidget& window, const QString& name) {
    window.restoreGeometry(Settings().value(name).toByteArray());
}

void Store_Position(const QWidget& window, const QString& name) {
    Settings().setValue(name, window.saveGeometry());
}

QStringList Recent_Files() {
    return Settings().value(Recent).toStringList();
}

void Remember_File(const QString& path) {
    constexpr qsizetype Most = 10;
    QStringList files = Recent_Files();
    if (files.value(0) == path) return;
    files.removeAll(path);
    files.prepend(path);
    Settings().setValue(Recent, QStringList(files.mid(0, Most)));
}

QString Chosen_Language() {
    return Settings().value(Language).toString();
}

void Choose_Language(const QString& code) {
    Settings().setValue(Language, code);
}

bool Shows_First_Hint() {
    return !Settings().value(Hint).toBool();
}

void Hide_First_Hint() {
    Settings().setValue(Hint, true);
}

}  // namespace bannersmith
