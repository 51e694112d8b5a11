// The player as a whole: its procedures, wired to the main window, the device and each other.
#pragma once

#include "engine/between_songs.h"
#include "engine/find_box.h"
#include "engine/hand_over_poll.h"
#include "engine/play_order.h"
#include "engine/player.h"
#include "engine/position_slider.h"
#include "engine/reset_button.h"
#include "engine/song_list.h"
#include "engine/stage.h"
#include "engine/time_display.h"
#include "engine/transport_keys.h"

namespace zephyne {

// The parts refer to each other, in a circle where a song's end starts the next; each takes from
// the others only what it calls.
struct Engine {
    explicit Engine(Stage& stage)
        : display(stage),
          between(stage, display),
          player(stage, display, between, order),
          order(stage, display, between, player),
          songs(stage, display, between, player, order),
          transport(stage, display, between, player),
          find(stage, between, songs),
          slider(stage, display),
          reset(stage, between, player),
          hand_over(stage, between, player, order, songs) {}

    TimeDisplay display;
    BetweenSongs between;
    Player player;
    PlayOrder order;
    SongList songs;
    TransportKeys transport;
    FindBox find;
    PositionSlider slider;
    ResetButton reset;
    HandOverPoll hand_over;
};

}  // namespace zephyne
