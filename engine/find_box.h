// The "Find:" box: typing selects the first song that begins so, Enter plays it, leaving the box
// goes back to the song that plays.
#pragma once

#include "engine/between_songs.h"
#include "engine/song_list.h"
#include "engine/stage.h"

namespace zephyne {

class FindBox {
  public:
    FindBox(Stage& stage, BetweenSongs& between, SongList& songs);

  private:
    void text2_Change();
    void text2_Enter();
    void text2_LostFocus();

    Stage& stage_;
    BetweenSongs& between_;
    SongList& songs_;
};

}  // namespace zephyne
