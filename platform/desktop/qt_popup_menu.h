// A popup menu on the screen, which shows the entries of a sheet.
#pragma once

#include "core/controls/menu.h"

#include <QMenu>
#include <QStyle>
#include <memory>
#include <vector>

namespace zephyne {

class QtPopupMenu {
  public:
    explicit QtPopupMenu(std::unique_ptr<QStyle> style);

    // The entries to show; they outlive the menu. A chosen one is clicked.
    void set_entries(PopupMenu entries);

    // Takes over captions, and what is enabled and visible; also while the menu is open.
    void bring_up_to_date();

    void open_at_mouse();  // nothing happens while it is open
    void close() { menu_.hide(); }

    QMenu* widget() { return &menu_; }

  private:
    void stay_on_screen();

    std::unique_ptr<QStyle> style_;
    QMenu menu_;
    PopupMenu entries_;
    std::vector<QAction*> actions_;  // one for each entry; the menu owns them
};

}  // namespace zephyne
