// The song list that the user sees, the folders that feed it, and the choice of a song by hand.
#pragma once

#include "engine/between_songs.h"
#include "engine/play_order.h"
#include "engine/player.h"
#include "engine/stage.h"
#include "engine/time_display.h"

#include <string>

namespace zephyne {

class SongList {
  public:
    SongList(Stage& stage, TimeDisplay& display, BetweenSongs& between, Player& player,
             PlayOrder& order);

    // Rebuilds the list from the current folder, without a selected row, and shows how many songs
    // it has. A folder that cannot be read has none. Nothing happens with a playlist.
    void refreshfiles();

    // The same in the middle of a step: what the list and its selection do meanwhile starts
    // nothing.
    void rebuild();

    // A song's file has gone, and another song plays and goes on: it leaves the list and the cycle.
    void forget(const std::string& real_name);

    // A new folder, or a rebuilt list: a new cycle begins, or the device stops (Manual).
    void filepathchange();

    // Plays the selected song, as a click on it does.
    void File1_Click();

  private:
    void Dir1_Change();
    void Drive1_Change();
    bool shows_its_song() const;
    void take_selected();
    void play_taken();

    Stage& stage_;
    TimeDisplay& display_;
    BetweenSongs& between_;
    Player& player_;
    PlayOrder& order_;
    bool recovering_ = false;  // from a drive that cannot be read
};

}  // namespace zephyne
