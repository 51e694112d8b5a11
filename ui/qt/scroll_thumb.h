// Our scroll bar: moves a scroll area that does not show its own.
#pragma once

#include "ui/qt/paint/lists.h"
#include "ui/qt/pixels.h"

#include <QWidget>

class QAbstractScrollArea;

namespace zephyne {

class ScrollThumb final : public QWidget {
  public:
    // A child of the area, at its right edge. It is hidden while everything can be seen.
    ScrollThumb(QAbstractScrollArea& area, paint::ScrollPlace place);

    bool needed() const;
    const QRect& track() const { return track_; }  // device pixels of the window

    // box: of the list or text box, device pixels of the window.
    void lay_out(const Pixels& pixels, const QRect& box);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    paint::ScrollRange range() const;
    int device_y(const QMouseEvent& event) const;

    QAbstractScrollArea& area_;
    paint::ScrollPlace place_;
    Pixels pixels_;
    QRect track_;
    int grip_ = 0;  // where the thumb is held, from its top
    paint::Pointer pointer_ = paint::Pointer::Away;
};

}  // namespace zephyne
