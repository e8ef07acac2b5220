#include "desktop/fonts.h"

#include <QStringList>

#include "desktop/text.h"

QFont Japanese_Font(std::u16string_view family, double points) {
    QString name = Shown(family);
    if (name.startsWith('@'))
        name.remove(0, 1);  // marks vertical writing, which no family here has
    QFont font(QStringList{name, "IPAPGothic", "Noto Sans CJK JP", "IPAGothic", "MS PGothic",
                           "Hiragino Sans", "Noto Sans JP"});
    font.setPointSizeF(points);
    font.setHintingPreference(QFont::PreferNoHinting);  // so that widths grow with the size alone
    return font;
}
