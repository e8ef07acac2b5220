#include "desktop/marks.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPalette>

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

/// Lives as long as its widget has a mark, and keeps what the widget had before.
class Marker : public QObject {
 public:
    explicit Marker(QWidget& widget)
        : QObject(&widget),
          widget_(widget),
          tooltip_(widget.toolTip()),
          description_(widget.accessibleDescription()) {
        widget.installEventFilter(this);
        Tint();
    }

    void Show(const QString& mark) {
        widget_.setToolTip(tooltip_.isEmpty() ? mark : mark + "\n" + tooltip_);
        widget_.setAccessibleDescription(mark + ". " +
                                         (description_.isEmpty() ? tooltip_ : description_));
    }

    void Take_Away() {
        widget_.removeEventFilter(this);
        widget_.setToolTip(tooltip_);
        widget_.setAccessibleDescription(description_);
        widget_.setPalette({});
        delete this;
    }

 protected:
    /// The ground follows the desktop's colours.
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::PaletteChange) Tint();
        return false;
    }

 private:
    void Tint() {
        QPalette palette = QApplication::palette(&widget_);
        for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Button}) {
            palette.setColor(role, Tinted(palette.color(role)));
        }
        if (palette.color(QPalette::Base) == widget_.palette().color(QPalette::Base)) return;
        widget_.setPalette(palette);  // comes back to this
    }

    QWidget& widget_;
    QString tooltip_, description_;
};

/// The one that the widget has, if any.
Marker* Marker_Of(QWidget& widget) {
    for (QObject* child : widget.children()) {
        if (auto* marker = dynamic_cast<Marker*>(child)) return marker;
    }
    return nullptr;
}

}  // namespace

void Show_Mark(QWidget& widget, const std::u16string& mark) {
    Marker* marker = Marker_Of(widget);
    if (mark.empty()) {
        if (marker != nullptr) marker->Take_Away();
        return;
    }
    if (marker == nullptr) marker = new Marker(widget);
    marker->Show(Shown(mark));
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
