// The editor's own player: one song of the chosen folder, to hear what it is.
//
// It plays on a device of its own and leaves the main player's songs, lists and flags alone. Only
// the reset of the synthesizer before a MIDI song is the main player's.
#pragma once

#include "core/sheets/form9.h"
#include "engine/between_songs.h"
#include "engine/media_device.h"
#include "engine/stage.h"

#include <optional>
#include <string>

namespace zephyne {

class Audition {
  public:
    // The back ends are this device's alone, for as long as it lives, and nothing is open on them.
    Audition(Stage& stage, BetweenSongs& between, TimeDisplay& display, Scheduler& scheduler,
             Form9& form, MediaBackends backends);
    ~Audition() { device_.shut_down(); }
    Audition(const Audition&) = delete;
    Audition& operator=(const Audition&) = delete;

    // Ends what plays; no key can be pressed until a song is selected.
    void close();

    // The user has selected or deselected songs of the folder.
    void List1_Click();

  private:
    void key_pressed(TransportKey key, bool& cancel);
    void play(const std::string& path);
    bool reset_for(const std::string& path);
    void Done(NotifyCode code);
    void enable_stopping(bool enabled);
    std::optional<std::string> chosen() const;

    Stage& stage_;
    BetweenSongs& between_;
    TimeDisplay& display_;
    Form9& form_;
    MediaDevice device_;
    bool resetting_ = false;
};

}  // namespace zephyne
