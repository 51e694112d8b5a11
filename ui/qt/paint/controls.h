// Keys, boxes and labels in all their states. Lists are in lists.h, sliders in sliders.h.
//
// The functions know nothing of widgets: a snapped box in device pixels and a plain state go
// in, pixels come out. The faceplate shows through where a control has no ground of its own,
// so it must have been painted before; a control may reach `overhang` px beyond its box.
#pragma once

#include "ui/qt/paint/glyphs.h"
#include "ui/qt/paint/scale.h"
#include "ui/qt/paint/surfaces.h"
#include "ui/qt/paint/type.h"

#include <QColor>
#include <QRect>
#include <QSize>
#include <QString>
#include <array>

class QPainter;

namespace zephyne::paint {

enum class Pointer { Away, Over, Down };

struct ControlState {
    bool enabled = true;
    Pointer pointer = Pointer::Away;
    Focus focus = Focus::None;
    bool latched = false;     // a ribbon or lock that is in, a check box or option that is set
    bool is_default = false;  // the key that Enter presses
};

// A caption too wide for its key is condensed, then cut. A key of at least 32 px height
// breaks its caption into two lines. Line breaks in the caption are kept.
void button(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state,
            const QString& caption);

// A key with a glyph of 14 x 14 instead of a caption, such as the reset key.
void glyph_button(QPainter& painter, const Scale& scale, const QRect& box,
                  const ControlState& state, Glyph glyph);

// A preset key, 1 to 12. Latched: the preset in use.
void ribbon(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state,
            int preset);

// The key with the padlock. Latched: locked.
void lock_box(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state);

enum class TransportKey { Play, Pause, Stop };
inline constexpr int transport_keys = 3;

enum class TransportLit { None, Play, Pause };

struct TransportState {
    std::array<bool, 3> enabled = {true, true, true};  // Play, Pause, Stop
    TransportLit lit = TransportLit::None;
    TransportKey current = TransportKey::Play;  // the one that focus and keys address
    Focus focus = Focus::None;
    TransportKey pointed = TransportKey::Play;  // which one the pointer is on
    Pointer pointer = Pointer::Away;
};

void transport(QPainter& painter, const Scale& scale, const QRect& box,
               const TransportState& state);

// Where a key of the transport is, for painting and for the mouse.
QRect transport_key_box(const Scale& scale, const QRect& box, TransportKey key);

// The well is at the left of the box, the caption beside it. An empty caption is fine.
void check_box(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state,
               const QString& caption);
void option_button(QPainter& painter, const Scale& scale, const QRect& box,
                   const ControlState& state, const QString& caption);

// Grounds of text boxes, ring included; the text is the widget's own affair.
void text_box(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state);
void glass_text_box(QPainter& painter, const Scale& scale, const QRect& box,
                    const ControlState& state);

// Where the text of a text box stands: 7 px from the sides; one with several lines starts
// 6 px below the top, and may fill the box down to its edge.
enum class TextLines { One, Many };
QRect text_box_interior(const Scale& scale, const QRect& box, TextLines lines);

// Text on the faceplate, one line, middle. The colour follows `enabled` unless given.
struct LabelState {
    bool enabled = true;
    Role role = Role::Caption;
    Align align = Align::Left;
    Fit fit = Fit::Overflow;
};
void label(QPainter& painter, const Scale& scale, const QRect& box, const LabelState& state,
           const QString& text);

// The name on the faceplate, on one baseline with the legends of the volume sliders.
void brand(QPainter& painter, const Scale& scale, const QRect& box, const QString& name);

// Wrapped text on the faceplate from the top of its box, and the height that it needs at a width,
// both in device pixels.
void wrapped_label(QPainter& painter, const Scale& scale, const QRect& box, const LabelState& state,
                   const QString& text);
int wrapped_height(const Scale& scale, const QString& text, Role role, int width);

// Lit text on glass, one line, middle. display: the Display setting.
void led_label(QPainter& painter, const Scale& scale, const QRect& box, Role role, Align align,
               int display, const QString& text);

// A small lamp in an LED colour in a square box; its rim reaches 1.5 px beyond.
void lamp(QPainter& painter, const Scale& scale, const QRect& box, const QColor& color);

// Menus. The name of a row's key ("Ctrl+C") stands at its right end.
void popup_ground(QPainter& painter, const Scale& scale, const QRect& box);

struct MenuRowState {
    bool enabled = true;
    bool selected = false;
    bool is_default = false;
};
inline constexpr int menu_row_height = 20;   // px at 100 %
inline constexpr int menu_text_margin = 22;  // at both sides
void menu_row(QPainter& painter, const Scale& scale, const QRect& row, const MenuRowState& state,
              const QString& text, const QString& key);
Role menu_role(const MenuRowState& state);
void menu_separator(QPainter& painter, const Scale& scale, const QRect& row);

}  // namespace zephyne::paint
