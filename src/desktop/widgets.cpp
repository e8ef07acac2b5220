#include "desktop/widgets.h"

#include <QKeySequence>
#include <QPainter>
#include <QPainterPath>
#include <QShortcut>
#include <QWheelEvent>
#include <cmath>
#include <numbers>
#include <utility>

#include "colors/scheme.h"
#include "desktop/marks.h"
#include "desktop/search_popup.h"
#include "desktop/text.h"

namespace bannersmith {

QColor Shown_Color(Color color) {
    return {Red_Of(color), Green_Of(color), Blue_Of(color)};
}

ColorButton::ColorButton(ColorBox& box, const QString& name, const QString& words, QSize size)
    : box_(box), name_(name), words_(words), size_(size) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    box_.Shown = [this] { Show_Color(); };
    Show_Color();
}

void ColorButton::Show_Color() {
    color_ = Shown_Color(box_.Value());
    const QString values = QStringList{Filled(Said("red %1"), QString::number(color_.red())),
                                       Filled(Said("green %1"), QString::number(color_.green())),
                                       Filled(Said("blue %1"), QString::number(color_.blue()))}
                               .join(", ");
    const QString mark = Shown(box_.Mark());
    setAccessibleName(name_ + ": " + values);
    setToolTip(name_ + ": " + values + (words_.isEmpty() ? "" : "\n" + words_) +
               (mark.isEmpty() ? "" : "\n" + mark));
    setAccessibleDescription(mark.isEmpty() ? words_ : words_ + ", " + mark);
    update();
}

/// What is being edited has a frame that is seen on every colour.
void ColorButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    painter.setBrush(isEnabled() ? color_ : color_.lighter());
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (hasFocus()) painter.drawRect(rect().adjusted(1, 1, -2, -2));
    if (box_.Mark().empty()) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
    painter.setPen(QPen(Qt::black, 2, Qt::DotLine));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
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

void ListBox::Speak_Entries(std::function<QString(const QString& entry)> in_words) {
    entries_.in_words = std::move(in_words);
}

void ListBox::Mark_Selected(bool is_marked) {
    const int marked = is_marked ? currentIndex() : -1;
    if (marked == entries_.marked) return;
    entries_.marked = marked;
    emit entries_.dataChanged(entries_.index(0), entries_.index(entries_.rowCount() - 1));
    update();
}

void ListBox::showPopup() {
    constexpr int Most = 15;
    if (icon_of_ && !entries_.icon_of) {
        entries_.icon_of = icon_of_;
        setIconSize(PictureRoom);
    }
    if (count() <= Most) return QComboBox::showPopup();
    Show_Search(*this, [this](int index) {
        setCurrentIndex(index);
        emit activated(index);
    });
}

void ListBox::Entries::Set(const QStringList& entries) {
    icons_.clear();
    marked = -1;
    setStringList(entries);
}

QVariant ListBox::Entries::data(const QModelIndex& index, int role) const {
    const bool is_marked = index.row() == marked;
    if (role == Qt::FontRole && is_marked) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (role == Qt::AccessibleTextRole && in_words) {
        return in_words(QStringListModel::data(index, Qt::DisplayRole).toString());
    }
    if (role != Qt::DecorationRole) return QStringListModel::data(index, role);
    if (is_marked) return Mark_Icon();
    const QIcon icon = Icon_Of(index.row());
    return icon.isNull() ? QVariant() : QVariant(icon);
}

QIcon ListBox::Entries::Icon_Of(int row) const {
    if (!icon_of) return {};
    auto known = icons_.find(row);
    if (known == icons_.end()) known = icons_.insert(row, icon_of(row));
    return *known;
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
    setAccessibleName(QString(text).replace("  |  ", ", "));
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

namespace {

QPushButton* Make_Plain_Button(const QString& caption, const QString& tooltip,
                               const QKeySequence& shortcut) {
    auto* button = new QPushButton(caption);
    const QKeySequence mnemonic = QKeySequence::mnemonic(caption);
    QStringList keys;
    for (const QKeySequence& key : {shortcut, mnemonic}) {
        if (!key.isEmpty()) keys << key.toString(QKeySequence::NativeText);
    }
    button->setToolTip(keys.isEmpty() ? tooltip : tooltip + " (" + keys.join(", ") + ")");
    button->setAccessibleDescription(tooltip);
    button->setAutoDefault(false);
    return button;
}

}  // namespace

QPushButton* Make_Button(const QString& caption, const QString& tooltip, QAction& command) {
    auto* button = Make_Plain_Button(caption, tooltip, command.shortcut());
    QObject::connect(button, &QPushButton::clicked, &command, &QAction::trigger);
    return button;
}

QPushButton* Make_Button(const QString& caption, const QString& tooltip,
                         const QKeySequence& shortcut, std::function<void()> run) {
    auto* button = Make_Plain_Button(caption, tooltip, shortcut);
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

}  // namespace bannersmith
