#include "desktop/live_view_widget.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <utility>

#include "base/text.h"
#include "desktop/binding.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

namespace bannersmith {

namespace {

constexpr int ClockMilliseconds = 16;  // the console's sixty frames a second

QComboBox* Make_List(DropDownList& list, const QString& name) {
    auto* combo = new ListBox;
    combo->setToolTip(name);
    combo->setAccessibleName(name);
    constexpr int Fewest = 5;  // letters that are seen where there is little room
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(Fewest);
    Bind(*combo, list);
    return combo;
}

}  // namespace

LivePicture::LivePicture(LiveView& live) : live_(live) {
    setAccessibleName(Said("The banner as the console draws it"));
}

void LivePicture::Take() {
    const Picture& picture = live_.picture.Value();
    const auto width = static_cast<int>(picture.width), height = static_cast<int>(picture.height);
    image_ = QImage();
    if (!picture.texels.empty()) {
        constexpr qsizetype Octets = 4;
        image_ = QImage(reinterpret_cast<const uchar*>(picture.texels.data()), width, height,
                        Octets * width, QImage::Format_RGBX8888);
    }
    update();
}

/// Where the picture lies: in the middle, its sides as they are to each other.
QRectF LivePicture::Place() const {
    const QSizeF size = QSizeF(image_.size()).scaled(QSizeF(rect().size()), Qt::KeepAspectRatio);
    return {QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size};
}

void LivePicture::paintEvent(QPaintEvent* /*event*/) {
    Painted.Raise();
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    if (image_.isNull()) {
        painter.setPen(Qt::lightGray);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         Shown(live_.lblAbout.Caption()));
        return;
    }
    const QRectF place = Place();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, image_);
    painter.setClipRect(place);
    painter.translate(place.topLeft());
    const double scale = place.width() / image_.width();
    for (const still::Region& region : live_.Regions()) {
        if (region.missing.empty()) continue;
        QPolygonF outline;
        for (const std::size_t corner : {0, 1, 3, 2}) {
            outline << QPointF(region.corners[corner].x, region.corners[corner].y) * scale;
        }
        painter.setPen(QPen(Qt::gray, 1, Qt::DashLine));
        painter.drawPolygon(outline);
        painter.setPen(Qt::lightGray);
        painter.drawText(outline.boundingRect().adjusted(3, 3, -3, -3), Qt::AlignCenter,
                         Shown(From_Utf8(region.pane)));
    }
}

/// A place of the widget as one of the picture's pixels.
QPointF LivePicture::In_Picture(QPointF at) const {
    const QRectF place = Place();
    return image_.isNull() ? at : (at - place.topLeft()) / (place.width() / image_.width());
}

void LivePicture::mousePressEvent(QMouseEvent* event) {
    const QPointF at = In_Picture(event->position());
    if (clicked) clicked(static_cast<float>(at.x()), static_cast<float>(at.y()));
}

bool LivePicture::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QPointF at = In_Picture(help->pos());
    const QString text =
        Shown(live_.What_Is_At(static_cast<float>(at.x()), static_cast<float>(at.y())));
    QToolTip::showText(help->globalPos(), text, this);
    return true;
}

LiveViewWidget::LiveViewWidget(LiveView& live) : live_(live), picture_(new LivePicture(live)) {
    auto* play = Make_Button(Said("Pl&ay"), Said("Play the animation, from its beginning"), {},
                             [this] { live_.Play_Click(); });
    auto* save = Make_Button(Said("Sa&ve Picture..."), Said("Write the picture into a PNG file"),
                             {}, [this] { live_.Save_Click(); });
    auto* about = new ElidedLabel;
    about->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* lists = new QHBoxLayout;
    lists->addWidget(Make_List(live.cmbPart, Said("Which part of the channel is shown")));
    lists->addWidget(Make_List(live.cmbLanguage, Said("The language that is shown")));
    lists->addWidget(Make_List(live.cmbWidth, Said("The shape of the screen")));
    lists->setStretch(1, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(about, 1);
    buttons->addWidget(play);
    buttons->addWidget(save);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(picture_, 1);
    rows->addLayout(lists);
    rows->addLayout(buttons);

    idle_.setSingleShot(true);
    clock_.setTimerType(Qt::PreciseTimer);
    connect(&idle_, &QTimer::timeout, this, [this] { live_.Draw(); });
    connect(&clock_, &QTimer::timeout, this,
            [this] { live_.Play_To(static_cast<double>(played_.elapsed()) / 1000); });
    picture_->clicked = [this](float x, float y) {
        if (clicked) clicked(x, y);
    };
    picture_->Painted = [this] {
        if (!std::exchange(is_seen_, true)) Draw_Soon();
    };
    live_.Wanted = [this] { Draw_Soon(); };
    live_.picture.Shown = [this] { picture_->Take(); };
    live_.lblPlay.Shown = [this, play] {
        play->setText(Shown(live_.lblPlay.Caption()));
        Follow_Playing();
    };
    live_.lblAbout.Shown = [this, about] { about->Show_Text(Shown(live_.lblAbout.Caption())); };
}

/// Not before all that comes with a change has happened, and not before somebody sees it, so that a
/// window appears first.
void LiveViewWidget::Draw_Soon() {
    if (is_seen_ && !idle_.isActive()) idle_.start(0);
}

void LiveViewWidget::Follow_Playing() {
    if (!live_.Is_Playing()) return clock_.stop();
    played_.start();
    clock_.start(ClockMilliseconds);
}

void LiveViewWidget::hideEvent(QHideEvent* event) {
    if (live_.Is_Playing()) live_.Play_Click();
    is_seen_ = false;
    QWidget::hideEvent(event);
}

}  // namespace bannersmith
