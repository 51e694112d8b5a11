// The pictures of the message box, of the note window and of the quick tips.
#pragma once

#include "ui/qt/paint/scale.h"

#include <QRect>

class QPainter;

namespace zephyne::paint {

inline constexpr int wave_frames = 7;

// A loudspeaker that fills its (square) box.
void loudspeaker(QPainter& painter, const Scale& scale, const QRect& box);

// The sound waves that leave it to the right; frame 1 to 7, numbers beyond go round.
void sound_waves(QPainter& painter, const Scale& scale, const QRect& box, int frame);

// A sheet of paper and a pencil in a square box; drawn in its design size of 32 px scaled to
// the box.
void note_pad(QPainter& painter, const Scale& scale, const QRect& box);

// A light bulb, lit, in a square box; drawn in its design size of 46 px scaled to the box.
void light_bulb(QPainter& painter, const Scale& scale, const QRect& box);

}  // namespace zephyne::paint
