// The main window's "Open a Playlist": the song list becomes that of a playlist file.
#pragma once

#include "engine/play_order.h"
#include "engine/stage.h"
#include "playlists/playlist_file.h"
#include "playlists/playlist_lists.h"

namespace zephyne {

class OpenPlaylist {
  public:
    // Takes the main window's key.
    OpenPlaylist(Stage& stage, PlayOrder& order, PlaylistFile& file);

  private:
    void Command20_Click();

    Stage& stage_;
    PlayOrder& order_;
    PlaylistFile& file_;
    PlaylistLists lists_;
};

}  // namespace zephyne
