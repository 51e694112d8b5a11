#include "ui/qt/slider_mirror.h"

#include "ui/qt/form_window.h"

#include <QAbstractSlider>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace zephyne {
namespace {

constexpr int page_step = 10;
constexpr int wheel_step = 3;
constexpr int wheel_notch = 120;  // what Qt reports for one

paint::SliderKind kind_of(const Slider& slider) {
    if (slider.orientation() == Orientation::horizontal) return paint::SliderKind::Position;
    return slider.legend() == "R" ? paint::SliderKind::RightVolume : paint::SliderKind::LeftVolume;
}

}  // namespace

SliderMirror::SliderMirror(FormWindow& window, Slider& slider)
    : Mirror(window, slider),
      slider_(slider),
      kind_(kind_of(slider)),
      widget_(new QAbstractSlider(&window)) {
    set_widget(widget_);
    widget_->setOrientation(kind_ == paint::SliderKind::Position ? Qt::Horizontal : Qt::Vertical);
    widget_->setRange(Slider::lowest, Slider::highest);
    widget_->setSingleStep(1);
    widget_->setPageStep(page_step);
    widget_->setMouseTracking(true);
    // Screen readers set the value of the widget.
    connect(widget_, &QAbstractSlider::valueChanged, this, [this](int value) {
        if (value != slider_.value()) slider_.step_to(value);
    });
}

void SliderMirror::show_property(Property property) {
    if (property == Property::value) widget_->setValue(slider_.value());
    if (property == Property::enabled || property == Property::visible) {
        // No release comes to a slider that is taken away while it is held.
        if (!slider_.usable() || !slider_.shown()) release();
    }
}

double SliderMirror::fraction() const {
    return static_cast<double>(slider_.value() - Slider::lowest) /
           (Slider::highest - Slider::lowest);
}

QPoint SliderMirror::device_point(const QPointF& position) const {
    return window().pixels().device(position + QPointF(origin_in_window(*widget_)));
}

bool SliderMirror::is_on_cap(const QPoint& device_point) const {
    return paint::slider_cap_box(window().pixels().scale(), box(), kind_, fraction())
        .contains(device_point);
}

void SliderMirror::drag_to(const QPointF& position) {
    const double at = paint::slider_value_at(window().pixels().scale(), box(), kind_,
                                             device_point(position) - grip_);
    slider_.drag_to(Slider::lowest +
                    static_cast<int>(std::lround(at * (Slider::highest - Slider::lowest))));
}

bool SliderMirror::press(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton || dragging_) return true;
    const QPoint point = device_point(event.position());
    const bool held_by_cap = is_on_cap(point);
    grip_ = QPoint();
    if (held_by_cap) {
        grip_ = point -
                paint::slider_cap_box(window().pixels().scale(), box(), kind_, fraction()).center();
    }
    dragging_ = true;
    slider_.press();
    if (!held_by_cap && dragging_) drag_to(event.position());
    repaint();
    return true;
}

bool SliderMirror::move(const QMouseEvent& event) {
    if (dragging_) {
        drag_to(event.position());
    } else if (const bool over = is_on_cap(device_point(event.position())); over != over_cap_) {
        over_cap_ = over;
        repaint();
    }
    return true;
}

bool SliderMirror::release() {
    if (!std::exchange(dragging_, false)) return true;
    repaint();
    slider_.release();
    return true;
}

bool SliderMirror::turn(const QWheelEvent& event) {
    wheel_turn_ += event.angleDelta().y();
    const int notches = wheel_turn_ / wheel_notch;
    wheel_turn_ -= notches * wheel_notch;
    // Away from the user: onwards, or up, where a vertical slider has its lowest value.
    const int way = slider_.orientation() == Orientation::horizontal ? 1 : -1;
    if (notches != 0) slider_.step_to(slider_.value() + way * notches * wheel_step);
    return true;
}

bool SliderMirror::handle(QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return press(static_cast<QMouseEvent&>(event));
        case QEvent::MouseMove:
            return move(static_cast<QMouseEvent&>(event));
        case QEvent::MouseButtonRelease:
            return static_cast<QMouseEvent&>(event).button() == Qt::LeftButton && release();
        case QEvent::Wheel:
            return turn(static_cast<QWheelEvent&>(event));
        case QEvent::WindowDeactivate:
            release();  // a message box that comes up keeps the mouse's own release from us
            return false;
        case QEvent::Leave:
            over_cap_ = false;
            return false;
        default:
            return false;
    }
}

bool SliderMirror::key_pressed(QKeyEvent& event) {
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
    const int value = slider_.value();
    switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            slider_.step_to(value - 1);
            return true;
        case Qt::Key_Right:
        case Qt::Key_Down:
            slider_.step_to(value + 1);
            return true;
        case Qt::Key_PageUp:
            slider_.step_to(value - page_step);
            return true;
        case Qt::Key_PageDown:
            slider_.step_to(value + page_step);
            return true;
        case Qt::Key_Home:
            slider_.step_to(Slider::lowest);
            return true;
        case Qt::Key_End:
            slider_.step_to(Slider::highest);
            return true;
        default:
            return false;
    }
}

void SliderMirror::paint(QPainter& painter, const paint::Scale& scale) const {
    paint::ControlState state = look();
    state.pointer = dragging_   ? paint::Pointer::Down
                    : over_cap_ ? paint::Pointer::Over
                                : paint::Pointer::Away;
    paint::slider(painter, scale, box(), state, kind_, fraction());
}

}  // namespace zephyne
