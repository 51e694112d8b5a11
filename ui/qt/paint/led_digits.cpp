#include "ui/qt/paint/led_digits.h"

#include "ui/qt/paint/kept_picture.h"
#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/shapes.h"

#include <QPainter>
#include <QPolygonF>
#include <array>
#include <vector>

namespace zephyne::paint {

namespace {

enum Segment : unsigned {
    A = 1 << 0,
    B = 1 << 1,
    C = 1 << 2,
    D = 1 << 3,
    E = 1 << 4,
    F = 1 << 5,
    G = 1 << 6,
};

constexpr int segment_count = 7;

// In a cell of 100 x 200, y downward, before the slant.
const std::array<std::vector<QPointF>, segment_count>& segment_shapes() {
    static const std::array<std::vector<QPointF>, segment_count> shapes{{
        {{14, 8}, {82, 8}, {66, 24}, {30, 24}},
        {{84, 10}, {84, 98}, {76, 98}, {68, 90}, {68, 26}},
        {{84, 102}, {84, 190}, {68, 174}, {68, 110}, {76, 102}},
        {{30, 176}, {66, 176}, {82, 192}, {14, 192}},
        {{12, 102}, {20, 102}, {28, 110}, {28, 174}, {12, 190}},
        {{12, 10}, {28, 26}, {28, 90}, {20, 98}, {12, 98}},
        {{22, 100}, {30, 92}, {66, 92}, {74, 100}, {66, 108}, {30, 108}},
    }};
    return shapes;
}

constexpr std::array<unsigned, 12> digit_segments{
    A | B | C | D | E | F,
    B | C,
    A | B | D | E | G,
    A | B | C | D | G,
    B | C | F | G,
    A | C | D | F | G,
    A | C | D | E | F | G,
    A | B | C,
    A | B | C | D | E | F | G,
    A | B | C | D | F | G,
    0,          // blank
    A | G | D,  // reset
};

constexpr int display_colors = 3;
constexpr int first_blank = 31;
constexpr int first_reset = 34;
constexpr int last_digit_picture = first_reset + display_colors - 1;

struct Lamp {
    int display;
    int shown;  // digit, blank or reset; or the frame of the status
};

Lamp digit_lamp(int picture) {
    if (picture >= first_reset && picture <= last_digit_picture)
        return {picture - first_reset, reset_digit};
    if (picture >= first_blank && picture < first_reset)
        return {picture - first_blank, blank_digit};
    return {(picture - 1) / 10, (picture - 1) % 10};
}

Lamp status_lamp(int picture) {
    return {(picture - 1) / 4, (picture - 1) % 4 + 1};
}

QPolygonF segment_in(const QRectF& cell, int segment) {
    QPolygonF outline;
    for (const QPointF& point : segment_shapes()[static_cast<std::size_t>(segment)]) {
        const double slanted = point.x() + (100 - point.y()) * 0.08 + 2;
        outline.append(QPointF(cell.left() + slanted * cell.width() / 100,
                               cell.top() + point.y() * cell.height() / 200));
    }
    return outline;
}

void paint_digit(QPainter& painter, const Scale& scale, const QRectF& cell, const Lamp& lamp) {
    const QColor color = led_color(lamp.display);
    const unsigned lit = lit_segments(lamp.shown);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(faded(color, 0.11));
    for (int segment = 0; segment < segment_count; ++segment)
        if (!(lit >> segment & 1)) painter.drawPolygon(segment_in(cell, segment));

    const auto glowing = [&](const QPen& pen, const QBrush& brush) {
        painter.setPen(pen);
        painter.setBrush(brush);
        for (int segment = 0; segment < segment_count; ++segment)
            if (lit >> segment & 1) painter.drawPolygon(segment_in(cell, segment));
    };
    const auto halo = [&](double width, double opacity) {
        return QPen(faded(color, opacity), scale.exact(width), Qt::SolidLine, Qt::FlatCap,
                    Qt::RoundJoin);
    };
    glowing(halo(5, 0.10), Qt::NoBrush);
    glowing(halo(2, 0.22), Qt::NoBrush);
    glowing(Qt::NoPen, color);
}

void paint_status(QPainter& painter, const Scale& scale, const QRectF& cell, const Lamp& lamp) {
    const QColor color = led_color(lamp.display);
    const bool lit[] = {lamp.shown == 1 || lamp.shown == 3, lamp.shown == 1 || lamp.shown == 4};
    const double heights[] = {66, 134};
    for (int dot = 0; dot < 2; ++dot) {
        const QPointF center(cell.center().x() + scale.exact((100 - heights[dot]) * 0.016),
                             cell.top() + heights[dot] * cell.height() / 200);
        if (lit[dot]) fill_disc(painter, center, scale.exact(4.2), faded(color, 0.16));
        fill_disc(painter, center, scale.exact(2.2), lit[dot] ? color : faded(color, 0.11));
    }
}

using PaintLamp = void (*)(QPainter&, const Scale&, const QRectF&, const Lamp&);

// Draws by way of a kept picture that is larger than the cell by the reach of the glow.
void draw_kept(QPainter& painter, const Scale& scale, const QRect& cell, const QString& family,
               const Lamp& lamp, PaintLamp paint) {
    const int margin = scale.px(3);
    const QString name = QStringLiteral("zephyne-led/%1/%2/%3/%4x%5/%6")
                             .arg(family)
                             .arg(lamp.display)
                             .arg(lamp.shown)
                             .arg(cell.width())
                             .arg(cell.height())
                             .arg(scale.s);
    const QRect area = shrunk(cell, -margin);
    const QRectF inside(QPointF(margin, margin), QSizeF(cell.size()));
    painter.drawPixmap(area.topLeft(), kept_picture(name, area.size(), [&](QPainter& on_picture) {
                           paint(on_picture, scale, inside, lamp);
                       }));
}

}  // namespace

unsigned lit_segments(int digit) {
    if (digit < 0 || digit >= static_cast<int>(digit_segments.size())) return 0;
    return digit_segments[static_cast<std::size_t>(digit)];
}

void led_digit(QPainter& painter, const Scale& scale, const QRect& cell, int picture) {
    if (picture < 1 || cell.isEmpty()) return;
    draw_kept(painter, scale, cell, QStringLiteral("digit"), digit_lamp(picture), paint_digit);
}

void led_status(QPainter& painter, const Scale& scale, const QRect& cell, int picture) {
    if (picture < 1 || cell.isEmpty()) return;
    draw_kept(painter, scale, cell, QStringLiteral("status"), status_lamp(picture), paint_status);
}

}  // namespace zephyne::paint
