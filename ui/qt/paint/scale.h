// From the lengths of a design to device pixels, so that strokes stay crisp and neighbours
// neither gap nor overlap at any scale.
//
// Everything in this folder paints in device pixels: the painter's transform must map one
// unit to one device pixel and may only move by whole pixels. Nothing here keeps a painter;
// all calls belong on the user-interface thread.
#pragma once

#include <QRect>
#include <QRectF>

namespace zephyne::paint {

inline constexpr int twips_per_pixel = 15;

// How much smaller than its place a control is painted, in px at 100 %.
struct Inset {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

struct Scale {
    double s = 1.0;  // device pixels per px at 100 %; at least 1

    // A length in device pixels, exact, for round and slanted shapes.
    double exact(double px) const { return px * s; }
    // A length or distance in whole device pixels, halves up.
    int px(double px) const;
    // The width of a stroke: whole device pixels, never less than one.
    int stroke(double px = 1.0) const;
    // The device pixel on which an edge at so many twips lies, halves up.
    int edge(int twips) const;
    // The box of a place in twips. Both edges are snapped and the size is their difference,
    // so two places that touch in twips touch in pixels.
    QRect box(int left, int top, int width, int height, const Inset& inset = {}) const;
};

// How far a control may paint beyond its box, in px at 100 %: the halo of the focus ring.
// The seat of a key, the rim of a glass and the shadow of a slider's cap need 1.
inline constexpr int overhang = 2;

// The box without a border of the given width in device pixels; the border may be negative.
QRect shrunk(const QRect& box, int border);
QRectF shrunk(const QRectF& box, double border);

// A box of width x height device pixels in the middle of another, on whole pixels; what is
// left over goes below and to the right.
QRect centered(const QRect& box, int width, int height);

}  // namespace zephyne::paint
