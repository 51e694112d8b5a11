// Which song plays next: the cycle of songs still to play, and the orders in which it is drained.
#pragma once

#include "engine/between_songs.h"
#include "engine/player.h"
#include "engine/stage.h"
#include "engine/time_display.h"

#include <cstddef>

namespace zephyne {

class PlayOrder final : public NextSong {
  public:
    PlayOrder(Stage& stage, TimeDisplay& display, BetweenSongs& between, Player& player);

    // Takes the next song from RemainingList by the play order and plays it. Nothing plays when
    // the list is empty.
    void PlayNextSong() override;

    // Begins a new cycle with all songs of the list.
    void RefillAndPlayNext() override;
    void go_on() override;

    // The song list has other songs from now on. Unless songs play only by hand, pending events
    // are handled and a new cycle begins.
    void begin_with_new_list();

    // The first file of the hand-over queue that is still there, if any.
    void play_next_queued() override;

    // "Next": the next song by the order; in Manual mode the one below in the list.
    void Command9_Click();

    // "Reset List", and "Cancel Dly" while the pause between songs runs.
    void Command6_Click();

    // Fills RemainingList with the whole list, or with all but one song of it, and puts
    // OrderIndex to where the order begins.
    void refill();
    void refill_without(std::size_t song);

    // The file is gone, or has another name now: RemainingList no longer holds it under the old.
    // Which song comes next does not change by that.
    void drop(const std::string& real_name);
    void rename(const std::string& real_name, const ListItem& renamed);

    // The counter beside "Total:", alone or with the one beside "Remaining:".
    void show_total();
    void show_counters();

    // What rebuilds the song list from the folder.
    std::function<void()> refreshfiles;

  private:
    const ListBox& all_songs() const;
    std::size_t choose() const;
    void advance_after(std::size_t chosen, std::size_t count);
    void Command19_Click();
    ListItem select_in_list(const ListItem& entry);
    void show_remaining();

    Stage& stage_;
    TimeDisplay& display_;
    BetweenSongs& between_;
    Player& player_;
};

}  // namespace zephyne
