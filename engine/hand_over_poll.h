// Looks whether another copy of the program has left a song in Label15.
#pragma once

#include "engine/between_songs.h"
#include "engine/play_order.h"
#include "engine/player.h"
#include "engine/song_list.h"
#include "engine/stage.h"

#include <string>

namespace zephyne {

class HandOverPoll {
  public:
    HandOverPoll(Stage& stage, BetweenSongs& between, Player& player, PlayOrder& order,
                 SongList& songs);

  private:
    void Timer5_Timer();
    void play_beside_playlist(const std::string& path);
    void play_from_folder(std::string path);
    bool show_folder_of(std::string& path, bool& moved, std::string& name);
    void tell(std::string text);

    Stage& stage_;
    BetweenSongs& between_;
    Player& player_;
    PlayOrder& order_;
    SongList& songs_;
};

}  // namespace zephyne
