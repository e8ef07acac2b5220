// Repainting the preview, beside the same rectangles, shapes and texts painted bare.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include "desktop/fonts.h"
#include "desktop/preview_view.h"
#include "desktop/qt_desktop.h"
#include "desktop/text.h"
#include "desktop/widgets.h"
#include "generate/banners.h"
#include "mainwindow/game_info.h"

using namespace bannersmith;

namespace {

constexpr double Scale = 1 / PreviewView::TwipsPerPixel;

struct Painted {
    Painted() {
        info.Refill();
        preview.Draw(Shipped_Schemes()[2].scheme, info.Texts());
    }

    QtDesktop desktop;
    Banner banner = Banner::From_Bytes(Seven_Language_Banner());
    GameInfo info{banner, [](const Edit&) {}};
    Preview preview{desktop};
    QImage image{774, 488, QImage::Format_ARGB32_Premultiplied};
};

void Repaint(benchmark::State& state) {
    Painted p;
    for (auto _ : state) {
        QPainter painter(&p.image);
        Paint_Preview(painter, p.preview, Scale);
    }
}

QRect Pixels(float left, float top, float right, float bottom) {
    const auto at = [](float twips) { return static_cast<int>(std::lround(twips * Scale)); };
    return {QPoint(at(left), at(top - PreviewView::Top)), QPoint(at(right) - 1, at(bottom - PreviewView::Top) - 1)};
}

struct BareText {
    QRect place;
    QString text;
    QFont font;
    QColor color;
    int flags;
};

void BarePrimitives(benchmark::State& state) {
    Painted p;
    std::vector<std::pair<QRect, QColor>> fills;
    const auto surface = [&](const Surface& painted, float left, float top) {
        for (const FilledRectangle& r : painted.Painted()) {
            fills.emplace_back(Pixels(left + r.x1, top + r.y1, left + r.x2, top + r.y2), Shown_Color(r.color));
        }
    };
    surface(p.preview.surface, 0, 0);
    surface(p.preview.shpYearLine, Preview::YearLineArea.left, Preview::YearLineArea.top);
    surface(p.preview.shpPlayLine, Preview::PlayLineArea.left, Preview::PlayLineArea.top);
    std::vector<Shape> shapes(p.preview.shpPFLine.begin(), p.preview.shpPFLine.end());
    shapes.insert(shapes.end(), {p.preview.Shape1, p.preview.shpBack1, p.preview.shpBackMask2, p.preview.shpVcPic});
    std::vector<BareText> texts;
    const auto text = [&](const DrawnLabel& label) {
        const Area& a = label.area;
        const double points = label.font.points * 20 * Scale * 72 / p.image.logicalDpiY();
        texts.push_back({Pixels(a.left, a.top, a.Right(), a.Bottom()), Shown(label.text).replace("\r\n", "\n"),
                         Japanese_Font(label.font.family, points), Shown_Color(label.color),
                         label.wraps ? Qt::TextWordWrap : Qt::TextDontClip});
    };
    for (const DrawnLabel& row : p.preview.lblBack1) text(row);
    for (const DrawnLabel* label : {&p.preview.lblT_PF, &p.preview.lblT_Year, &p.preview.lblT_Play,
                                    &p.preview.lblT_VCTitle, &p.preview.lblT_ESRB}) {
        text(*label);
    }
    for (auto _ : state) {
        QPainter painter(&p.image);
        for (const auto& [place, color] : fills) painter.fillRect(place, color);
        for (const Shape& shape : shapes) {
            const QRect place = Pixels(shape.area.left, shape.area.top, shape.area.Right(), shape.area.Bottom());
            if (shape.thickness == 0) {
                painter.fillRect(place, Shown_Color(shape.fill));
                continue;
            }
            painter.setRenderHint(QPainter::Antialiasing, shape.rounded);
            painter.setPen(QPen(Shown_Color(shape.border), std::max(1.0, shape.thickness * Scale)));
            painter.setBrush(Shown_Color(shape.fill));
            painter.drawRoundedRect(place, shape.rounded ? 12 : 0, shape.rounded ? 12 : 0);
        }
        painter.setRenderHint(QPainter::Antialiasing, false);
        for (const BareText& t : texts) {
            painter.setFont(t.font);
            painter.setPen(t.color);
            painter.drawText(t.place, t.flags, t.text);
        }
    }
}

BENCHMARK(Repaint);
BENCHMARK(BarePrimitives);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
