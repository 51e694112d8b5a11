// The animation beside the clock: a tiny sequencer whose notes travel left and light up as
// they cross a fixed line; and the still banner made of the same notes.
#pragma once

#include "ui/qt/paint/scale.h"

#include <QRect>
#include <vector>

class QPainter;

namespace zephyne::paint {

inline constexpr int roll_frames = 30;
inline constexpr int roll_rows = 5;
inline constexpr int roll_steps = 20;     // as many as the picture is wide
inline constexpr int roll_line_step = 6;  // where the line stands

enum class NotePhase { ToCome, Sounding, Gone };

struct RollNote {
    int position;  // of its start, in steps from the left edge of the picture
    int length;    // steps
    int row;       // 0 at the top
};

NotePhase phase_at(const RollNote& note, int line_step);

// The notes that can be seen in a frame, 1 to 30. Numbers beyond go round.
std::vector<RollNote> roll_notes(int frame);

// Draws a frame, clipped to the cell.
void note_roll(QPainter& painter, const Scale& scale, const QRect& cell, int frame);

enum class BannerPlace { MainWindow, Information };

// A glass with the notes standing still.
void note_banner(QPainter& painter, const Scale& scale, const QRect& box, BannerPlace place);

}  // namespace zephyne::paint
