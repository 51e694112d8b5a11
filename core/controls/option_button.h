// One choice of several: of the option buttons in the same frame one at most is selected.
#pragma once

#include "core/controls/control.h"

#include <functional>
#include <vector>

namespace zephyne {

// Where an arrow key leads within a group.
enum class GroupStep { previous, next };

class OptionButton final : public Control {
  public:
    OptionButton(Form& form, const ControlDesign& design)
        : Control(form, ControlKind::option_button, design) {}

    bool selected() const { return selected_; }

    // From code: takes the selection from the rest of the group, which stays silent, and raises
    // on_click unless it was selected already.
    void select();

    // The user clicked it: as above, but on_click is raised in any case.
    void click();

    // The user pressed an arrow key on it: the neighbour that can be reached, in the tab order and
    // round its ends, gets the keyboard and is clicked.
    void step(GroupStep step);

    // Whether Tab stops here: at the selected one of the group, at the first where none is.
    bool is_group_stop() const;

    std::function<void()> on_click;

  private:
    std::vector<OptionButton*> group() const;  // in the tab order, this one included
    void take_selection();

    bool selected_ = false;
};

}  // namespace zephyne
