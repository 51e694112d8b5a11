// What the tray menu does with the player: the next song, pause, stop, and the volume.
#pragma once

#include "engine/engine.h"
#include "engine/stage.h"

namespace zephyne {

class TrayPlayer {
  public:
    // Takes these entries of the menu.
    TrayPlayer(Stage& stage, Engine& engine);

    // Sets "Pause" and "Stop" to what the device does, for a menu that is new.
    void show_state();

  private:
    void mnuNext_Click();
    void mnuPause_Click();  // pauses, or goes on
    void mnuStop_Click();   // stops, or plays from the start
    void change_volume(int by);
    void stop();
    void play();

    Stage& stage_;
    Engine& engine_;
};

}  // namespace zephyne
