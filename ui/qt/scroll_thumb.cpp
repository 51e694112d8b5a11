#include "ui/qt/scroll_thumb.h"

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace zephyne {

ScrollThumb::ScrollThumb(QAbstractScrollArea& area, paint::ScrollPlace place)
    : QWidget(&area), area_(area), place_(place) {
    area_.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const QScrollBar* bar = area_.verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, [this] { update(); });
    connect(bar, &QScrollBar::rangeChanged, this, [this] { update(); });
}

bool ScrollThumb::needed() const {
    return range().maximum > 0;
}

void ScrollThumb::lay_out(const Pixels& pixels, const QRect& box) {
    pixels_ = pixels;
    track_ = paint::scroll_track(pixels.scale(), box, place_);
    setGeometry(pixels.containing(track_).translated(-origin_in_window(area_)));
    setVisible(needed());
    raise();
}

paint::ScrollRange ScrollThumb::range() const {
    const QScrollBar* bar = area_.verticalScrollBar();
    return {bar->maximum() - bar->minimum(), bar->pageStep(), bar->value() - bar->minimum()};
}

int ScrollThumb::device_y(const QMouseEvent& event) const {
    return pixels_.device(event.position() + QPointF(origin_in_window(*this))).y();
}

void ScrollThumb::paintEvent(QPaintEvent* /*event*/) {
    if (!area_.isEnabled()) return;
    DevicePainter painter(*this);
    paint::scroll_bar(painter, pixels_.scale(), track_, range(), place_, pointer_);
}

void ScrollThumb::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QRect thumb = paint::scroll_thumb(pixels_.scale(), track_, range());
    const int y = device_y(*event);
    if (y < thumb.top()) {
        area_.verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
    } else if (y > thumb.bottom()) {
        area_.verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    } else {
        grip_ = y - thumb.top();
        pointer_ = paint::Pointer::Down;
        update();
    }
}

void ScrollThumb::mouseMoveEvent(QMouseEvent* event) {
    if (pointer_ != paint::Pointer::Down) return;
    QScrollBar* bar = area_.verticalScrollBar();
    bar->setValue(bar->minimum() + paint::scroll_value_at(pixels_.scale(), track_, range(),
                                                          device_y(*event) - grip_));
}

void ScrollThumb::mouseReleaseEvent(QMouseEvent* /*event*/) {
    pointer_ = underMouse() ? paint::Pointer::Over : paint::Pointer::Away;
    update();
}

void ScrollThumb::wheelEvent(QWheelEvent* event) {
    QCoreApplication::sendEvent(area_.verticalScrollBar(), event);
}

void ScrollThumb::enterEvent(QEnterEvent* /*event*/) {
    if (pointer_ == paint::Pointer::Away) pointer_ = paint::Pointer::Over;
    update();
}

void ScrollThumb::leaveEvent(QEvent* /*event*/) {
    if (pointer_ == paint::Pointer::Over) pointer_ = paint::Pointer::Away;
    update();
}

}  // namespace zephyne
