#pragma once

#include <QWidget>
#include <functional>

#include "colors/window/preview.h"

namespace bannersmith {

/// Paints a preview at the scale that fits the widget, in the middle of its width. Its upper edge
/// is `Top` twips from that of the window that the preview is laid out for.
class PreviewView : public QWidget {
 public:
    static constexpr float Top = 2400;
    static constexpr double TwipsPerPixel = 15;

    explicit PreviewView(Preview& preview, QWidget* parent = nullptr);

    QSize sizeHint() const override;

    /// A click, in twips of the preview.
    std::function<void(float x, float y)> clicked;

    /// How many pixels of the widget a twip is, and the pixel where 0 twips from the left lies.
    double Scale() const;
    double Left() const;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

 private:
    Preview& preview_;
};

/// Paints a preview with `scale` device pixels to the twip, from `PreviewView::Top` on.
void Paint_Preview(QPainter& painter, const Preview& preview, double scale);

}  // namespace bannersmith
