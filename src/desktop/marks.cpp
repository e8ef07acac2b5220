#include "desktop/marks.h"

#include <QApplication>
#include <QPainter>
#include <QVariant>

#include "desktop/text.h"

namespace bannersmith {

namespace {

const QColor Amber(0xD9, 0x8E, 0x04);

/// As much of a colour as leaves what is written on the ground readable.
QColor Tinted(const QColor& ground) {
    constexpr double Part = 0.22;
    const auto mixed = [](double from, double to) {
        return static_cast<float>(from + (to - from) * Part);
    };
    return QColor::fromRgbF(mixed(ground.redF(), Amber.redF()),
                            mixed(ground.greenF(), Amber.greenF()),
                            mixed(ground.blueF(), Amber.blueF()));
}

}  // namespace

void Show_Mark(QWidget& widget, const std::u16string& mark) {
    constexpr char Unmarked[] = "unmarked tooltip";
    const bool was_marked = widget.property(Unmarked).isValid();
    if (mark.empty() && !was_marked) return;
    if (!was_marked) {
        widget.setProperty(Unmarked, QStringList{widget.toolTip(), widget.accessibleDescription()});
    }
    const QStringList before = widget.property(Unmarked).toStringList();
    if (mark.empty()) {
        widget.setToolTip(before[0]);
        widget.setAccessibleDescription(before[1]);
        widget.setProperty(Unmarked, {});
        widget.setPalette({});
        return;
    }
    widget.setToolTip(before[0].isEmpty() ? Shown(mark) : Shown(mark) + "\n" + before[0]);
    widget.setAccessibleDescription(Shown(mark) + ". " + before[1]);
    QPalette palette = QApplication::palette(&widget);
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Button}) {
        palette.setColor(role, Tinted(palette.color(role)));
    }
    widget.setPalette(palette);
}

QIcon Mark_Icon() {
    constexpr int Side = 32;
    QPixmap dot(Side, Side);
    dot.fill(Qt::transparent);
    QPainter painter(&dot);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Amber);
    painter.drawEllipse(QRectF(Side * 0.25, Side * 0.25, Side * 0.5, Side * 0.5));
    return dot;
}

}  // namespace bannersmith
