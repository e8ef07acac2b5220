#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include "liveview/live_view.h"

namespace bannersmith {

/// The picture of a live view, as large as there is room, its outlines, and what is under the
/// mouse.
class LivePicture : public QWidget {
 public:
    explicit LivePicture(LiveView& live);

    Event Painted;                                  ///< somebody sees it
    std::function<void(float x, float y)> clicked;  ///< in pixels of the picture

    /// Shows what the live view has drawn.
    void Take();

    QSize sizeHint() const override { return {608, 456}; }
    QSize minimumSizeHint() const override { return {200, 150}; }

 protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

 private:
    QRectF Place() const;
    QPointF In_Picture(QPointF at) const;

    LiveView& live_;
    QImage image_;
};

/// A live view with its controls. `live` must outlive it.
class LiveViewWidget : public QWidget {
 public:
    explicit LiveViewWidget(LiveView& live);

    std::function<void(float x, float y)> clicked;  ///< the picture, in its pixels

 protected:
    void hideEvent(QHideEvent* event) override;

 private:
    void Draw_Soon();
    void Follow_Playing();

    LiveView& live_;
    LivePicture* picture_;
    QTimer idle_, clock_;
    QElapsedTimer played_;
    bool is_seen_ = false;
};

}  // namespace bannersmith
