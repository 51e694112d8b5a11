// The playlist editor, opened by the main window's "Create/Edit/Save a Playlist".
#pragma once

#include "core/ports/window_host.h"
#include "core/sheets/form9.h"
#include "engine/engine.h"
#include "engine/media_device.h"
#include "engine/stage.h"
#include "playlists/audition.h"
#include "playlists/edited_playlist.h"
#include "playlists/editor_folder.h"
#include "playlists/playlist_file.h"

#include <functional>
#include <string>

namespace zephyne {

class PlaylistEditor {
  public:
    // Takes the main window's key. `audition`: back ends for the editor alone.
    PlaylistEditor(Stage& stage, Engine& engine, Scheduler& scheduler, WindowHost& windows,
                   PlaylistFile& file, MediaBackends audition);

    // "Find All": shows the drive search, modal, which adds to this playlist. Empty: no such key.
    std::function<void(EditedPlaylist&)> show_drive_search;

  private:
    // One opening of the window.
    struct Opened {
        Opened(PlaylistEditor& editor);
        Form9 form;
        EditorFolder folder;
        EditedPlaylist playlist;
        Audition audition;
    };

    void Command13_Click();
    void Form_Load(Opened& editor);
    void Form_Activate(Opened& editor);
    void Form_Unload(Opened& editor);
    void settips(Form9& form) const;
    void formfinish(Opened& editor);
    void Command5_Click(EditedPlaylist& playlist);

    Stage& stage_;
    Engine& engine_;
    Scheduler& scheduler_;
    WindowHost& windows_;
    PlaylistFile& file_;
    MediaBackends audition_;
    std::string last_folder_;  // where the editor was last; for the run of the program
};

}  // namespace zephyne
