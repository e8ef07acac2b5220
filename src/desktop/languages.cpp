#include "desktop/languages.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include <algorithm>
#include <array>

#include "desktop/settings.h"
#include "desktop/text.h"
#include "gameinfo/languages.h"
#include "system/process.h"

namespace bannersmith {

QList<QPair<QString, QString>> Window_Languages() {
    QList<QPair<QString, QString>> languages = {{"", Said("As the system")}};
    for (const char* code : {"en", "de", "fr", "it", "es", "nl", "ja"}) {
        languages << QPair<QString, QString>(code, QLocale(code).nativeLanguageName());
    }
    return languages;
}

/// The toolkit's own texts come from a file of its own. Without files the windows speak English.
void Speak_Users_Language() {
    const QString chosen = Chosen_Language();
    const QLocale locale = chosen.isEmpty() ? QLocale() : QLocale(chosen);
    const QString folder = Shown(Program_Folder()) + "/translations";
    for (const char* name : {"bannersmith", "qtbase"}) {
        auto* translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(locale, name, "_", folder))
            QCoreApplication::installTranslator(translator);
    }
    Speak_With([](const char* text) {
        const QString said = qtTrId(text);
        return said == text ? std::u16string() : Taken(said);
    });
}

QString Language_In_Words(std::u16string_view code) {
    if (code == NoLanguage) return Said("the text for all languages");
    if (code == Korean) return Said("Korean");
    const auto place = std::find(Languages.begin(), Languages.end(), code) - Languages.begin();
    switch (place) {
        case 0:
            return Said("English");
        case 1:
            return Said("German");
        case 2:
            return Said("French");
        case 3:
            return Said("Italian");
        case 4:
            return Said("Spanish");
        case 5:
            return Said("Dutch");
        case 6:
            return Said("Japanese");
        default:
            return {};
    }
}

}  // namespace bannersmith
