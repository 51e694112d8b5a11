// The entries of a popup menu. The menu asks for them when it opens; nothing observes them.
#pragma once

#include <functional>
#include <string>
#include <utility>

namespace zephyne {

struct MenuItem {
    std::string name;
    std::string caption;
    bool enabled = true;
    bool visible = true;
    std::function<void()> on_click;

    void click() const {
        if (enabled && visible && on_click) on_click();
    }
};

}  // namespace zephyne
