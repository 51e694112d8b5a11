#include "ui/qt/paint/scale.h"

#include <algorithm>
#include <cmath>

namespace zephyne::paint {

namespace {

int round_half_up(double value) {
    return static_cast<int>(std::floor(value + 0.5));
}

}  // namespace

int Scale::px(double px) const {
    return round_half_up(px * s);
}

int Scale::stroke(double px) const {
    return std::max(1, round_half_up(px * s));
}

int Scale::edge(int twips) const {
    return round_half_up(twips * s / twips_per_pixel);
}

QRect Scale::box(int left, int top, int width, int height, const Inset& inset) const {
    const int x = edge(left + inset.left * twips_per_pixel);
    const int y = edge(top + inset.top * twips_per_pixel);
    const int right = edge(left + width - inset.right * twips_per_pixel);
    const int bottom = edge(top + height - inset.bottom * twips_per_pixel);
    return QRect(x, y, right - x, bottom - y);
}

QRect shrunk(const QRect& box, int border) {
    return box.adjusted(border, border, -border, -border);
}

QRectF shrunk(const QRectF& box, double border) {
    return box.adjusted(border, border, -border, -border);
}

QRect centered(const QRect& box, int width, int height) {
    const auto half = [](int room) { return room >= 0 ? room / 2 : -((1 - room) / 2); };
    return QRect(box.left() + half(box.width() - width), box.top() + half(box.height() - height),
                 width, height);
}

}  // namespace zephyne::paint
