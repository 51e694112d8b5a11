// A slider, horizontal or vertical. A vertical one has its lowest value at the top.
//
// While the user drags the cap, on_scroll follows it; the change comes once, with the release, if
// the user has moved it. A step by key, and a value set from code, are a change at once.
#pragma once

#include "core/controls/control.h"

#include <functional>

namespace zephyne {

enum class Orientation { horizontal, vertical };

class Slider final : public Control {
  public:
    static constexpr int lowest = 0;
    static constexpr int highest = 100;

    Slider(Form& form, Orientation orientation, const ControlDesign& design);

    Orientation orientation() const { return orientation_; }
    int value() const { return value_; }
    void set_value(int value);  // clamped; raises on_change when it differs

    // What is engraved under a vertical slider ("L", "R").
    const std::string& legend() const { return legend_; }
    void set_legend(std::string legend) { legend_ = std::move(legend); }

    // The user's acts.
    void press();
    void drag_to(int value);  // between press() and release()
    void release();
    void step_to(int value);  // by key or wheel

    void set_on_change(std::function<void()> handler);
    std::function<void()> on_scroll;
    std::function<void()> on_mouse_down;
    std::function<void()> on_mouse_move;
    std::function<void()> on_mouse_up;

  protected:
    bool listened_to() const override { return on_change_ || on_mouse_down; }

  private:
    bool move_cap(int value);

    std::function<void()> on_change_;
    std::string legend_;
    Orientation orientation_;
    int value_ = 0;
    int pressed_at_ = 0;
    bool pressed_ = false;
};

}  // namespace zephyne
