// The sheet of the tray icon, which has no window: its popup menu, as the player keeps it up to
// date, and its two timers.
#pragma once

#include "core/controls/menu.h"
#include "core/scheduler.h"

#include <array>
#include <cstddef>

namespace zephyne {

struct TrayForm {
    explicit TrayForm(Scheduler& scheduler) : Timer1(scheduler, 1200), Timer2(scheduler, 300) {}

    static MenuItem separator(const char* name) {
        return {.name = name, .kind = MenuItemKind::separator};
    }

    MenuItem mnuNext{.name = "mnuNext", .caption = "Next Song"};
    MenuItem mnuPause{.name = "mnuPause", .caption = "Pause"};  // or "Play"
    MenuItem mnuStop{.name = "mnuStop", .caption = "Stop"};     // or "Play"
    MenuItem sep3 = separator("sep3");
    std::array<MenuItem, 5> songs{{{.name = "mnuSong(1)", .visible = false},
                                   {.name = "mnuSong(2)", .visible = false},
                                   {.name = "mnuSong(3)", .visible = false},
                                   {.name = "mnuSong(4)", .visible = false},
                                   {.name = "mnuSong(5)", .visible = false}}};
    MenuItem sep1{.name = "sep1", .visible = false, .kind = MenuItemKind::separator};
    MenuItem VolUp{.name = "VolUp", .caption = "Raise Volume"};
    MenuItem VolDown{.name = "VolDown", .caption = "Lower Volume"};
    MenuItem sep5 = separator("sep5");
    MenuItem mnuActivate{.name = "mnuActivate", .caption = "Show"};
    MenuItem mnuHide{.name = "mnuHide", .caption = "Hide"};
    MenuItem sep2 = separator("sep2");
    MenuItem mnuAbout{.name = "mnuAbout", .caption = "About..."};
    MenuItem sep4 = separator("sep4");
    MenuItem mnuQuit{.name = "mnuQuit", .caption = "Quit Zephyne"};

    RepeatingTimer Timer1;  // refreshes the tooltip and "Next Song"
    RepeatingTimer Timer2;  // the time that a second click has to make a double click

    // The five most recently finished songs, 1..5.
    MenuItem& mnuSong(int number) { return songs[static_cast<std::size_t>(number - 1)]; }

    PopupMenu mnuBar() {
        return {{&mnuNext, &mnuPause, &mnuStop, &sep3, &songs[0], &songs[1], &songs[2], &songs[3],
                 &songs[4], &sep1, &VolUp, &VolDown, &sep5, &mnuActivate, &mnuHide, &sep2,
                 &mnuAbout, &sep4, &mnuQuit},
                &mnuActivate};
    }
};

}  // namespace zephyne
