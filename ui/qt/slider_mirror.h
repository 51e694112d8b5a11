// A slider: its cap is dragged, stepped by key or wheel, or called to a place in the groove.
#pragma once

#include "core/controls/slider.h"
#include "ui/qt/mirror.h"
#include "ui/qt/paint/sliders.h"

class QAbstractSlider;
class QMouseEvent;
class QPointF;
class QWheelEvent;

namespace zephyne {

class SliderMirror final : public Mirror {
  public:
    SliderMirror(FormWindow& window, Slider& slider);
    void paint(QPainter& painter, const paint::Scale& scale) const override;

  private:
    void show_property(Property property) override;
    bool key_pressed(QKeyEvent& event) override;
    bool handle(QEvent& event) override;
    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release();
    bool turn(const QWheelEvent& event);
    void drag_to(const QPointF& position);
    double fraction() const;
    QPoint device_point(const QPointF& position) const;
    bool is_on_cap(const QPoint& device_point) const;

    Slider& slider_;
    paint::SliderKind kind_;
    QAbstractSlider* widget_;
    QPoint grip_;  // where the cap is held, from its middle, device pixels
    int wheel_turn_ = 0;
    bool dragging_ = false;
    bool over_cap_ = false;
};

}  // namespace zephyne
