// The way out: the question, and the order in which everything is put away.
#pragma once

#include "core/ports/services.h"
#include "engine/engine.h"
#include "engine/stage.h"

#include <functional>

namespace zephyne {

class ShutDown {
  public:
    ShutDown(Stage& stage, Engine& engine);

    // "Quit", the close box: asks when ConfirmExit is on. The end of the session does not ask, and
    // from then on no message holds it up.
    void Form_QueryUnload(CloseReason reason, bool& cancel);

    // Stops the song, writes the settings, stops the timers, and ends the program.
    void Form_Unload();

    // What later rooms put away: the Notes window first, the tray icon after the settings, the
    // help window last.
    std::function<void()> close_notes;
    std::function<void()> unload_tray;
    std::function<void()> close_help;

    // Leaves the event loop. Called last, once.
    std::function<void()> end_program;

  private:
    Stage& stage_;
    Engine& engine_;
};

}  // namespace zephyne
