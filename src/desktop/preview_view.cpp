#include "desktop/preview_view.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <cmath>

#include "desktop/fonts.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

namespace bannersmith {

namespace {

/// Paints in twips on whole device pixels: neighbouring rectangles meet without gap or overlap.
class TwipPainter {
 public:
    TwipPainter(QPainter& painter, double scale) : painter_(painter), scale_(scale) {}

    void Fill(const FilledRectangle& band, float left, float top) {
        painter_.fillRect(Pixels(left + band.x1, top + band.y1, left + band.x2, top + band.y2),
                          Shown_Color(band.color));
    }

    void Paint(const Surface& surface, float left = 0, float top = 0) {
        for (const FilledRectangle& band : surface.Painted()) Fill(band, left, top);
    }

    void Paint(const Shape& shape) {
        const Area& area = shape.area;
        const QRect outer = Pixels(area.left, area.top, area.Right(), area.Bottom());
        if (!shape.rounded && shape.thickness == 0) {
            painter_.fillRect(outer, Shown_Color(shape.fill));
            return;
        }
        const double pen = std::max(1.0, std::round(shape.thickness * scale_));
        const QRectF middle = QRectF(outer).adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2);
        const double corner = shape.rounded ? RoundedCorner * scale_ : 0;
        painter_.setRenderHint(QPainter::Antialiasing, shape.rounded);
        painter_.setPen(
            QPen(Shown_Color(shape.border), pen, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter_.setBrush(Shown_Color(shape.fill));
        painter_.drawRoundedRect(middle, corner, corner);
        painter_.setRenderHint(QPainter::Antialiasing, false);
    }

    void Paint(const DrawnLabel& label) {
        const Area& area = label.area;
        const QRect place = Pixels(area.left, area.top, area.Right(), area.Bottom());
        const double pixels = label.font.points * TwipsPerPoint * scale_;
        const double points = pixels * PointsPerInch / painter_.device()->logicalDpiY();
        painter_.save();
        painter_.setFont(Japanese_Font(label.font.family, points));
        painter_.setPen(Shown_Color(label.color));
        if (label.wraps) painter_.setClipRect(place);
        const int alignment = label.alignment == Alignment::left     ? Qt::AlignLeft
                              : label.alignment == Alignment::centre ? Qt::AlignHCenter
                                                                     : Qt::AlignRight;
        const int wrapping = label.wraps ? Qt::TextWordWrap : Qt::TextDontClip;
        painter_.drawText(place, alignment | Qt::AlignTop | wrapping,
                          Shown(label.text).replace("\r\n", "\n"));
        painter_.restore();
    }

    /// A row of large text is cut off at its edges.
    void Paint_Row(const DrawnLabel& row) {
        const Area& area = row.area;
        painter_.save();
        painter_.setClipRect(Pixels(area.left, area.top, area.Right(), area.Bottom()));
        Paint(row);
        painter_.restore();
    }

 private:
    static constexpr double RoundedCorner = 180, TwipsPerPoint = 20, PointsPerInch = 72;

    QRect Pixels(float left, float top, float right, float bottom) const {
        const QPoint first(Pixel(left), Pixel(top - PreviewView::Top));
        return {first, QPoint(Pixel(right) - 1, Pixel(bottom - PreviewView::Top) - 1)};
    }

    int Pixel(float twips) const { return static_cast<int>(std::lround(twips * scale_)); }

    QPainter& painter_;
    double scale_;
};

}  // namespace

void Paint_Preview(QPainter& painter, const Preview& preview, double scale) {
    TwipPainter twips(painter, scale);
    twips.Paint(preview.surface);
    twips.Paint(preview.shpBack1);
    twips.Paint(preview.shpBackMask2);
    for (const DrawnLabel& row : preview.lblBack1) twips.Paint_Row(row);
    twips.Paint(preview.shpYearLine, Preview::YearLineArea.left, Preview::YearLineArea.top);
    twips.Paint(preview.shpPlayLine, Preview::PlayLineArea.left, Preview::PlayLineArea.top);
    for (const std::size_t bar : {0, 2, 1}) twips.Paint(preview.shpPFLine[bar]);
    twips.Paint(preview.shpVcPic);
    for (const DrawnLabel* label : {&preview.lblT_PF, &preview.lblT_Year, &preview.lblT_Play,
                                    &preview.lblT_VCTitle, &preview.lblT_ESRB}) {
        twips.Paint(*label);
    }
    twips.Paint(preview.Shape1);
}

PreviewView::PreviewView(Preview& preview, QWidget* parent) : QWidget(parent), preview_(preview) {
    setAccessibleName("Banner preview");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(PreviewView::sizeHint() / 2);
    preview_.Drawn = [view = QPointer<QWidget>(this)] {
        if (view) view->update();
    };
}

QSize PreviewView::sizeHint() const {
    return {static_cast<int>(preview_.surface.Width() / TwipsPerPixel),
            static_cast<int>((preview_.surface.Height() - Top) / TwipsPerPixel)};
}

double PreviewView::Scale() const {
    return std::min(width() / static_cast<double>(preview_.surface.Width()),
                    height() / static_cast<double>(preview_.surface.Height() - Top));
}

double PreviewView::Left() const {
    return std::floor((width() - preview_.surface.Width() * Scale()) / 2);
}

void PreviewView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    painter.translate(Left(), 0);
    painter.scale(1 / ratio, 1 / ratio);
    Paint_Preview(painter, preview_, Scale() * ratio);
}

void PreviewView::mousePressEvent(QMouseEvent* event) {
    if (!clicked) return;
    const QPointF at = event->position();
    clicked(static_cast<float>((at.x() - Left()) / Scale()),
            static_cast<float>(at.y() / Scale()) + Top);
}

}  // namespace bannersmith
