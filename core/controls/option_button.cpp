#include "core/controls/option_button.h"

#include "core/controls/form.h"

#include <algorithm>

namespace zephyne {

std::vector<OptionButton*> OptionButton::group() const {
    std::vector<OptionButton*> members;
    for (Control* control : form().controls()) {
        if (control->kind() == ControlKind::option_button && control->frame() == frame()) {
            members.push_back(static_cast<OptionButton*>(control));
        }
    }
    std::stable_sort(
        members.begin(), members.end(),
        [](const OptionButton* a, const OptionButton* b) { return a->tab() < b->tab(); });
    return members;
}

// The whole group hears of it, because the place where Tab stops may have moved, too.
void OptionButton::take_selection() {
    const auto members = group();
    for (OptionButton* member : members) member->selected_ = member == this;
    for (const OptionButton* member : members) member->changed(Property::value);
}

void OptionButton::select() {
    if (selected_) return;
    take_selection();
    if (on_click) on_click();
}

void OptionButton::click() {
    if (!shown() || !usable()) return;
    if (!selected_) take_selection();
    if (on_click) on_click();
}

void OptionButton::step(GroupStep step) {
    auto members = group();
    std::erase_if(members, [this](const OptionButton* member) {
        return member != this && (!member->shown() || !member->usable());
    });
    const auto here =
        static_cast<std::size_t>(std::find(members.begin(), members.end(), this) - members.begin());
    const std::size_t distance = step == GroupStep::next ? 1 : members.size() - 1;
    OptionButton& neighbour = *members[(here + distance) % members.size()];
    if (&neighbour == this) return;
    neighbour.set_focus();
    neighbour.click();
}

bool OptionButton::is_group_stop() const {
    const auto members = group();
    const auto selected = std::find_if(members.begin(), members.end(),
                                       [](const OptionButton* m) { return m->selected(); });
    return (selected == members.end() ? members.front() : *selected) == this;
}

}  // namespace zephyne
