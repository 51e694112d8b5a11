#include "ui/qt/paint/message_pictures.h"

#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/shapes.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace zephyne::paint {

void loudspeaker(QPainter& painter, const Scale& scale, const QRect& box) {
    struct Ring {
        double radius;  // of the box's width
        QColor color;
    };
    constexpr Ring rings[] = {{0.42, rgb(0x0B0C0E)},  {0.39, rgb(0x4A5058)}, {0.335, rgb(0x1B1E22)},
                              {0.315, rgb(0x2A2E33)}, {0.16, rgb(0x0F1113)}, {0.14, rgb(0x565D65)}};
    const double size = box.width();
    const double radius = scale.exact(6);
    const QPointF center = QRectF(box).center();
    const QRect plate = shrunk(box, scale.stroke());

    fill_round(painter, box.translated(0, scale.stroke()), radius, light(0.09));
    fill_round(painter, box, radius, palette::well_edge);
    fill_round(painter, plate, radius - scale.exact(1),
               vertical_gradient(plate, palette::key_down_top, palette::key_down_bottom));
    for (const Ring& ring : rings) fill_disc(painter, center, ring.radius * size, ring.color);

    painter.setBrush(faded(palette::quiet, 0.70));
    painter.drawEllipse(center + QPointF(-0.04, -0.05) * size, 0.06 * size, 0.045 * size);

    for (const double x : {0.1, 0.9})
        for (const double y : {0.1, 0.9})
            fill_disc(painter, QPointF(box.left() + x * size, box.top() + y * size),
                      scale.exact(1.3), palette::well_edge);
}

void sound_waves(QPainter& painter, const Scale& scale, const QRect& box, int frame) {
    constexpr int arcs = 3;
    constexpr double half_angle = 42;
    const double width = box.width();
    const QPointF center(box.left() - 0.06 * width, QRectF(box).center().y());

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    for (int arc = 0; arc < arcs; ++arc) {
        int distance = ((frame - 1 - 2 * arc) % wave_frames + wave_frames) % wave_frames;
        if (distance > wave_frames / 2) distance -= wave_frames;
        const double brightness = std::max(0.0, 1 - std::abs(distance) / 2.2);
        const double radius = (0.30 + 0.26 * arc) * width;
        const QRectF circle(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius);

        QPainterPath path;
        path.arcMoveTo(circle, -half_angle);
        path.arcTo(circle, -half_angle, 2 * half_angle);
        painter.strokePath(path, QPen(faded(palette::ice, 0.18 + 0.82 * brightness),
                                      scale.exact(2.6), Qt::SolidLine, Qt::RoundCap));
    }
}

void note_pad(QPainter& painter, const Scale&, const QRect& box) {
    constexpr double design_size = 32;
    const QColor paper = rgb(0xE8EBEE);
    const QColor writing = rgb(0x565D65);

    const QTransform before = painter.transform();
    painter.translate(box.topLeft());
    painter.scale(box.width() / design_size, box.height() / design_size);

    fill_round(painter, QRectF(2, 2, 23, 28), 1.5, paper);
    painter.setBrush(palette::quiet);
    painter.drawPolygon(QPolygonF({{18, 2}, {25, 9}, {18, 9}}));

    const double written[] = {9, 14, 12, 5};
    double y = 11;
    for (const double length : written) {
        painter.fillRect(QRectF(6, y, length, 1.4), writing);
        y += 5.2;
    }

    const auto pencil = [&painter](const QPointF& from, const QPointF& to, const QColor& color) {
        painter.setPen(QPen(color, 4, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(from, to);
    };
    const QPointF end(29.2, 4.2);
    pencil({19.6, 16.2}, end, palette::ice);
    pencil(end, {30.4, 2.7}, palette::off_glyph);

    painter.setTransform(before);
}

void light_bulb(QPainter& painter, const Scale&, const QRect& box) {
    constexpr double design_size = 46;
    const QPointF middle(23, 18);
    const QTransform before = painter.transform();
    painter.translate(box.topLeft());
    painter.scale(box.width() / design_size, box.height() / design_size);

    fill_disc(painter, middle, 18, faded(palette::ice, 0.12));
    fill_disc(painter, middle, 15.5, faded(palette::ice, 0.20));

    QPainterPath glass;
    glass.addEllipse(middle, 12, 12);
    glass.addPolygon(QPolygonF({{15.5, 26}, {30.5, 26}, {27.5, 33}, {18.5, 33}, {15.5, 26}}));
    glass.setFillRule(Qt::WindingFill);
    painter.fillPath(glass, palette::ice_light);

    QPainterPath filament;
    filament.moveTo(20, 32);
    filament.lineTo(18.5, 19);
    filament.lineTo(21.5, 22);
    filament.lineTo(23, 18.5);
    filament.lineTo(24.5, 22);
    filament.lineTo(27.5, 19);
    filament.lineTo(26, 32);
    painter.strokePath(filament,
                       QPen(palette::ice_dim, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));

    for (const double top : {34.0, 37.0, 40.0}) {
        const double inset = top > 39 ? 2 : 0;
        fill_round(painter, QRectF(18.5 + inset, top, 9 - 2 * inset, 2.2), 1, palette::off_glyph);
    }
    painter.setTransform(before);
}

}  // namespace zephyne::paint
