#include "desktop/fonts.h"

#include <QFontDatabase>
#include <QStringList>

#include "desktop/text.h"

namespace bannersmith {

namespace {

/// A font that names a family which is not installed makes the toolkit look through the aliases of
/// all that are, and so does asking for one; the list of all is at hand.
bool Is_Installed(const QString& family) {
    static const QStringList installed = QFontDatabase::families();
    return installed.contains(family, Qt::CaseInsensitive);
}

const QStringList& Substitutes() {
    static const QStringList installed = [] {
        QStringList families;
        for (const char* family : {"IPAPGothic", "Noto Sans CJK JP", "IPAGothic", "MS PGothic",
                                   "Hiragino Sans", "Noto Sans JP"}) {
            if (Is_Installed(family)) families << family;
        }
        return families;
    }();
    return installed;
}

}  // namespace

QFont Japanese_Font(std::u16string_view family, double points) {
    QString name = Shown(family);
    if (name.startsWith('@'))
        name.remove(0, 1);  // marks vertical writing, which no family here has
    QStringList families = Substitutes();
    if (Is_Installed(name)) families.prepend(name);
    QFont font;
    if (!families.isEmpty()) font.setFamilies(families);
    font.setPointSizeF(points);
    font.setHintingPreference(QFont::PreferNoHinting);  // so that widths grow with the size alone
    return font;
}

}  // namespace bannersmith
