// What the three transport keys do.
#pragma once

#include "engine/between_songs.h"
#include "engine/player.h"
#include "engine/stage.h"
#include "engine/time_display.h"

namespace zephyne {

class TransportKeys {
  public:
    TransportKeys(Stage& stage, TimeDisplay& display, BetweenSongs& between, Player& player);

    // Each may set `cancel`, so that the device does not follow the key by itself.
    void PlayClick(bool& cancel);
    void PauseClick(bool& cancel);
    void StopClick(bool& cancel);  // reloads the song, which then waits at its start

    // What the Pause key does: holds the song that plays, else goes on with the one that is held.
    void pause_or_resume();

  private:
    Stage& stage_;
    TimeDisplay& display_;
    BetweenSongs& between_;
    Player& player_;
};

}  // namespace zephyne
