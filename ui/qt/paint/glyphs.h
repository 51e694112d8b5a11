// The glyphs on keys and in lists, by name, in any colour and size.
#pragma once

#include "ui/qt/paint/scale.h"

#include <QColor>
#include <QRect>
#include <QSize>

class QPainter;

namespace zephyne::paint {

enum class Glyph {
    Preset1,
    Preset2,
    Preset3,
    Preset4,
    Preset5,
    Preset6,
    Preset7,
    Preset8,
    Preset9,
    Preset10,
    Preset11,
    Preset12,
    Play,
    Pause,
    Stop,
    Reset,
    Lock,
    Unlock,
    Folder,
    Drive,
    Arrow,
    Check,
};

// The glyph of preset 1 to 12; a number outside is the nearest of these.
Glyph preset_glyph(int number);

// The design size of a glyph's box in px at 100 %: 10 x 8 for presets, 14 x 14 for all others.
QSize glyph_size(Glyph glyph);

// Fills the box (device pixels) with the glyph; the box should have the glyph's proportions.
// Pictures are kept by glyph, colour and size, so drawing again costs one copy.
void draw_glyph(QPainter& painter, Glyph glyph, const QRect& box, const QColor& color);

// The glyph in its design size in the middle of a box.
void draw_glyph_centered(QPainter& painter, const Scale& scale, Glyph glyph, const QRect& box,
                         const QColor& color);

}  // namespace zephyne::paint
