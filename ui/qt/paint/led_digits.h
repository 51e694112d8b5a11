// The clock: seven-segment digits and the colon between minutes and seconds.
//
// Pictures are addressed as the lists that the clock works with are numbered, counted from 1:
//   digits  Display * 10 + 1 + d for the digit d, Display + 31 blank, Display + 34 reset
//   status  Display * 4 + k, k = 1 normal, 2 blink, 3 and 4 stopped
// A number for a Display that has no colour is drawn in black; 0 and less draw nothing.
#pragma once

#include "ui/qt/paint/scale.h"

#include <QRect>

class QPainter;

namespace zephyne::paint {

inline constexpr int blank_digit = 10;
inline constexpr int reset_digit = 11;

// Which segments a digit lights: bit 0 is a, bit 6 is g. None for a number out of range.
unsigned lit_segments(int digit);

// Digits are kept as pictures by number and size; drawing again costs one copy. The glow
// reaches some px beyond the cell.
void led_digit(QPainter& painter, const Scale& scale, const QRect& cell, int picture);
void led_status(QPainter& painter, const Scale& scale, const QRect& cell, int picture);

}  // namespace zephyne::paint
