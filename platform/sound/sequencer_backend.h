// The media back end for MIDI songs: Standard MIDI Files, bare or in a RIFF wrapper, played on the
// program's synthesizer.
//
// A song that is played before the sound font is loaded waits for it, in mode playing, at its
// place. The user-interface thread never waits, except in wait_until_finished(): there a song that
// finds no sound to be played with, because that is not loaded or the output is slow to open, is
// passed on unheard.
#pragma once

#include "core/scheduler.h"
#include "engine/media_backend.h"
#include "platform/sound/synthesizer_engine.h"

#include <memory>

namespace zephyne {

class SequencerBackend final : public MediaBackend, private SynthesizerEngine::Player {
  public:
    // Both must outlive the back end.
    SequencerBackend(Scheduler& scheduler, SynthesizerEngine& engine);
    ~SequencerBackend() override;

    tl::expected<void, std::string> open(const std::string& path) override;
    void close() override;
    void play_from(Milliseconds from) override;
    void play() override;
    void pause() override;
    void stop() override;

    // Also returns, with the song stopped, when the sound font is not loaded yet (at once), or when
    // the output gives no sound (a quarter of a second late). The synthesizer is then told all but
    // the notes before whatever is played next.
    void wait_until_finished() override;

    DeviceMode mode() const override { return mode_; }
    Milliseconds length() const override { return song_ ? length_ : 0; }
    Milliseconds position() const override;

  private:
    void synthesizer_taken() override;
    void wish_place();
    void submit(PlayWish::State state);
    void stand_still(DeviceMode mode);
    void check_the_end_in(Milliseconds delay);
    void check_the_end();
    bool finished() const;

    SynthesizerEngine& engine_;
    RepeatingTimer end_check_;
    std::shared_ptr<const MidiSong> song_;
    Milliseconds length_ = 0;
    DeviceMode mode_ = DeviceMode::not_open;

    PlayWish wish_;
    std::uint64_t wish_number_ = 0;      // under which it was handed in
    mutable Milliseconds position_ = 0;  // what was last told or wished; see position()
};

}  // namespace zephyne
