#include "ui/qt/paint/controls.h"

#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/shapes.h"

#include <algorithm>

namespace zephyne::paint {

namespace {

constexpr int two_line_key_height = 32;  // px at 100 %
constexpr int caption_margins = 8;       // left and right together
constexpr int mark_size = 13;            // check boxes and options
constexpr int mark_caption_offset = 20;
constexpr int text_margin = 7;
constexpr int text_top_margin = 6;

KeyFace face_of(const ControlState& state) {
    if (state.latched) return KeyFace::Down;
    if (!state.enabled) return KeyFace::Off;
    switch (state.pointer) {
        case Pointer::Over:
            return KeyFace::Hover;
        case Pointer::Down:
            return KeyFace::Down;
        case Pointer::Away:
            break;
    }
    return KeyFace::Up;
}

// What is printed on a key moves with it when it is pressed, but not while it is latched.
int sunk_by(const Scale& scale, const ControlState& state) {
    const bool pressed = state.enabled && state.pointer == Pointer::Down && !state.latched;
    return pressed ? scale.stroke() : 0;
}

void key_with_rings(QPainter& painter, const Scale& scale, const QRect& box,
                    const ControlState& state) {
    key(painter, scale, box, face_of(state));
    if (state.is_default && state.enabled && state.focus == Focus::None)
        default_ring(painter, scale, box);
    focus_ring(painter, scale, box, key_radius, state.focus);
}

QColor glyph_color(const ControlState& state, const QColor& plain) {
    if (!state.enabled) return palette::off_glyph;
    return state.latched ? palette::ice : plain;
}

QStringList caption_lines(const Scale& scale, const QRect& box, const QString& caption) {
    if (caption.contains(QLatin1Char('\n'))) return caption.split(QLatin1Char('\n'));
    if (box.height() < scale.px(two_line_key_height)) return {caption};
    return balanced_lines(caption, Role::Caption, scale);
}

QRect mark_box(const Scale& scale, const QRect& box) {
    const int size = scale.px(mark_size);
    return QRect(box.left(), centered(box, size, size).top(), size, size);
}

WellLook mark_look(const ControlState& state) {
    if (!state.enabled) return WellLook::Normal;
    switch (state.pointer) {
        case Pointer::Over:
            return WellLook::Hover;
        case Pointer::Down:
            return WellLook::Pressed;
        case Pointer::Away:
            break;
    }
    return WellLook::Normal;
}

void mark_caption(QPainter& painter, const Scale& scale, const QRect& box,
                  const ControlState& state, const QString& caption) {
    label(painter, scale, box.adjusted(scale.px(mark_caption_offset), 0, 0, 0),
          {.enabled = state.enabled}, caption);
}

QColor face_text_color(const LabelState& state) {
    return state.enabled ? palette::engraving : palette::face_off;
}

}  // namespace

void button(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state,
            const QString& caption) {
    key_with_rings(painter, scale, box, state);

    const QStringList lines = caption_lines(scale, box, caption);
    const double height = scale.exact(face(Role::Caption).pitch) * lines.size();
    const double margin = scale.exact(caption_margins / 2.0);
    const double top = box.top() + (box.height() - height) / 2 + sunk_by(scale, state);
    draw_lines(painter, scale, QRectF(box.left() + margin, top, box.width() - 2 * margin, height),
               lines,
               {.role = Role::Caption,
                .color = state.enabled ? palette::ink : palette::quiet,
                .align = Align::Center,
                .fit = Fit::Condense});
}

void glyph_button(QPainter& painter, const Scale& scale, const QRect& box,
                  const ControlState& state, Glyph glyph) {
    key_with_rings(painter, scale, box, state);
    draw_glyph_centered(painter, scale, glyph, box.translated(0, sunk_by(scale, state)),
                        glyph_color(state, palette::ink));
}

void ribbon(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state,
            int preset) {
    key_with_rings(painter, scale, box, state);
    draw_glyph_centered(painter, scale, preset_glyph(preset),
                        box.translated(0, sunk_by(scale, state)),
                        glyph_color(state, palette::ribbon_glyph));
}

void lock_box(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state) {
    ControlState shown = state;
    shown.latched = state.latched && state.enabled;  // a disabled lock is flat like any key
    key_with_rings(painter, scale, box, shown);
    draw_glyph_centered(painter, scale, state.latched ? Glyph::Lock : Glyph::Unlock,
                        box.translated(0, sunk_by(scale, shown)), glyph_color(shown, palette::ink));
}

QRect transport_key_box(const Scale& scale, const QRect& box, TransportKey key) {
    constexpr int width = 33;
    constexpr int pitch = 35;
    const int index = static_cast<int>(key);
    const int left = scale.px(index * pitch);
    return QRect(box.left() + left, box.top(), scale.px(index * pitch + width) - left,
                 box.height());
}

void transport(QPainter& painter, const Scale& scale, const QRect& box,
               const TransportState& state) {
    struct Entry {
        TransportKey key;
        Glyph glyph;
        TransportLit lit;
    };
    // Stop never stays lit.
    constexpr Entry entries[] = {{TransportKey::Play, Glyph::Play, TransportLit::Play},
                                 {TransportKey::Pause, Glyph::Pause, TransportLit::Pause},
                                 {TransportKey::Stop, Glyph::Stop, TransportLit::None}};
    for (const Entry& entry : entries) {
        ControlState one{.enabled = state.enabled[static_cast<std::size_t>(entry.key)]};
        one.latched = one.enabled && entry.lit != TransportLit::None && entry.lit == state.lit;
        if (entry.key == state.pointed) one.pointer = state.pointer;
        if (entry.key == state.current) one.focus = state.focus;
        glyph_button(painter, scale, transport_key_box(scale, box, entry.key), one, entry.glyph);
    }
}

void check_box(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state,
               const QString& caption) {
    const QRect mark = mark_box(scale, box);
    well(painter, scale, mark, mark_look(state));
    if (state.latched)
        draw_glyph_centered(painter, scale, Glyph::Check, mark,
                            state.enabled ? palette::ice : palette::off_glyph);
    focus_ring(painter, scale, mark, well_radius, state.focus);
    mark_caption(painter, scale, box, state, caption);
}

void option_button(QPainter& painter, const Scale& scale, const QRect& box,
                   const ControlState& state, const QString& caption) {
    const QRect mark = mark_box(scale, box);
    const int stroke = scale.stroke();
    const double radius = mark.width() / 2.0;
    const QPointF center = QRectF(mark).center();
    const WellLook look = mark_look(state);

    fill_disc(painter, center + QPointF(0, stroke), radius, light(0.10));
    fill_disc(painter, center, radius,
              look == WellLook::Hover ? palette::well_edge_hover : palette::well_edge);
    fill_disc(painter, center, radius - stroke,
              look == WellLook::Pressed ? palette::well_edge : palette::well);
    if (state.latched) {
        const QColor dot = state.enabled ? palette::ice : palette::off_glyph;
        fill_disc(painter, center, scale.exact(4.6), faded(dot, 0.25));
        fill_disc(painter, center, scale.exact(3.0), dot);
    }
    if (state.focus != Focus::None)
        stroke_round(painter, mark, radius, stroke,
                     state.focus == Focus::Ring ? palette::ice : palette::ice_dim);
    mark_caption(painter, scale, box, state, caption);
}

void text_box(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state) {
    const bool hovered = state.enabled && state.pointer != Pointer::Away;
    well(painter, scale, box, hovered ? WellLook::Hover : WellLook::Normal);
    focus_ring(painter, scale, box, well_radius, state.focus);
}

void glass_text_box(QPainter& painter, const Scale& scale, const QRect& box,
                    const ControlState& state) {
    glass(painter, scale, box);
    focus_ring(painter, scale, box, glass_radius, state.focus);
}

QRect text_box_interior(const Scale& scale, const QRect& box, TextLines lines) {
    const int side = scale.px(text_margin);
    const int top = lines == TextLines::Many ? scale.px(text_top_margin) : scale.stroke();
    return box.adjusted(side, top, -side, -scale.stroke());
}

void label(QPainter& painter, const Scale& scale, const QRect& box, const LabelState& state,
           const QString& text) {
    draw_text(painter, scale, box, text,
              {.role = state.role,
               .color = face_text_color(state),
               .align = state.align,
               .fit = state.fit});
}

void brand(QPainter& painter, const Scale& scale, const QRect& box, const QString& name) {
    draw_standing_text(painter, scale, box, name,
                       {.role = Role::Brand, .color = palette::engraving});
}

void wrapped_label(QPainter& painter, const Scale& scale, const QRect& box, const LabelState& state,
                   const QString& text) {
    draw_lines(painter, scale, box, wrap_text(text, state.role, scale, box.width()),
               {.role = state.role, .color = face_text_color(state), .align = state.align});
}

int wrapped_height(const Scale& scale, const QString& text, Role role, int width) {
    return scale.px(face(role).pitch * wrap_text(text, role, scale, width).size());
}

void led_label(QPainter& painter, const Scale& scale, const QRect& box, Role role, Align align,
               int display, const QString& text) {
    draw_text(painter, scale, box, text,
              {.role = role, .color = led_color(display), .align = align, .glow = Glow::Led});
}

void lamp(QPainter& painter, const Scale& scale, const QRect& box, const QColor& color) {
    const QPointF center = QRectF(box).center();
    const double radius = std::min(box.width(), box.height()) / 2.0;
    const double rim = radius + scale.exact(1.5);
    fill_disc(painter, center, rim, palette::well_edge);
    fill_disc(painter, center, rim, faded(color, 0.25));
    fill_disc(painter, center, radius - scale.exact(0.5), color);
}

void popup_ground(QPainter& painter, const Scale& scale, const QRect& box) {
    fill(painter, box, palette::popup_edge);
    fill(painter, shrunk(box, scale.stroke()), palette::popup);
}

Role menu_role(const MenuRowState& state) {
    return state.is_default ? Role::Heading : Role::Caption;
}

void menu_row(QPainter& painter, const Scale& scale, const QRect& row, const MenuRowState& state,
              const QString& text, const QString& key) {
    const bool lit = state.enabled && state.selected;
    const QColor color = !state.enabled ? palette::quiet
                         : lit          ? palette::selection_text
                                        : palette::engraving;
    if (lit) fill(painter, row, palette::selection);
    const int margin = scale.px(menu_text_margin);
    const QRect place = row.adjusted(margin, 0, -margin, 0);
    draw_text(painter, scale, place, text,
              {.role = menu_role(state), .color = color, .fit = Fit::ElideMiddle});
    draw_text(painter, scale, place, key,
              {.role = Role::Caption, .color = color, .align = Align::Right});
}

void menu_separator(QPainter& painter, const Scale& scale, const QRect& row) {
    fill(painter, QRect(row.left(), row.center().y(), row.width(), scale.stroke()),
         palette::popup_edge);
}

}  // namespace zephyne::paint
