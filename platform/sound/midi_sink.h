// What a sequencer plays on: the synthesizer, or a test that writes down what it was told.
//
// All calls come on the thread that renders the sound. Channels are 0 to 15; keys, velocities,
// pressures, programs, controller numbers and values are 0 to 127.
#pragma once

#include <cstdint>
#include <span>

namespace zephyne {

class MidiSink {
  public:
    virtual ~MidiSink() = default;

    virtual void note_off(int channel, int key) = 0;
    virtual void note_on(int channel, int key, int velocity) = 0;  // velocity 0 is a note off
    virtual void key_pressure(int channel, int key, int pressure) = 0;
    virtual void controller(int channel, int number, int value) = 0;
    virtual void program(int channel, int number) = 0;
    virtual void channel_pressure(int channel, int pressure) = 0;
    virtual void pitch_bend(int channel, int bend) = 0;  // 0 to 16383; 8192 is none

    // One whole message, without its framing bytes 0xF0 and 0xF7.
    virtual void system_exclusive(std::span<const std::uint8_t> message) = 0;

    // Around the messages that lead to another place in the song. The first puts everything back
    // to where it was when the song began, the second silences whatever still sounds.
    virtual void begin_seek() = 0;
    virtual void end_seek() = 0;
};

}  // namespace zephyne
