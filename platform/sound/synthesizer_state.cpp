#include "platform/sound/synthesizer_state.h"

namespace zephyne {
namespace {

constexpr int kDrumBank = 128;

// All others do something at the moment: portamento from a key, entry of registered parameters.
bool keeps_a_value(int controller) {
    switch (controller) {
        case 6:
        case 38:
        case 84:
        case 96:
        case 97:
        case 98:
        case 99:
        case 100:
        case 101:
            return false;
        default:
            return true;
    }
}

}  // namespace

void SynthesizerState::capture(fluid_synth_t* synth, const UnansweredState& unanswered) {
    unanswered_ = unanswered;
    for (int number = 0; number < UnansweredState::kChannels; ++number) {
        capture(synth, number, channels_[number]);
    }
}

void SynthesizerState::capture(fluid_synth_t* synth, int number, Channel& channel) {
    int sound_font = 0;
    fluid_synth_get_program(synth, number, &sound_font, &channel.bank, &channel.program);
    fluid_preset_t* const preset = fluid_synth_get_channel_preset(synth, number);
    const bool drums = preset ? fluid_preset_get_banknum(preset) == kDrumBank : number == 9;
    channel.type = drums ? CHANNEL_TYPE_DRUM : CHANNEL_TYPE_MELODIC;
    fluid_synth_get_pitch_bend(synth, number, &channel.bend);
    fluid_synth_get_pitch_wheel_sens(synth, number, &channel.bend_range);
    for (int i = 0; i < kControllers; ++i) {
        fluid_synth_get_cc(synth, number, i, &channel.controllers[i]);
    }
    for (int i = 0; i < kGenerators; ++i) {
        channel.generators[i] = fluid_synth_get_gen(synth, number, i);
    }
}

void SynthesizerState::restore(fluid_synth_t* synth) const {
    const ExclusiveMessage reset = reset_message(unanswered_.bank_mode);
    fluid_synth_sysex(synth, reinterpret_cast<const char*>(reset.data()),
                      static_cast<int>(reset.size()), nullptr, nullptr, nullptr, 0);
    for (int number = 0; number < UnansweredState::kChannels; ++number) {
        restore(synth, number, channels_[number]);
        fluid_synth_channel_pressure(synth, number, unanswered_.channel_pressure[number]);
        for (int key = 0; key < 128; ++key) {
            const int pressure = unanswered_.key_pressure[number][key];
            if (pressure != 0) fluid_synth_key_pressure(synth, number, key, pressure);
        }
    }
}

void SynthesizerState::restore(fluid_synth_t* synth, int number, const Channel& channel) {
    for (int i = 0; i < kControllers; ++i) {
        int value = 0;
        if (!keeps_a_value(i)) continue;
        fluid_synth_get_cc(synth, number, i, &value);
        if (value != channel.controllers[i]) {
            fluid_synth_cc(synth, number, i, channel.controllers[i]);
        }
    }
    // After the controllers, two of which select a bank by the rules of the bank mode.
    fluid_synth_set_channel_type(synth, number, channel.type);
    fluid_synth_bank_select(synth, number, channel.bank);
    fluid_synth_program_change(synth, number, channel.program);
    fluid_synth_pitch_wheel_sens(synth, number, channel.bend_range);
    fluid_synth_pitch_bend(synth, number, channel.bend);
    for (int i = 0; i < kGenerators; ++i) {
        if (channel.generators[i] != 0.0F) {
            fluid_synth_set_gen(synth, number, i, channel.generators[i]);
        }
    }
}

}  // namespace zephyne
