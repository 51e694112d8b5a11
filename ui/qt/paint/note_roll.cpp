#include "ui/qt/paint/note_roll.h"

#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/shapes.h"
#include "ui/qt/paint/surfaces.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

namespace zephyne::paint {

namespace {

constexpr int steps_before_wrap = 21;  // so that the longest note leaves before it returns

constexpr std::array<RollNote, 9> tune{{
    {2, 4, 2},
    {7, 4, 3},
    {11, 4, 1},
    {15, 7, 0},
    {22, 4, 2},
    {26, 6, 1},
    {7, 9, 4},
    {17, 8, 4},
    {26, 9, 4},
}};

int wrapped(int value, int period) {
    return (value % period + period) % period;
}

// How the notes lie in a picture.
struct Staff {
    QRectF area;
    double unit;  // device pixels of a step
    double gap;   // after a note

    QRectF box(const RollNote& note) const {
        const double row = area.height() / roll_rows;
        return QRectF(area.left() + note.position * unit,
                      area.top() + row * (note.row + 0.5) - 0.24 * row, note.length * unit - gap,
                      0.48 * row);
    }
};

void sounding_note(QPainter& painter, const Scale& scale, const QRectF& box, double halo,
                   double opacity) {
    fill_round(painter, shrunk(box, -scale.exact(1.5)), scale.exact(2), faded(palette::ice, halo));
    fill_round(painter, box, scale.exact(1), faded(palette::ice_light, opacity));
}

void silent_note(QPainter& painter, const Scale& scale, const QRectF& box, double opacity) {
    fill_round(painter, box, scale.exact(1), faded(palette::ice, opacity));
}

void cursor_line(QPainter& painter, const Scale& scale, const Staff& staff, int step) {
    const int stroke = scale.stroke();
    const int x =
        static_cast<int>(std::lround(staff.area.left() + step * staff.unit - stroke / 2.0));
    painter.fillRect(
        QRect(x, static_cast<int>(staff.area.top()), stroke, static_cast<int>(staff.area.height())),
        faded(palette::ice, 0.45));
}

}  // namespace

NotePhase phase_at(const RollNote& note, int line_step) {
    if (note.position > line_step) return NotePhase::ToCome;
    return note.position + note.length > line_step ? NotePhase::Sounding : NotePhase::Gone;
}

std::vector<RollNote> roll_notes(int frame) {
    std::vector<RollNote> seen;
    for (RollNote note : tune) {
        note.position = wrapped(note.position - (frame - 1), roll_frames);
        if (note.position > steps_before_wrap) note.position -= roll_frames;
        if (note.position + note.length >= -1 && note.position <= roll_steps + 1)
            seen.push_back(note);
    }
    return seen;
}

void note_roll(QPainter& painter, const Scale& scale, const QRect& cell, int frame) {
    const Staff staff{cell, cell.width() / static_cast<double>(roll_steps), scale.exact(1)};
    painter.save();
    painter.setClipRect(cell, Qt::IntersectClip);
    cursor_line(painter, scale, staff, roll_line_step);
    for (const RollNote& note : roll_notes(frame)) {
        const int gone_by = note.position + note.length - roll_line_step;
        switch (phase_at(note, roll_line_step)) {
            case NotePhase::Sounding: {
                const double strength = 1 - 0.45 * (roll_line_step - note.position) / note.length;
                sounding_note(painter, scale, staff.box(note), 0.30 * strength,
                              0.55 + 0.45 * strength);
                break;
            }
            case NotePhase::ToCome:
                silent_note(painter, scale, staff.box(note), 0.62);
                break;
            case NotePhase::Gone:
                silent_note(painter, scale, staff.box(note), std::max(0.0, 0.30 + 0.05 * gone_by));
                break;
        }
    }
    painter.restore();
}

void note_banner(QPainter& painter, const Scale& scale, const QRect& box, BannerPlace place) {
    const bool small = place == BannerPlace::MainWindow;
    const int line_step = small ? 18 : 26;
    const int side = scale.px(8);
    const int top = scale.px(4);
    const QRect area = box.adjusted(side, top, -side, -top);
    const Staff staff{area, scale.exact(small ? 2.7 : 6.0), scale.exact(1.5)};

    glass(painter, scale, box);
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    cursor_line(painter, scale, staff, line_step);
    const int steps = static_cast<int>(area.width() / staff.unit) + 1;
    for (int repeat = -roll_frames; repeat < steps; repeat += roll_frames) {
        for (RollNote note : tune) {
            note.position += repeat;
            const QRectF note_box = staff.box(note);
            switch (phase_at(note, line_step)) {
                case NotePhase::Sounding:
                    sounding_note(painter, scale, note_box, 0.28, 1);
                    break;
                case NotePhase::ToCome:
                    silent_note(painter, scale, note_box, 0.62);
                    break;
                case NotePhase::Gone:
                    silent_note(painter, scale, note_box, 0.32);
                    break;
            }
        }
    }
    painter.restore();
}

}  // namespace zephyne::paint
