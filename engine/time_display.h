// What the deck shows of the time: the LED clock with its colon, the percentage, the position
// slider's own movement, and the note roll.
#pragma once

#include "engine/stage.h"

#include <string>

namespace zephyne {

// "03:25", or "1+ Hr." from an hour on. `length` is in ms.
std::string length_text(Milliseconds length);

// A percentage as the deck writes it: " 42%".
std::string percent_text(int percent);

class TimeDisplay {
  public:
    explicit TimeDisplay(Stage& stage);

    // Moves slider and percentage and draws the digits from the device's position, while a song
    // plays or is paused. A file of no length moves nothing.
    void UpdateTimeDisplay();

    // All digits 0, the colon lit.
    void ClearTimeDisplay();

    // Stops the blinking.
    void StopAnimation();

    // Starts blinking, for one of Blink's reasons, every `interval` ms.
    void start_blinking(std::int16_t reason, Milliseconds interval);

    // The position slider to 0, without the player taking it for a seek, unless a song is about
    // to resume.
    void rewind_slider();

    // Draws digits and colon again, in another colour. What is not known is drawn as 0.
    void recolour();

    void forget_digits();      // the next update draws all four
    void show_reset_glyphs();  // while the synthesizer is being reset

    // The user clicked the clock: time played or time remaining.
    void toggle_time_method();

  private:
    void show_percentage(Milliseconds position, Milliseconds length);
    void show_digits(Milliseconds seconds);
    void draw_all(int image);
    void blink();
    void animate();

    Stage& stage_;
    bool blink_phase_ = false;
    int frame_ = 1;
};

}  // namespace zephyne
