#include "sheet.h"
#include "ui/qt/paint/led_digits.h"
#include "ui/qt/paint/message_pictures.h"
#include "ui/qt/paint/note_roll.h"
#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/sliders.h"

#include <array>

namespace zephyne::gallery {

using namespace paint;

namespace {

struct Column {
    const char* name;
    ControlState state;
};

const std::array<Column, 6>& columns() {
    static const std::array<Column, 6> all{{
        {"normal", {}},
        {"hover", {.pointer = Pointer::Over}},
        {"pressed", {.pointer = Pointer::Down}},
        {"focus", {.focus = Focus::Ring}},
        {"default", {.is_default = true}},
        {"disabled", {.enabled = false}},
    }};
    return all;
}

ControlState latched(ControlState state, bool is_latched = true) {
    state.latched = is_latched;
    return state;
}

void draw_columns(const Sheet& sheet) {
    QPainter& painter = sheet.painter();
    const Scale& scale = sheet.scale();
    int x = 20;
    bool marked = true;
    for (const Column& column : columns()) {
        const ControlState& state = column.state;
        const ControlState mark = latched(state, marked);
        sheet.heading(x, 8, QLatin1String(column.name));
        button(painter, scale, sheet.place(x, 28, 80, 19), state, QStringLiteral("Rename"));
        ribbon(painter, scale, sheet.place(x, 56, 20, 19), state, 4);
        slider(painter, scale, sheet.place(x + 24, 56, 60, 17), state, SliderKind::Position, 0.4);
        check_box(painter, scale, sheet.place(x, 84, 80, 17), mark, QStringLiteral("Beeps"));
        option_button(painter, scale, sheet.place(x, 106, 80, 17), mark, QStringLiteral("Alpha"));

        const QRect box = sheet.place(x, 130, 80, 19);
        text_box(painter, scale, box, state);
        draw_text(
            painter, scale, text_box_interior(scale, box, TextLines::One),
            QStringLiteral("Find me"),
            {.role = Role::Row, .color = state.enabled ? palette::well_text : palette::quiet});
        x += 92;
        marked = !marked;
    }
}

void draw_latching(const Sheet& sheet) {
    QPainter& painter = sheet.painter();
    const Scale& scale = sheet.scale();
    sheet.heading(580, 8, QStringLiteral("ribbon / transport / lock, on"));
    ribbon(painter, scale, sheet.place(580, 28, 20, 19), {.latched = true}, 4);
    transport(painter, scale, sheet.place(610, 24, 103, 28), {.lit = TransportLit::Play});
    lock_box(painter, scale, sheet.place(724, 28, 33, 19), {.latched = true});
    lock_box(painter, scale, sheet.place(764, 28, 33, 19), {});
    sheet.heading(580, 60, QStringLiteral("transport disabled"));
    transport(painter, scale, sheet.place(580, 80, 103, 28), {.enabled = {false, false, false}});
    ribbon(painter, scale, sheet.place(724, 84, 20, 19), {.enabled = false, .latched = true}, 4);
    lock_box(painter, scale, sheet.place(764, 84, 33, 19), {.enabled = false, .latched = true});
    glyph_button(painter, scale, sheet.place(804, 84, 33, 19), {}, Glyph::Reset);
}

void draw_displays(const Sheet& sheet) {
    QPainter& painter = sheet.painter();
    const Scale& scale = sheet.scale();
    for (int display = 0; display < 3; ++display) {
        const int top = 172 + display * 58;
        glass(painter, scale, sheet.place(20, top, 860, 52));
        for (int digit = 0; digit <= reset_digit; ++digit)
            led_digit(painter, scale, sheet.place(30 + digit * 30, top + 6, 20, 40),
                      digit_picture(display, digit));
        for (int frame = 1; frame <= 4; ++frame)
            led_status(painter, scale, sheet.place(400 + frame * 20, top + 6, 9, 40),
                       status_picture(display, frame));
        const auto counter = [&](int y, const QString& name, const QString& value) {
            const QRect box = sheet.place(510, top + y, 190, 16);
            led_label(painter, scale, box, Role::LedCaption, Align::Left, display, name);
            led_label(painter, scale, box, Role::LedValue, Align::Right, display, value);
        };
        counter(11, QStringLiteral("Mode:"), QStringLiteral("Random Playback"));
        counter(28, QStringLiteral("Played:"), QStringLiteral("43%"));
    }
}

void draw_animation(const Sheet& sheet) {
    sheet.heading(20, 350, QStringLiteral("animation, frames 1 to 30"));
    for (int frame = 1; frame <= roll_frames; ++frame) {
        const int x = 20 + (frame - 1) % 15 * 58;
        const int y = frame <= 15 ? 370 : 426;
        glass(sheet.painter(), sheet.scale(), sheet.place(x, y, 50, 50));
        note_roll(sheet.painter(), sheet.scale(), sheet.place(x + 6, y + 5, 38, 40), frame);
    }
}

void draw_pictures(const Sheet& sheet) {
    QPainter& painter = sheet.painter();
    const Scale& scale = sheet.scale();
    sheet.heading(20, 482, QStringLiteral("preset glyphs 1 to 12"));
    for (int preset = 1; preset <= 12; ++preset)
        ribbon(painter, scale, sheet.place(preset * 22 - 2, 502, 20, 19), {}, preset);

    sheet.heading(310, 482, QStringLiteral("message box frames 1 to 7"));
    loudspeaker(painter, scale, sheet.place(310, 502, 46, 46));
    for (int frame = 1; frame <= wave_frames; ++frame)
        sound_waves(painter, scale, sheet.place(336 + frame * 30, 502, 22, 46), frame);

    sheet.heading(600, 482, QStringLiteral("frame caption: use, store, clear"));
    const QColor captions[] = {rgb(0xFFFFFF), palette::led_red, palette::led_green};
    int x = 600;
    for (const QColor& color : captions) {
        frame(painter, scale, sheet.place(x, 502, 80, 40), QStringLiteral("Presets"), color);
        x += 90;
    }
}

}  // namespace

void draw_states(const Sheet& sheet) {
    draw_columns(sheet);
    draw_latching(sheet);
    draw_displays(sheet);
    draw_animation(sheet);
    draw_pictures(sheet);
}

}  // namespace zephyne::gallery
