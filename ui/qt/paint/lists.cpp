#include "ui/qt/paint/lists.h"

#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/shapes.h"

#include <algorithm>
#include <cstdint>

namespace zephyne::paint {

namespace {

// px at 100 %
constexpr int row_side = 2;       // from the box to a row
constexpr int row_text_left = 6;  // from the row to its text, so 8 from the box
constexpr int row_text_right = 4;
constexpr double row_radius = 1.5;
constexpr int scroll_width = 9;
constexpr int scroll_gap = 1;  // between rows and track
constexpr int thumb_width = 5;
constexpr int thumb_margin = 2;
constexpr int thumb_shortest = 16;
constexpr int drive_key_width = 18;
constexpr int drive_text_left = 26;
constexpr int folder_step = 10;
constexpr int folder_text_left = 18;  // from the folder's glyph
constexpr int glyph_bearing = 1;      // from a glyph's box to its ink

struct RowColors {
    QColor ground;  // invalid: none
    QColor text;
};

RowColors row_colors(const RowState& state, const QColor& selected_ground) {
    if (!state.enabled) return {state.selected ? palette::selection_off : QColor(), palette::quiet};
    if (state.selected) return {selected_ground, palette::selection_text};
    return {state.hovered ? palette::row_hover : QColor(), palette::well_text};
}

void row_ground(QPainter& painter, const Scale& scale, const QRect& row, const QColor& color) {
    if (color.isValid()) fill_round(painter, row, scale.exact(row_radius), color);
}

void row_text(QPainter& painter, const Scale& scale, const QRect& row, int left,
              const RowState& state, const QColor& color, const QString& text) {
    draw_text(painter, scale, row.adjusted(left, 0, -scale.px(row_text_right), 0), text,
              {.role = state.selected ? Role::SelectedRow : Role::Row,
               .color = color,
               .fit = Fit::ElideMiddle});
}

// A glyph in a row, with its ink starting at the given device pixel.
void row_glyph(QPainter& painter, const Scale& scale, Glyph glyph, int left, const QRect& row,
               const QColor& color) {
    const QRect column(left - scale.px(glyph_bearing), row.top(),
                       scale.px(glyph_size(glyph).width()), row.height());
    draw_glyph_centered(painter, scale, glyph, column, color);
}

int thumb_travel(const Scale& scale, const QRect& track, int thumb_height) {
    return std::max(0, track.height() - 2 * scale.px(thumb_margin) - thumb_height);
}

}  // namespace

void list_ground(QPainter& painter, const Scale& scale, const QRect& box,
                 const ControlState& state) {
    well(painter, scale, box);
    focus_ring(painter, scale, box, well_radius, state.focus);
}

void drop_down_ground(QPainter& painter, const Scale& scale, const QRect& box) {
    fill(painter, box, palette::edge);
    fill(painter, shrunk(box, scale.stroke()), palette::well);
}

int row_height(const Scale& scale, ListKind kind) {
    switch (kind) {
        case ListKind::Folders:
            return scale.px(15);
        case ListKind::DropDown:
            return scale.px(18);
        case ListKind::Plain:
            break;
    }
    return scale.px(16);
}

QRect rows_area(const Scale& scale, const QRect& box, ListKind kind, ScrollBar scroll_bar) {
    const int top = kind == ListKind::Folders ? scale.px(3) : scale.stroke();
    const int right = scroll_bar == ScrollBar::Shown
                          ? scroll_track(scale, box).left() - scale.px(scroll_gap)
                          : box.right() + 1 - scale.px(row_side);
    const int left = box.left() + scale.px(row_side);
    return QRect(left, box.top() + top, right - left, box.height() - top - scale.stroke());
}

void list_row(QPainter& painter, const Scale& scale, const QRect& row, const RowState& state,
              const QString& text) {
    const RowColors colors = row_colors(state, palette::selection);
    row_ground(painter, scale, row, colors.ground);
    if (state.current && !state.selected && state.enabled) {
        stroke_round(painter, row, scale.exact(row_radius), scale.stroke(), palette::ice_dim);
    }
    row_text(painter, scale, row, scale.px(row_text_left), state, colors.text, text);
}

void folder_row(QPainter& painter, const Scale& scale, const QRect& row, const RowState& state,
                int depth, const QString& text) {
    const RowColors colors = row_colors(state, palette::folder_selection);
    row_ground(painter, scale, row, colors.ground);

    const int left = scale.px(row_text_left + std::max(0, depth) * folder_step);
    row_glyph(painter, scale, Glyph::Folder, row.left() + left, row,
              state.selected && state.enabled ? palette::ice : palette::list_glyph);
    row_text(painter, scale, row, left + scale.px(folder_text_left), state, colors.text, text);
}

QRect drive_key_box(const Scale& scale, const QRect& box) {
    const int stroke = scale.stroke();
    const int width = scale.px(drive_key_width);
    return QRect(box.right() + 1 - stroke - width, box.top() + stroke, width,
                 box.height() - 2 * stroke);
}

void drive_list(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state,
                const QString& text) {
    const int stroke = scale.stroke();
    const QRect key_part = drive_key_box(scale, box);
    well(painter, scale, box);

    const bool down = state.enabled && state.pointer == Pointer::Down;
    const bool over = state.enabled && state.pointer == Pointer::Over;
    const QColor top = !state.enabled ? palette::key_off
                       : down         ? palette::key_down_top
                       : over         ? palette::key_hover_top
                                      : palette::key_top;
    const QColor bottom = !state.enabled ? palette::key_off
                          : down         ? palette::key_down_bottom
                          : over         ? palette::key_hover_bottom
                                         : palette::key_bottom;
    fill(painter, key_part.adjusted(-stroke, 0, 0, 0), palette::well_edge);
    fill_round(painter, key_part, scale.exact(1), vertical_gradient(key_part, top, bottom));
    if (state.enabled)
        fill(painter,
             QRect(key_part.left() + stroke, key_part.top(), key_part.width() - 2 * stroke, stroke),
             down ? shade(0.45) : light(0.20));
    draw_glyph_centered(painter, scale, Glyph::Arrow, key_part.translated(0, down ? stroke : 0),
                        state.enabled ? palette::ink : palette::off_glyph);

    row_glyph(painter, scale, Glyph::Drive, box.left() + scale.px(row_side + row_text_left), box,
              palette::list_glyph);
    const int left = box.left() + scale.px(drive_text_left);
    const int right = key_part.left() - stroke - scale.px(row_text_right);
    draw_text(painter, scale, QRect(left, box.top(), right - left, box.height()), text,
              {.role = Role::Row,
               .color = state.enabled ? palette::well_text : palette::quiet,
               .fit = Fit::ElideMiddle});
    focus_ring(painter, scale, box, well_radius, state.focus);
}

void drive_row(QPainter& painter, const Scale& scale, const QRect& row, const RowState& state,
               const QString& text) {
    const RowColors colors = row_colors(state, palette::selection);
    row_ground(painter, scale, row, colors.ground);
    row_glyph(painter, scale, Glyph::Drive, row.left() + scale.px(row_text_left), row,
              palette::list_glyph);
    row_text(painter, scale, row, scale.px(drive_text_left - row_side), state, colors.text, text);
}

QRect scroll_track(const Scale& scale, const QRect& box, ScrollPlace place) {
    const int margin = scale.px(place == ScrollPlace::Glass ? 3 : 2);
    const int width = scale.px(scroll_width);
    return QRect(box.right() + 1 - margin - width, box.top() + margin, width,
                 box.height() - 2 * margin);
}

QRect scroll_thumb(const Scale& scale, const QRect& track, const ScrollRange& range) {
    const int margin = scale.px(thumb_margin);
    const int room = std::max(1, track.height() - 2 * margin);
    const int page = std::max(1, range.page);
    const std::int64_t whole = std::int64_t{std::max(0, range.maximum)} + page;
    const int share = static_cast<int>(std::int64_t{room} * page / whole);
    const int height = std::clamp(share, std::min(room, scale.px(thumb_shortest)), room);
    const int value = std::clamp(range.value, 0, std::max(0, range.maximum));
    const int down = range.maximum > 0
                         ? static_cast<int>(std::int64_t{thumb_travel(scale, track, height)} *
                                            value / range.maximum)
                         : 0;
    const int width = scale.px(thumb_width);
    return QRect(track.left() + margin, track.top() + margin + down, width, height);
}

int scroll_value_at(const Scale& scale, const QRect& track, const ScrollRange& range, int y) {
    const int height = scroll_thumb(scale, track, range).height();
    const int travel = thumb_travel(scale, track, height);
    if (travel <= 0 || range.maximum <= 0) return 0;
    const int down = std::clamp(y - track.top() - scale.px(thumb_margin), 0, travel);
    return static_cast<int>((std::int64_t{down} * range.maximum + travel / 2) / travel);
}

void scroll_bar(QPainter& painter, const Scale& scale, const QRect& track, const ScrollRange& range,
                ScrollPlace place, Pointer pointer) {
    if (range.maximum <= 0) return;
    fill_round(painter, track, scale.exact(1), palette::scroll_track);
    const QColor plain =
        place == ScrollPlace::Glass ? palette::scroll_thumb_glass : palette::scroll_thumb;
    const QColor color = pointer == Pointer::Down   ? palette::ice_dim
                         : pointer == Pointer::Over ? palette::scroll_thumb_hover
                                                    : plain;
    fill_round(painter, scroll_thumb(scale, track, range), scale.exact(2), color);
}

}  // namespace zephyne::paint
