#include "ui/qt/pixels.h"

#include <QWidget>
#include <cmath>

namespace zephyne {
namespace {

int round_half_up(double value) {
    return static_cast<int>(std::floor(value + 0.5));
}

}  // namespace

QRect Pixels::box(const Place& place, const Inset& inset) const {
    return scale().box(place.left, place.top, place.width, place.height,
                       {inset.left, inset.top, inset.right, inset.bottom});
}

QRect Pixels::containing(const QRect& device) const {
    const int left = static_cast<int>(std::floor(device.x() / ratio));
    const int top = static_cast<int>(std::floor(device.y() / ratio));
    const int right = static_cast<int>(std::ceil((device.x() + device.width()) / ratio));
    const int bottom = static_cast<int>(std::ceil((device.y() + device.height()) / ratio));
    return {left, top, right - left, bottom - top};
}

QRect Pixels::within(const QRect& device) const {
    const int left = static_cast<int>(std::ceil(device.x() / ratio));
    const int top = static_cast<int>(std::ceil(device.y() / ratio));
    const int right = static_cast<int>(std::floor((device.x() + device.width()) / ratio));
    const int bottom = static_cast<int>(std::floor((device.y() + device.height()) / ratio));
    return {left, top, right - left, bottom - top};
}

QRect Pixels::device(const QRect& logical) const {
    const int left = round_half_up(logical.x() * ratio);
    const int top = round_half_up(logical.y() * ratio);
    const int right = round_half_up((logical.x() + logical.width()) * ratio);
    const int bottom = round_half_up((logical.y() + logical.height()) * ratio);
    return {left, top, right - left, bottom - top};
}

QPoint Pixels::device(const QPointF& logical) const {
    return {static_cast<int>(std::floor(logical.x() * ratio)),
            static_cast<int>(std::floor(logical.y() * ratio))};
}

int Pixels::logical(int twips) const {
    return round_half_up(twips * factor / paint::twips_per_pixel);
}

int Pixels::twips(int logical) const {
    return round_half_up(logical * paint::twips_per_pixel / factor);
}

double user_scale_factor() {
    bool valid = false;
    const double factor = qEnvironmentVariable("ZEPHYNE_SCALE").toDouble(&valid);
    return valid && factor >= 1 && factor <= 4 ? factor : 1;
}

Pixels pixels_of(const QWidget& widget, double factor) {
    return {factor, std::max(1.0, widget.devicePixelRatio())};
}

QPoint origin_in_window(const QWidget& widget) {
    return widget.mapTo(widget.window(), QPoint());
}

DevicePainter::DevicePainter(QWidget& widget) : QPainter(&widget) {
    translate(-origin_in_window(widget));
    const double ratio = widget.devicePixelRatio();
    scale(1 / ratio, 1 / ratio);
}

}  // namespace zephyne
