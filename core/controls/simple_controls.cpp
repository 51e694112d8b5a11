#include "core/controls/simple_controls.h"

#include <utility>

namespace zephyne {

void Label::click() {
    if (shown() && usable() && on_click) on_click();
}

void Label::set_font_points(int points) {
    if (points == font_points_) return;
    font_points_ = points;
    changed(Property::font);
}

void Button::click() {
    if (shown() && usable()) on_click_();
}

void Button::set_on_click(std::function<void()> handler) {
    on_click_ = std::move(handler);
    changed(Property::enabled);
}

void Button::set_latched(bool latched) {
    if (latched == latched_) return;
    latched_ = latched;
    changed(Property::value);
}

void CheckBox::set_value(std::int16_t value) {
    const std::int16_t checked = value != 0 ? 1 : 0;
    if (checked == value_) return;
    value_ = checked;
    changed(Property::value);
    if (on_click_) on_click_();
}

void CheckBox::click() {
    if (shown() && usable()) set_value(value_ == 0 ? 1 : 0);
}

int digit_image(int display, int digit) {
    return display * 10 + 1 + digit;
}
int blank_image(int display) {
    return display + 31;
}
int reset_image(int display) {
    return display + 34;
}
int status_image(int display, int frame) {
    return display * 4 + frame;
}

void Picture::set_image(int image) {
    if (image == image_) return;
    image_ = image;
    changed(Property::image);
}

void Picture::click() {
    if (shown() && usable() && on_click) on_click();
}

void Transport::set_transport_enabled(bool enabled) {
    if (enabled == transport_enabled_) return;
    transport_enabled_ = enabled;
    changed(Property::enabled);
}

bool Transport::key_enabled(TransportKey key) const {
    return transport_enabled_ && keys_enabled_[static_cast<std::size_t>(key)];
}

void Transport::set_key_enabled(TransportKey key, bool enabled) {
    bool& now = keys_enabled_[static_cast<std::size_t>(key)];
    if (std::exchange(now, enabled) != enabled) changed(Property::enabled);
}

void Transport::set_light(TransportLight light) {
    if (light == light_) return;
    light_ = light;
    changed(Property::value);
}

void Transport::press(TransportKey key) {
    if (shown() && usable() && key_enabled(key) && on_press) on_press(key);
}

}  // namespace zephyne
