// The position slider and the two volume sliders.
#pragma once

#include "ui/qt/paint/controls.h"
#include "ui/qt/paint/scale.h"

#include <QPoint>
#include <QRect>

class QPainter;

namespace zephyne::paint {

enum class SliderKind {
    Position,     // horizontal, ticks below
    LeftVolume,   // vertical, ticks at its right, legend L
    RightVolume,  // vertical, ticks at its left, legend R
};

// value: 0 to 1 along the travel, from the left or from the top; outside is clamped. The
// level of a vertical slider is lit from the cap down. pointer: that of the cap.
void slider(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state,
            SliderKind kind, double value);

// Where the cap is, for the mouse.
QRect slider_cap_box(const Scale& scale, const QRect& box, SliderKind kind, double value);

// The value, 0 to 1, that puts the middle of the cap under a point in device pixels; clamped.
double slider_value_at(const Scale& scale, const QRect& box, SliderKind kind, const QPoint& point);

}  // namespace zephyne::paint
