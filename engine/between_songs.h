// The gap between two songs: the pause, the reset of the synthesizer, and the locking of the
// window's controls around such gaps.
#pragma once

#include "engine/stage.h"
#include "engine/time_display.h"

namespace zephyne {

// Whether EnableControls also selects the current song in the list again.
enum class Reselect { yes, no };

class BetweenSongs {
  public:
    BetweenSongs(Stage& stage, TimeDisplay& display);

    // Waits AutoDelayTime seconds, 60 at most, or until cancel_delay(). Meanwhile events are
    // handled, "Reset List" reads "Cancel Dly", and whatever could start a song is disabled. A
    // time of 0 or less is no pause. False when the caller must not go on: the program ends, or a
    // song has been started meanwhile.
    bool AutoDelayPause();
    void cancel_delay();

    // Stops and closes the device, and plays the reset sequence when that is switched on and its
    // file is there; then the device is closed, its type is Sequencer, and SwitchingSong is clear.
    // Meanwhile events are handled: where one of them has started a song, that song stays open.
    // Nothing at all happens while a song is about to resume.
    void ResetSynth();

    // The same by the user's wish, which AutoReset and ResumePosition have no say in.
    void reset_now();

    void DisableControls();
    void EnableControls(Reselect reselect);

    // Selects the first song in the list that is called as the current one, without playing it.
    void select_current_song();

  private:
    enum class Sequence { played, left_out };

    void reset(Sequence sequence);
    void play_reset_sequence();
    void hear_reset_sequence();

    Stage& stage_;
    TimeDisplay& display_;
};

}  // namespace zephyne
