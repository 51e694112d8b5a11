// The position slider: the user's drag seeks when it ends.
#pragma once

#include "engine/stage.h"
#include "engine/time_display.h"

namespace zephyne {

class PositionSlider {
  public:
    PositionSlider(Stage& stage, TimeDisplay& display);

  private:
    void Slider1_MouseDown();
    void Slider1_MouseUp();
    void Slider1_Scroll();
    void Slider1_Change();

    Stage& stage_;
    TimeDisplay& display_;
};

}  // namespace zephyne
