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

    // Whether a song is open and waits at its start. The device holds it there as if it were
    // paused; the entry that reads "Play" tells the two apart.
    bool song_waits() const;

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
