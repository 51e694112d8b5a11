// The volume of the one MIDI output that there is, our synthesizer, kept across runs as a sound
// card keeps its own.
//
// It is the gain of what the synthesizer sends, before the desktop's mixer: what is moved there
// does not show here, and so never fights with it.
#pragma once

#include "core/ports/file_system.h"
#include "core/ports/midi_out_volume.h"
#include "core/scheduler.h"
#include "platform/sound/synthesizer_engine.h"

#include <string>

namespace zephyne {

class SynthesizerVolume final : public MidiOutVolume {
  public:
    // Full volume. All must outlive it.
    SynthesizerVolume(SynthesizerEngine& engine, Scheduler& scheduler, FileSystem& files);
    ~SynthesizerVolume() override;

    // Takes the volume from the file, if that is there and holds one. From now on the file is
    // written a moment after the last change, and at the end; failures are silent.
    void keep_in(std::string file);

    std::uint32_t device_count() const override { return 1; }
    std::string device_name(std::uint32_t device) const override;
    std::uint32_t volume(std::uint32_t device) const override;
    void set_volume(std::uint32_t device, std::uint32_t volume) override;

  private:
    void apply();
    void write();

    SynthesizerEngine& engine_;
    FileSystem& files_;
    std::string file_;
    RepeatingTimer writer_;
    std::uint32_t volume_ = 0xFFFFFFFF;
    std::uint32_t kept_ = 0xFFFFFFFF;  // what the file says
};
}  // namespace zephyne
