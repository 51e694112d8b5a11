#include "core/controls/form.h"

#include <algorithm>
#include <utility>

namespace zephyne {

Form::Form(const FormDesign& design)
    : name_(design.name), title_(design.title), place_{0, 0, design.width, design.height} {}

Form::~Form() {
    if (observer_) observer_->subject_gone();
}

Control* Form::find(std::string_view name) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [&](const Control* c) { return c->name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

void Form::changed(Property property) const {
    if (observer_) observer_->property_changed(property);
}

void Form::set_title(std::string title) {
    if (title == title_) return;
    title_ = std::move(title);
    changed(Property::title);
}

void Form::set_place(const Place& place) {
    if (place == place_) return;
    place_ = place;
    changed(Property::place);
}

void Form::move_to(int left, int top) {
    set_place({left, top, place_.width, place_.height});
}

void Form::set_visible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    changed(Property::visible);
}

void Form::set_state(WindowState state) {
    if (state == state_) return;
    state_ = state;
    changed(Property::state);
}

void Form::set_focused(Control* control) {
    if (control == focused_) return;
    Control* before = std::exchange(focused_, control);
    if (before) {
        before->changed(Property::focus);
        if (before->on_lost_focus) before->on_lost_focus();
    }
    if (focused_ != control || !control) return;  // a handler has moved it on
    control->changed(Property::focus);
    if (control->on_got_focus) control->on_got_focus();
}

bool Form::request_unload(CloseReason reason) {
    if (!loaded_ || (asking_ && reason != CloseReason::session_end)) return false;
    asking_ = true;
    bool cancel = false;
    if (on_query_unload) on_query_unload(reason, cancel);
    asking_ = false;
    if (cancel || !loaded_) return false;
    loaded_ = false;
    if (on_unload) on_unload();
    set_visible(false);
    return true;
}

void Form::user_activated() {
    if (on_activate) on_activate();
}

void Form::user_moved(int left, int top) {
    place_.left = left;
    place_.top = top;
}

void Form::user_resized(int width, int height) {
    place_.width = width;
    place_.height = height;
    if (on_resize) on_resize();
}

void Form::user_changed_state(WindowState state) {
    if (state == state_) return;
    state_ = state;
    if (on_resize) on_resize();
}

void Form::user_released_key(int key) {
    if (on_key_up) on_key_up(key);
}

}  // namespace zephyne
