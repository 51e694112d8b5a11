#include "core/controls/control.h"

#include "core/controls/form.h"

#include <algorithm>
#include <utility>

namespace zephyne {

Control::Control(Form& form, ControlKind kind, const ControlDesign& design)
    : form_(form),
      kind_(kind),
      name_(design.name),
      place_(design.place),
      caption_(design.caption),
      tab_(design.tab),
      tab_stop_(design.stop),
      style_(design.style),
      inset_(design.inset),
      frame_(design.frame),
      visible_(design.shown == Shown::yes) {
    form_.controls_.push_back(this);
}

Control::~Control() {
    std::erase(form_.controls_, this);
    if (form_.focused_ == this) form_.focused_ = nullptr;
    if (observer_) observer_->subject_gone();
}

void Control::changed(Property property) const {
    if (observer_) observer_->property_changed(property);
}

void Control::set_place(const Place& place) {
    if (place == place_) return;
    place_ = place;
    changed(Property::place);
}

void Control::set_left(int left) {
    set_place({left, place_.top, place_.width, place_.height});
}
void Control::set_top(int top) {
    set_place({place_.left, top, place_.width, place_.height});
}
void Control::set_width(int width) {
    set_place({place_.left, place_.top, width, place_.height});
}
void Control::set_height(int height) {
    set_place({place_.left, place_.top, place_.width, height});
}

void Control::set_visible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    changed(Property::visible);
    for (Control* child : form_.controls()) {
        if (child->frame_ == this) child->changed(Property::visible);
    }
}

bool Control::shown() const {
    return visible_ && (!frame_ || frame_->shown());
}

void Control::set_enabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    changed(Property::enabled);
    for (Control* child : form_.controls()) {
        if (child->frame_ == this) child->changed(Property::enabled);
    }
}

bool Control::usable() const {
    return enabled_ && listened_to() && (!frame_ || frame_->usable());
}

void Control::set_caption(std::string caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    changed(Property::caption);
}

void Control::set_tooltip(std::string tooltip) {
    if (tooltip == tooltip_) return;
    tooltip_ = std::move(tooltip);
    if (!tooltip_.empty()) last_tooltip_ = tooltip_;
    changed(Property::tooltip);
}

std::string Control::accessible_name() const {
    if (!caption_.empty()) return caption_;
    return accessible_name_.empty() ? last_tooltip_ : accessible_name_;
}

void Control::set_colour(Colour colour) {
    if (colour == colour_) return;
    colour_ = colour;
    changed(Property::colour);
}

void Control::set_focus() {
    if (shown() && usable()) form_.set_focused(this);
}

bool Control::focused() const {
    return form_.focused() == this;
}

}  // namespace zephyne
