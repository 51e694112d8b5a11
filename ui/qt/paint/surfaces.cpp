#include "ui/qt/paint/surfaces.h"

#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/shapes.h"
#include "ui/qt/paint/type.h"

namespace zephyne::paint {

namespace {

// A row one stroke high, so many strokes below the top of a box, clear of its round corners.
QRect row_inside(const Scale& scale, const QRect& box, int strokes_down) {
    const int stroke = scale.stroke();
    const int side = scale.px(2);
    return QRect(box.left() + side, box.top() + strokes_down * stroke, box.width() - 2 * side,
                 stroke);
}

struct KeyColors {
    QColor top;
    QColor bottom;
};

KeyColors key_colors(KeyFace face) {
    switch (face) {
        case KeyFace::Up:
            return {palette::key_top, palette::key_bottom};
        case KeyFace::Hover:
            return {palette::key_hover_top, palette::key_hover_bottom};
        case KeyFace::Down:
            return {palette::key_down_top, palette::key_down_bottom};
        case KeyFace::Off:
            break;
    }
    return {palette::key_off, palette::key_off};
}

}  // namespace

void faceplate(QPainter& painter, const Scale& scale, const QRect& client) {
    const int stroke = scale.stroke();
    painter.fillRect(client, vertical_gradient(client, palette::face_top, palette::face_bottom));
    const QRect middle = client.adjusted(0, stroke, 0, -stroke);
    fill(painter, QRect(client.left(), client.top(), client.width(), stroke), light(0.22));
    fill(painter, QRect(client.left(), middle.bottom() + 1, client.width(), stroke), shade(0.50));
    fill(painter, QRect(client.left(), middle.top(), stroke, middle.height()), light(0.07));
    fill(painter, QRect(client.right() + 1 - stroke, middle.top(), stroke, middle.height()),
         shade(0.35));
}

void groove(QPainter& painter, const Scale& scale, const QRect& box) {
    const int stroke = scale.stroke();
    const bool vertical = box.height() > box.width();
    const QRect dark(box.topLeft(),
                     vertical ? QSize(stroke, box.height()) : QSize(box.width(), stroke));
    fill(painter, dark, shade(0.55));
    fill(painter, dark.translated(vertical ? stroke : 0, vertical ? 0 : stroke), light(0.10));
}

void key(QPainter& painter, const Scale& scale, const QRect& box, KeyFace face) {
    const int stroke = scale.stroke();
    const double radius = scale.exact(key_radius);
    const QRect inner = shrunk(box, stroke);
    const KeyColors colors = key_colors(face);

    fill_round(painter, box.translated(0, stroke), radius, light(0.09));
    fill_round(painter, box, radius, palette::edge);
    fill_round(painter, inner, radius - scale.exact(1),
               vertical_gradient(inner, colors.top, colors.bottom));

    switch (face) {
        case KeyFace::Up:
        case KeyFace::Hover: {
            const QRect top = row_inside(scale, box, 1);
            fill(painter, top, light(0.20));
            fill(painter, QRect(top.left(), inner.bottom() + 1 - stroke, top.width(), stroke),
                 shade(0.28));
            break;
        }
        case KeyFace::Down:
            fill(painter, row_inside(scale, box, 1), shade(0.45));
            break;
        case KeyFace::Off:
            break;
    }
}

void well(QPainter& painter, const Scale& scale, const QRect& box, WellLook look) {
    const int stroke = scale.stroke();
    const double radius = scale.exact(well_radius);
    fill_round(painter, box.translated(0, stroke), radius, light(0.10));
    fill_round(painter, box, radius,
               look == WellLook::Hover ? palette::well_edge_hover : palette::well_edge);
    fill_round(painter, shrunk(box, stroke), radius - scale.exact(1),
               look == WellLook::Pressed ? palette::well_edge : palette::well);
    fill(painter, row_inside(scale, box, 1), shade(0.50));
}

void glass(QPainter& painter, const Scale& scale, const QRect& box) {
    const int stroke = scale.stroke();
    const double radius = scale.exact(glass_radius);
    const QRect inner = shrunk(box, stroke);
    fill_round(painter, shrunk(box, -stroke), radius + scale.exact(1), shade(0.35));
    fill_round(painter, box.translated(0, stroke), radius, light(0.14));
    fill_round(painter, box, radius, palette::glass_edge);

    QLinearGradient pane(inner.topLeft(), QPoint(inner.left(), inner.bottom() + 1));
    pane.setColorAt(0, palette::glass_top);
    pane.setColorAt(0.4, palette::glass_middle);
    pane.setColorAt(1, palette::glass_bottom);
    fill_round(painter, inner, radius - scale.exact(1), pane);
    fill(painter, row_inside(scale, box, 1), light(0.05));
}

void focus_ring(QPainter& painter, const Scale& scale, const QRect& box, double radius,
                Focus focus) {
    if (focus == Focus::None) return;
    const int stroke = scale.stroke();
    const double outer = scale.exact(radius);
    if (focus == Focus::Ring) {
        const int halo = 2 * stroke;
        stroke_round(painter, shrunk(box, -halo), outer + halo, halo, faded(palette::ice, 0.28));
    }
    stroke_round(painter, box, outer, stroke,
                 focus == Focus::Ring ? palette::ice : palette::ice_dim);
}

void default_ring(QPainter& painter, const Scale& scale, const QRect& box) {
    stroke_round(painter, box, scale.exact(key_radius), scale.stroke(), palette::ice_dim);
}

void frame(QPainter& painter, const Scale& scale, const QRect& box, const QString& caption,
           const QColor& caption_color) {
    const int stroke = scale.stroke();
    const double radius = scale.exact(key_radius);
    const QRect line = box.adjusted(0, scale.px(6), 0, -stroke);
    stroke_round(painter, line.translated(0, stroke), radius, stroke, light(0.11));
    stroke_round(painter, line, radius, stroke, shade(0.55));
    if (caption.isEmpty()) return;

    const double text = text_width(caption, Role::FrameCaption, scale);
    const QRect tag(box.left() + scale.px(8), box.top(), scale.px(text / scale.s + 12),
                    scale.px(13));
    fill(painter, QRect(tag.left(), tag.bottom() + 1, tag.width(), stroke), light(0.10));
    fill_round(painter, tag, scale.exact(well_radius), palette::well_edge);
    draw_text(painter, scale, tag, caption,
              {.role = Role::FrameCaption, .color = caption_color, .align = Align::Center});
}

}  // namespace zephyne::paint
