#include "desktop/languages.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include <utility>

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
    const std::pair<std::u16string_view, const char*> words[] = {
        {u"ENG", QT_TRID_NOOP("English")},
        {u"GER", QT_TRID_NOOP("German")},
        {u"FRA", QT_TRID_NOOP("French")},
        {u"ITA", QT_TRID_NOOP("Italian")},
        {u"SPA", QT_TRID_NOOP("Spanish")},
        {u"NED", QT_TRID_NOOP("Dutch")},
        {u"JPN", QT_TRID_NOOP("Japanese")},
        {u"KOR", QT_TRID_NOOP("Korean")},
        {u"CHS", QT_TRID_NOOP("Chinese, simplified")},
        {u"CHT", QT_TRID_NOOP("Chinese, traditional")},
        {NoLanguage, QT_TRID_NOOP("the text for all languages")},
    };
    for (const auto& [name, text] : words) {
        if (name == code) return Said(text);
    }
    return {};
}

}  // namespace bannersmith
