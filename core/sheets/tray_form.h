// The sheet of the tray icon: its popup menu, as the player keeps it up to date.
#pragma once

#include "core/controls/menu.h"

#include <array>
#include <cstddef>

namespace zephyne {

struct TrayForm {
    MenuItem mnuNext{.name = "mnuNext", .caption = "Next Song"};
    MenuItem mnuPause{.name = "mnuPause", .caption = "Pause", .enabled = false};
    MenuItem mnuStop{.name = "mnuStop", .caption = "Stop", .enabled = false};
    MenuItem sep1{.name = "sep1", .visible = false};  // above the recent songs

    // The five most recent songs, 1..5.
    MenuItem& mnuSong(int number) { return songs_[static_cast<std::size_t>(number - 1)]; }

  private:
    std::array<MenuItem, 5> songs_{{{.name = "mnuSong(1)", .visible = false},
                                    {.name = "mnuSong(2)", .visible = false},
                                    {.name = "mnuSong(3)", .visible = false},
                                    {.name = "mnuSong(4)", .visible = false},
                                    {.name = "mnuSong(5)", .visible = false}}};
};

}  // namespace zephyne
