// The window "Find All MIDI Files on drive": lists every song of a drive, lets the user pick some,
// and adds them to the playlist in the editor.
#pragma once

#include "core/ports/window_host.h"
#include "core/scheduler.h"
#include "engine/stage.h"
#include "playlists/drive_search.h"
#include "playlists/edited_playlist.h"

namespace zephyne {

class DriveSearchWindow {
  public:
    DriveSearchWindow(Stage& stage, const Scheduler& scheduler, WindowHost& windows);

    // Shows the window above the editor and returns when it has been closed. The songs that the
    // user has picked go to the playlist.
    void show(EditedPlaylist& playlist);

  private:
    struct Opened;

    void Form_Load(Opened& window);
    void Command1_Click(Opened& window);
    void Command2_Click(Opened& window);
    void search(Opened& window);
    bool goes_on(Opened& window, const FoundSongs& found, SearchStep step);
    void report_progress(Opened& window, const FoundSongs& found);
    void list(Opened& window, const FoundSongs& found);

    Stage& stage_;
    const Scheduler& scheduler_;
    WindowHost& windows_;
};

}  // namespace zephyne
