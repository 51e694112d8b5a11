// The few shapes that all surfaces are drawn with. For the files of this folder only.
//
// They leave the painter with another pen, brush and antialiasing; transform and clip stay.
#pragma once

#include <QBrush>
#include <QColor>
#include <QPainter>
#include <QPen>
#include <QRect>
#include <QRectF>

namespace zephyne::paint {

inline void fill(QPainter& painter, const QRect& box, const QColor& color) {
    painter.fillRect(box, color);
}

inline void fill_round(QPainter& painter, const QRectF& box, double radius, const QBrush& brush) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(box, radius, radius);
}

// A line of the given width whose outer edge is the box with that radius.
inline void stroke_round(QPainter& painter, const QRectF& box, double radius, double width,
                         const QColor& color) {
    const double half = width / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width));
    painter.drawRoundedRect(box.adjusted(half, half, -half, -half), radius - half, radius - half);
}

inline void fill_disc(QPainter& painter, const QPointF& center, double radius,
                      const QBrush& brush) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawEllipse(center, radius, radius);
}

inline QBrush vertical_gradient(const QRectF& box, const QColor& top, const QColor& bottom) {
    QLinearGradient gradient(box.topLeft(), box.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    return gradient;
}

}  // namespace zephyne::paint
