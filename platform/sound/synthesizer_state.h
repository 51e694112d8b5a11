// What a synthesizer has been told so far, apart from notes: programs and banks, controllers,
// bends, pressures, tunings, the bank mode and the master volume of all 16 channels.
//
// It is kept when a song begins and put back when the song is rewound, because a song may begin
// with what earlier songs left behind. Not kept is which registered parameter a data entry would
// change; that is none after restore().
#pragma once

#include "platform/sound/exclusive_message.h"

#include <fluidsynth.h>

#include <array>
#include <cstdint>

namespace zephyne {

// What the library cannot be asked about; so whoever talks to it writes it down here.
struct UnansweredState {
    static constexpr int kChannels = 16;

    BankMode bank_mode = BankMode::gs;
    float master_volume = 1.0F;
    std::array<std::uint8_t, kChannels> channel_pressure{};
    std::array<std::array<std::uint8_t, 128>, kChannels> key_pressure{};
};

class SynthesizerState {
  public:
    void capture(fluid_synth_t* synth, const UnansweredState& unanswered);

    // Resets the synthesizer, which silences it, and tells it everything again.
    void restore(fluid_synth_t* synth) const;

    const UnansweredState& unanswered() const { return unanswered_; }

  private:
    static constexpr int kControllers = 120;  // those above are commands
    static constexpr int kGenerators = GEN_LAST;

    struct Channel {
        int bank = 0;
        int program = 0;
        int type = CHANNEL_TYPE_MELODIC;
        int bend = 8192;
        int bend_range = 2;
        std::array<int, kControllers> controllers{};
        std::array<float, kGenerators> generators{};
    };

    static void capture(fluid_synth_t* synth, int number, Channel& channel);
    static void restore(fluid_synth_t* synth, int number, const Channel& channel);

    UnansweredState unanswered_;
    std::array<Channel, UnansweredState::kChannels> channels_;
};

}  // namespace zephyne
