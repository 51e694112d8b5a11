// The grounds that every control is made of: faceplate, groove, key, well, glass, frame, and
// the focus ring that goes on top. Boxes are snapped device pixels.
#pragma once

#include "ui/qt/paint/scale.h"

#include <QColor>
#include <QRect>
#include <QString>

class QPainter;

namespace zephyne::paint {

// The whole client area of a window.
void faceplate(QPainter& painter, const Scale& scale, const QRect& client);

// A cut line; vertical if the box is higher than wide.
void groove(QPainter& painter, const Scale& scale, const QRect& box);

enum class KeyFace {
    Up,
    Hover,
    Down,  // pressed or latched
    Off,   // disabled
};

// Radius 3. Paints its seat 1 px below the box.
void key(QPainter& painter, const Scale& scale, const QRect& box, KeyFace face);

enum class WellLook {
    Normal,
    Hover,    // lighter edge
    Pressed,  // darker ground
};

// Radius 2. Paints its lower lip 1 px below the box.
void well(QPainter& painter, const Scale& scale, const QRect& box,
          WellLook look = WellLook::Normal);

// Radius 3. Paints a rim 1 px around the box.
void glass(QPainter& painter, const Scale& scale, const QRect& box);

enum class Focus {
    None,
    Quiet,  // came by mouse or from the program: a dim line, no halo
    Ring,   // came by keyboard
};

inline constexpr double key_radius = 3.0;
inline constexpr double well_radius = 2.0;
inline constexpr double glass_radius = 3.0;
inline constexpr double cap_radius = 2.0;

// On the outer pixel row of the box of a surface with that radius (px at 100 %); the halo
// reaches `overhang` px beyond. Nothing for Focus::None.
void focus_ring(QPainter& painter, const Scale& scale, const QRect& box, double radius,
                Focus focus);

// The line of the default key, under the focus ring if it has both.
void default_ring(QPainter& painter, const Scale& scale, const QRect& box);

// A group with its caption on a dark tag; without a caption the line is closed. The tag's
// left edge is 8 px from the box's, and the line lies 6 px below its top.
void frame(QPainter& painter, const Scale& scale, const QRect& box, const QString& caption,
           const QColor& caption_color);

}  // namespace zephyne::paint
