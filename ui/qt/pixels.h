// Between the three measures of a window: the twips of the sheets, Qt's logical pixels, and the
// pixels of the device, in which everything is painted so that edges are sharp at any scale.
//
// Two factors lie between them. The user's own is known to Qt's widgets (a window is larger in
// logical pixels); the display's ratio is Qt's affair and only matters where we paint.
#pragma once

#include "core/controls/control.h"
#include "ui/qt/paint/scale.h"

#include <QPainter>
#include <QPoint>
#include <QRect>

class QWidget;

namespace zephyne {

struct Pixels {
    double factor = 1;  // logical pixels per px at 100 %
    double ratio = 1;   // device pixels per logical pixel

    paint::Scale scale() const { return {factor * ratio}; }
    paint::Scale logical_scale() const { return {factor}; }  // for what Qt itself lays out

    // The painted box of a place, in device pixels.
    QRect box(const Place& place, const Inset& inset = {}) const;

    // The smallest logical rectangle that holds these device pixels.
    QRect containing(const QRect& device) const;

    // The largest one that lies within them.
    QRect within(const QRect& device) const;

    // The device pixels of a logical rectangle, with the rounding that Qt clips by; and the
    // device pixel that holds a logical point.
    QRect device(const QRect& logical) const;
    QPoint device(const QPointF& logical) const;

    int logical(int twips) const;
    int twips(int logical) const;
};

// The user's factor from the environment variable ZEPHYNE_SCALE; 1 unless it is a number from
// 1 to 4.
double user_scale_factor();

// The widget's window, in its measure at present.
Pixels pixels_of(const QWidget& widget, double factor);

// Where a widget's top left corner lies in its window.
QPoint origin_in_window(const QWidget& widget);

// A painter for a widget's paint event, whose unit is the device pixel and whose origin is that of
// the widget's window.
class DevicePainter final : public QPainter {
  public:
    explicit DevicePainter(QWidget& widget);
};

}  // namespace zephyne
