#include "ui/qt/paint/sliders.h"

#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/shapes.h"

#include <algorithm>
#include <cmath>

namespace zephyne::paint {

namespace {

// px at 100 %
constexpr int travel_start = 6;
constexpr int position_travel_end = 6;  // from the right
constexpr int volume_travel_end = 19;   // from the bottom; the legend is below
constexpr int groove_overrun = 4;
constexpr int groove_width = 5;
constexpr int position_groove_top = 5;
constexpr int cap_length = 11;  // along the travel
constexpr int cap_before_line = 5;
constexpr int position_cap_top = 1;
constexpr int position_cap_width = 12;  // across the travel
constexpr int volume_cap_width = 15;
constexpr int cap_shadow_height = 13;
constexpr int short_tick = 2;
constexpr int long_tick = 4;
constexpr int tick_count = 11;
constexpr int ticks_per_long = 5;
constexpr double tick_opacity = 0.85;

bool horizontal(SliderKind kind) {
    return kind == SliderKind::Position;
}

struct Travel {
    int start;  // device pixels: of the value 0
    int end;    // of the value 1
    int at(const Scale&, double value) const {
        const double clamped = std::clamp(value, 0.0, 1.0);
        return start + static_cast<int>(std::floor((end - start) * clamped + 0.5));
    }
};

Travel travel(const Scale& scale, const QRect& box, SliderKind kind) {
    if (horizontal(kind))
        return {box.left() + scale.px(travel_start),
                box.right() + 1 - scale.px(position_travel_end)};
    return {box.top() + scale.px(travel_start), box.bottom() + 1 - scale.px(volume_travel_end)};
}

QRect groove_box(const Scale& scale, const QRect& box, SliderKind kind) {
    const Travel way = travel(scale, box, kind);
    const int from = way.start - scale.px(groove_overrun);
    const int length = way.end + scale.px(groove_overrun) - from;
    const int width = scale.px(groove_width);
    if (horizontal(kind))
        return QRect(from, box.top() + scale.px(position_groove_top), length, width);
    return QRect(centered(box, width, 1).left(), from, width, length);
}

void groove_and_level(QPainter& painter, const Scale& scale, const QRect& box,
                      const ControlState& state, SliderKind kind, double value) {
    const int stroke = scale.stroke();
    const QRect slot = groove_box(scale, box, kind);
    const double radius = scale.exact(groove_width) / 2;
    fill_round(painter, slot.translated(0, stroke), radius, light(0.12));
    fill_round(painter, slot, radius, palette::well_edge);
    if (!state.enabled) return;

    QRect level = shrunk(slot, stroke);
    const int at = travel(scale, box, kind).at(scale, value);
    if (horizontal(kind)) {
        level.setRight(at);
    } else {
        level.setTop(at);
    }
    fill_round(painter, level, radius - stroke, palette::ice_dim);
}

void ticks(QPainter& painter, const Scale& scale, const QRect& box, SliderKind kind) {
    const Travel way = travel(scale, box, kind);
    const int stroke = scale.stroke();
    const QColor color = faded(palette::quiet, tick_opacity);
    for (int i = 0; i < tick_count; ++i) {
        const int at = way.at(scale, static_cast<double>(i) / (tick_count - 1));
        const int length = scale.px(i % ticks_per_long == 0 ? long_tick : short_tick);
        switch (kind) {
            case SliderKind::Position:
                fill(painter, QRect(at, box.bottom() + 1 - scale.px(long_tick), stroke, length),
                     color);
                break;
            case SliderKind::LeftVolume:
                fill(painter, QRect(box.right() + 1 - length, at, length, stroke), color);
                break;
            case SliderKind::RightVolume:
                fill(painter, QRect(box.left(), at, length, stroke), color);
                break;
        }
    }
}

void cap(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state,
         bool line_across) {
    const int stroke = scale.stroke();
    const QRect inner = shrunk(box, stroke);
    const double radius = scale.exact(cap_radius);
    const bool over = state.enabled && state.pointer != Pointer::Away;
    const bool dragged = state.enabled && state.pointer == Pointer::Down;

    const QRect shadow(box.left() - stroke, box.top(), box.width() + 2 * stroke,
                       scale.px(cap_shadow_height));
    fill_round(painter, shadow, radius + stroke, shade(0.35));
    fill_round(painter, box, radius, palette::cap_edge);
    if (state.enabled) {
        fill_round(painter, inner, scale.exact(1.5),
                   vertical_gradient(inner, over ? palette::cap_hover_top : palette::cap_top,
                                     palette::cap_bottom));
        fill(painter, QRect(inner.left() + stroke, inner.top(), inner.width() - 2 * stroke, stroke),
             light(0.55));
    } else {
        fill_round(painter, inner, scale.exact(1.5), palette::cap_off);
    }

    const int before = scale.px(cap_before_line);
    const int end = 2 * stroke;  // the line stops short of the edges
    const QRect line =
        line_across ? QRect(box.left() + end, box.top() + before, box.width() - 2 * end, stroke)
                    : QRect(box.left() + before, box.top() + end, stroke, box.height() - 2 * end);
    fill(painter, line, dragged ? palette::ice_dim : palette::cap_line);
    focus_ring(painter, scale, box, cap_radius, state.focus);
}

void legend(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state,
            SliderKind kind) {
    draw_standing_text(painter, scale, box,
                       kind == SliderKind::LeftVolume ? QStringLiteral("L") : QStringLiteral("R"),
                       {.role = Role::SliderLegend,
                        .color = state.enabled ? palette::engraving : palette::face_off,
                        .align = Align::Center});
}

}  // namespace

QRect slider_cap_box(const Scale& scale, const QRect& box, SliderKind kind, double value) {
    const int from = travel(scale, box, kind).at(scale, value) - scale.px(cap_before_line);
    const int length = scale.px(cap_length);
    if (horizontal(kind))
        return QRect(from, box.top() + scale.px(position_cap_top), length,
                     scale.px(position_cap_width));
    const int width = scale.px(volume_cap_width);
    return QRect(centered(box, width, 1).left(), from, width, length);
}

double slider_value_at(const Scale& scale, const QRect& box, SliderKind kind, const QPoint& point) {
    const Travel way = travel(scale, box, kind);
    if (way.end <= way.start) return 0;
    const double along = horizontal(kind) ? point.x() : point.y();
    return std::clamp((along - way.start) / (way.end - way.start), 0.0, 1.0);
}

void slider(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state,
            SliderKind kind, double value) {
    groove_and_level(painter, scale, box, state, kind, value);
    ticks(painter, scale, box, kind);
    cap(painter, scale, slider_cap_box(scale, box, kind, value), state, !horizontal(kind));
    if (!horizontal(kind)) legend(painter, scale, box, state, kind);
}

}  // namespace zephyne::paint
