#include "desktop/fonts.h"

#include <QFontDatabase>
#include <QStringList>

#include "desktop/text.h"

namespace {

/// The families to fall back on that are installed. A font that names a family which is not makes
/// the toolkit look through the aliases of all that are, which takes longer than the rest of the
/// start.
const QStringList& Installed_Substitutes() {
    static const QStringList installed = [] {
        QStringList families;
        for (const char* family : {"IPAPGothic", "Noto Sans CJK JP", "IPAGothic", "MS PGothic",
                                   "Hiragino Sans", "Noto Sans JP"}) {
            if (QFontDatabase::hasFamily(family)) families << family;
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
    QStringList families = Installed_Substitutes();
    if (QFontDatabase::hasFamily(name)) families.prepend(name);
    QFont font;
    if (!families.isEmpty()) font.setFamilies(families);
    font.setPointSizeF(points);
    font.setHintingPreference(QFont::PreferNoHinting);  // so that widths grow with the size alone
    return font;
}
