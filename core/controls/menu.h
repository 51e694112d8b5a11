// The entries of a popup menu. Nothing observes them: whoever shows the menu reads them when it
// opens and whenever it is brought up to date.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zephyne {

enum class MenuItemKind { command, separator };

struct MenuItem {
    std::string name;
    std::string caption;
    bool enabled = true;
    bool visible = true;
    MenuItemKind kind = MenuItemKind::command;
    std::function<void()> on_click;

    // The user chose it. Nothing happens unless it is enabled and visible.
    void click() const {
        if (enabled && visible && on_click) on_click();
    }
};

// A menu from top to bottom. The entries belong to a sheet.
struct PopupMenu {
    std::vector<MenuItem*> items;
    const MenuItem* default_item = nullptr;  // shown bold; one of the items, or null
};

}  // namespace zephyne
