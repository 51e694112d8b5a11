// The software synthesizer: takes MIDI messages, gives sound.
//
// One lives for the whole run, and what a song tells it stays until another tells it otherwise or
// a reset message comes. Every sudden change (a reset, a seek, a cut, a freeze) is bridged by
// a short cross-fade. General MIDI, GS and XG resets are obeyed, as are master volume messages.
//
// Threads: open() and load_sound_font() come on any one thread; after that everything happens on
// the thread that renders. Nothing of ours but the loading allocates, and nothing takes a lock; the
// library itself handles a few small blocks of memory, and a table for a MIDI tuning message.
#pragma once

#include "platform/sound/crossfade.h"
#include "platform/sound/midi_sink.h"
#include "platform/sound/synthesizer_state.h"

#include <fluidsynth.h>

#include <memory>
#include <string>

namespace zephyne {

enum class SoundFlow {
    heard,
    frozen,  // stands still and silent; the very notes go on afterwards
};

class Synthesizer final : public MidiSink {
  public:
    Synthesizer() = default;
    ~Synthesizer() override;
    Synthesizer(const Synthesizer&) = delete;
    Synthesizer& operator=(const Synthesizer&) = delete;

    // Sets the synthesizer up, with the library behind it; false when that is not installed. Unless
    // it is open all is silent. Once.
    bool open();

    // False when that is no sound font, or not an ordinary file. Takes up to seconds. Without any
    // font all is silent. Only when it is open.
    bool load_sound_font(const std::string& path);

    void note_off(int channel, int key) override;
    void note_on(int channel, int key, int velocity) override;
    void key_pressure(int channel, int key, int pressure) override;
    void controller(int channel, int number, int value) override;
    void program(int channel, int number) override;
    void channel_pressure(int channel, int pressure) override;
    void pitch_bend(int channel, int bend) override;
    void system_exclusive(std::span<const std::uint8_t> message) override;
    void begin_seek() override;  // back to what remember_state() saw
    void end_seek() override;

    void remember_state();

    void release_notes();  // lifts all keys and pedals; the notes die away
    void cut_notes();      // ends them at once; what is in the room dies away
    void empty_room();     // ends that, too; only while nothing is heard

    void set_flow(SoundFlow flow);
    SoundFlow flow() const { return flow_; }  // frozen at first

    // The next `frames` frames of each side, 1.0 being full scale, the master volume not applied.
    void render(float* left, float* right, int frames);

    bool has_voices() const { return fluid_synth_get_active_voice_count(synth_.get()) > 0; }
    bool bridging() const { return !bridge_.over(); }  // a change is still being cross-faded
    float master_volume() const { return told_.master_volume; }

    fluid_synth_t* library_object() const { return synth_.get(); }  // for tests, to look inside

  private:
    struct Deleter {
        void operator()(fluid_settings_t* settings) const { delete_fluid_settings(settings); }
        void operator()(fluid_synth_t* synth) const { delete_fluid_synth(synth); }
    };

    void bridge();
    void end_all_voices();

    std::unique_ptr<fluid_settings_t, Deleter> settings_;
    std::unique_ptr<fluid_synth_t, Deleter> synth_;
    UnansweredState told_;
    SynthesizerState at_start_of_song_;
    Crossfade bridge_;
    SoundFlow flow_ = SoundFlow::frozen;
    bool seeking_ = false;
};

}  // namespace zephyne
