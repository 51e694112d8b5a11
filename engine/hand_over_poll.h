// Takes the songs that other copies of the program hand over. They wait in Label15 for the next
// tick of Timer5.
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

    // Another copy's command line has come. A song that waits still gives way to it, because the
    // user's last wish counts; but the Queue player, which collects songs, keeps both.
    void poke(std::string command_line);

  private:
    void Timer5_Timer();
    bool queueing() const;
    void queue_waiting_song();
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
