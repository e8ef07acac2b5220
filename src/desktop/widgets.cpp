#include "desktop/widgets.h"

#include <QKeySequence>
#include <QPainter>
#include <QPainterPath>
#include <QSettings>
#include <QShortcut>
#include <QWheelEvent>
#include <cmath>
#include <numbers>
#include <utility>

#include "colors/scheme.h"

namespace bannersmith {

QColor Shown_Color(Color color) {
    return {Red_Of(color), Green_Of(color), Blue_Of(color)};
}

ColorButton::ColorButton(ColorBox& box, const QString& name, QSize size, QWidget* parent)
    : QAbstractButton(parent), box_(box), name_(name), size_(size) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    box_.Shown = [this] { Show_Color(); };
    Show_Color();
}

void ColorButton::Show_Color() {
    color_ = Shown_Color(box_.Value());
    const QString text = QString("%1: red %2, green %3, blue %4")
                             .arg(name_)
                             .arg(color_.red())
                             .arg(color_.green())
                             .arg(color_.blue());
    setToolTip(text);
    setAccessibleName(text);
    update();
}

void ColorButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    painter.setBrush(isEnabled() ? color_ : color_.lighter());
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (hasFocus()) painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

QPixmap Shown_Picture(const Picture& picture, QSize room) {
    const QImage image(reinterpret_cast<const uchar*>(picture.texels.data()),
                       static_cast<int>(picture.width), static_cast<int>(picture.height),
                       static_cast<int>(TexelSize * picture.width), QImage::Format_RGBA8888);
    const QSize size = image.size().boundedTo(image.size().scaled(room, Qt::KeepAspectRatio));
    QPixmap shown(size);
    shown.fill(QColor(0x30, 0x30, 0x30));
    QPainter painter(&shown);
    painter.drawImage(0, 0, image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    return shown;
}

void ListBox::Show_Pictures(std::function<QIcon(int index)> icon_of) {
    icon_of_ = std::move(icon_of);
}

void ListBox::showPopup() {
    if (icon_of_ && !entries_.icon_of) {
        entries_.icon_of = icon_of_;
        setIconSize(PictureRoom);
    }
    QComboBox::showPopup();
}

void ListBox::Entries::Set(const QStringList& entries) {
    icons_.clear();
    setStringList(entries);
}

QVariant ListBox::Entries::data(const QModelIndex& index, int role) const {
    if (role != Qt::DecorationRole || !icon_of) return QStringListModel::data(index, role);
    auto known = icons_.find(index.row());
    if (known == icons_.end()) known = icons_.insert(index.row(), icon_of(index.row()));
    return known->isNull() ? QVariant() : QVariant(*known);
}

/// Nor does the wheel take the focus along, which would let the next letter choose an entry.
ListBox::ListBox() {
    setFocusPolicy(Qt::StrongFocus);
    setModel(&entries_);
}

void ListBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void ElidedLabel::Show_Text(const QString& text) {
    setText(text);
    setToolTip("<span>" + text.toHtmlEscaped() + "</span>");  // rich whatever it holds
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

QPushButton* Make_Button(const QString& caption, const QString& tooltip,
                         const QKeySequence& shortcut, std::function<void()> run) {
    auto* button = new QPushButton(caption);
    const QKeySequence mnemonic = QKeySequence::mnemonic(caption);
    QStringList keys;
    for (const QKeySequence& key : {shortcut, mnemonic}) {
        if (!key.isEmpty()) keys << key.toString(QKeySequence::NativeText);
    }
    button->setToolTip(keys.isEmpty() ? tooltip : tooltip + " (" + keys.join(", ") + ")");
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, [run = std::move(run)] { run(); });
    // Not the button's own shortcut, which runs only when its animation ends: by then the window
    // can have been closed.
    if (!shortcut.isEmpty()) new QShortcut(shortcut, button, [button] { button->click(); });
    return button;
}

QLabel* Make_Label(const QString& caption, QWidget* buddy) {
    auto* label = new QLabel(caption);
    label->setBuddy(buddy);
    if (buddy->accessibleName().isEmpty()) {
        buddy->setAccessibleName(QString(caption).remove('&').remove(':'));
    }
    return label;
}

namespace {

/// A banner on its pole, with a star.
QPixmap Draw_Icon(int size) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 64.0, size / 64.0);
    painter.setPen(QPen(QColor(0x5B, 0x43, 0x2E), 5, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(8, 10), QPointF(56, 10));
    QPainterPath cloth;
    cloth.moveTo(13, 10);
    cloth.lineTo(51, 10);
    cloth.lineTo(51, 58);
    cloth.lineTo(32, 47);
    cloth.lineTo(13, 58);
    cloth.closeSubpath();
    painter.setPen(Qt::NoPen);
    QLinearGradient fade(0, 10, 0, 58);
    fade.setColorAt(0, QColor(0x1F, 0x8F, 0xC4));
    fade.setColorAt(1, QColor(0x0A, 0x4F, 0x86));
    painter.setBrush(fade);
    painter.drawPath(cloth);
    QPolygonF star;
    for (int i = 0; i < 10; ++i) {
        const double angle = std::numbers::pi / 5 * i, radius = i % 2 ? 4.6 : 11;
        star << QPointF(32 + radius * std::sin(angle), 28 - radius * std::cos(angle));
    }
    painter.setBrush(QColor(0xFF, 0xD9, 0x66));
    painter.drawPolygon(star);
    return picture;
}

}  // namespace

QIcon Program_Icon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) icon.addPixmap(Draw_Icon(size));
    return icon;
}

namespace {

/// A file of the user's on every system, so that nothing is left in a registry.
QSettings Positions() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, "Bannersmith", "Bannersmith");
}

}  // namespace

void Restore_Position(QWidget& window, const QString& name) {
    window.restoreGeometry(Positions().value(name).toByteArray());
}

void Store_Position(const QWidget& window, const QString& name) {
    Positions().setValue(name, window.saveGeometry());
}

}  // namespace bannersmith
