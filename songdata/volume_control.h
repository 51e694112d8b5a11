// The two volume sliders, their lock, and the volume that is remembered for a song.
//
// They set the output volume of the synthesizer, so they act on MIDI songs. A slider's top (0) is
// full volume.
#pragma once

#include "core/ports/midi_out_volume.h"
#include "engine/stage.h"

#include <cstdint>
#include <string>

namespace zephyne {

// The device whose name contains "synth", without regard to case; 0 when there is none.
std::uint32_t FindSynthDevice(const MidiOutVolume& volume);

class VolumeControl {
  public:
    VolumeControl(Stage& stage, MidiOutVolume& volume);

    // At start-up: chooses the device, and sets the sliders from its volume.
    void start();

    // Sets the device's volume from the sliders.
    void setvolume();

    // A song is about to play: its remembered volume becomes the sliders' when it is valid.
    void apply_remembered(const std::string& song_path);

  private:
    struct Percentages {
        int left = 0;
        int right = 0;
    };
    Percentages read_device() const;
    void tie(const Slider& moved, Slider& other) const;
    void wire(Slider& slider, Slider& other);
    void Check1_Click();
    void Command14_Click();
    void Timer6_Timer();

    Stage& stage_;
    MidiOutVolume& volume_;
    std::uint32_t device_ = 0;
    bool dragging_ = false;
};

}  // namespace zephyne
