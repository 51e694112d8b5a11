#include "core/controls/slider.h"

#include <algorithm>
#include <utility>

namespace zephyne {

Slider::Slider(Form& form, Orientation orientation, const ControlDesign& design)
    : Control(form, ControlKind::slider, design), orientation_(orientation) {}

bool Slider::move_cap(int value) {
    value = std::clamp(value, lowest, highest);
    if (value == value_) return false;
    value_ = value;
    changed(Property::value);
    return true;
}

void Slider::set_value(int value) {
    if (!move_cap(value)) return;
    pressed_at_ = value_;  // where the user holds it, the release has nothing to tell
    if (on_change_) on_change_();
}

void Slider::press() {
    if (!shown() || !usable()) return;
    pressed_ = true;
    pressed_at_ = value_;
    if (on_mouse_down) on_mouse_down();
}

void Slider::drag_to(int value) {
    if (!pressed_) return;
    if (move_cap(value) && on_scroll) on_scroll();
    if (on_mouse_move) on_mouse_move();
}

void Slider::release() {
    if (!std::exchange(pressed_, false)) return;
    if (on_mouse_up) on_mouse_up();
    if (value_ != pressed_at_ && on_change_) on_change_();
}

void Slider::step_to(int value) {
    if (pressed_ || !shown() || !usable() || !move_cap(value)) return;
    if (on_scroll) on_scroll();
    if (on_change_) on_change_();
}

void Slider::set_on_change(std::function<void()> handler) {
    on_change_ = std::move(handler);
    changed(Property::enabled);
}

}  // namespace zephyne
