// The View Presets window, in which all twelve presets can be read and edited.
#pragma once

#include "core/ports/window_host.h"
#include "engine/stage.h"

namespace zephyne {

class ViewPresets {
  public:
    ViewPresets(Stage& stage, WindowHost& windows);

    // "View": shows the window, modal. "OK" stores what is typed there, unchecked.
    void Command16_Click();

  private:
    Stage& stage_;
    WindowHost& windows_;
};

}  // namespace zephyne
