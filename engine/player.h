// The life of one song on the device: how it starts, stops and ends.
#pragma once

#include "engine/between_songs.h"
#include "engine/stage.h"
#include "engine/time_display.h"

namespace zephyne {

// What is next when a song is over; the player does not know the orders.
class NextSong {
  public:
    virtual ~NextSong() = default;
    virtual void PlayNextSong() = 0;
    virtual void RefillAndPlayNext() = 0;
    virtual void play_next_queued() = 0;

    // The next of the cycle, or of a new cycle when this one is used up.
    virtual void go_on() = 0;
};

class Player {
  public:
    Player(Stage& stage, TimeDisplay& display, BetweenSongs& between, NextSong& next);

    // Plays CurrentSongPath from ResumePosition, on a device that is closed; where it is open, a
    // song has been started while events ran, and that one stays. A file that is no song is passed
    // over silently; one that does not play is reported to the user, and the player is idle.
    void PlayFile();

    // Stops and closes the device; unless a song is being switched the displays are emptied, too.
    void StopDevice();

    // StopDevice, PlayFile under AutoStarting.
    void restart();

    // Shows "Playing" and the length, as after every start, in the tray as well.
    void show_playing();

    // In the tray: the song waits at its start.
    void show_waiting();

    // Opens the current song once more, with the device's type; it waits for a Play key.
    void wait_at_start();

    // Whether the current song's file can still be read; if not, the user is told and the player
    // is idle, without a current song.
    bool song_still_there();

  private:
    void Done(NotifyCode code);
    void StatusUpdate();
    void end_in_queue();
    void end_in_manual();
    void preview_clock();
    void blink_near_the_end();
    void empty_displays();

    Stage& stage_;
    TimeDisplay& display_;
    BetweenSongs& between_;
    NextSong& next_;
};

}  // namespace zephyne
