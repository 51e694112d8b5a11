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

// The number of songs into the main window's counter.
void show_song_count(Form1& form);

// Lets pending events run and begins a new cycle, unless songs play only by hand.
void start_new_songs(Stage& stage, PlayOrder& order);

}  // namespace zephyne
