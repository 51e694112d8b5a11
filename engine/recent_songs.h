// The five most recently finished songs, which the tray menu offers.
#pragma once

#include "engine/stage.h"

namespace zephyne {

// Adds the current song, unless it is there already (without regard to case), and refreshes the
// tray's entries. Nothing in Queue mode, with SkipRecentOnce, or without a song.
void RecordRecentSong(Stage& stage);

// The tray's entries for them, the newest on top once all five are there.
void show_recent_songs(Stage& stage);

// For a song that ends by itself or by "Next": as above, but SkipRecentOnce is used up.
void record_finished_song(Stage& stage);

// Empties the list and the tray's entries.
void ForgetRecentSongs(Stage& stage);

}  // namespace zephyne
