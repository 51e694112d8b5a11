// The reset key: resets the synthesizer in the middle of a song, which then goes on in its place.
#pragma once

#include "engine/between_songs.h"
#include "engine/player.h"
#include "engine/stage.h"

namespace zephyne {

class ResetButton {
  public:
    ResetButton(Stage& stage, BetweenSongs& between, Player& player);

  private:
    void SSCommand1_Click();

    Stage& stage_;
    BetweenSongs& between_;
    Player& player_;
};

}  // namespace zephyne
