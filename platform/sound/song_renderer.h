// Plays one song at a time on the synthesizer, as the user-interface thread wishes it.
//
// The audio thread calls render() and idle(); the user-interface thread submits wishes and reads
// the progress. Between the two there are only atomics: only the newest wish counts, and it says
// everything about what shall be, so that none that was overtaken is missed.
#pragma once

#include "platform/sound/audio_source.h"
#include "platform/sound/latest_value.h"
#include "platform/sound/output_volume.h"
#include "platform/sound/sequencer.h"
#include "platform/sound/synthesizer.h"

#include <atomic>
#include <cstdint>

namespace zephyne {

// What shall be. A serial number that differs from that of the wish before tells that the thing
// beside it is asked for anew.
struct PlayWish {
    enum class State { stopped, paused, playing };

    std::uint64_t number = 0;          // counts the wishes
    const MidiSong* song = nullptr;    // none: silence. Must stay until a later wish is answered.
    std::uint64_t song_serial = 0;     // take up that song, at its start
    const MidiSong* before = nullptr;  // must stay like the song
    std::uint64_t before_serial = 0;   // be told all of this first, but for its notes
    std::uint64_t cut_serial = 0;      // end the notes that sound now, whatever the state
    std::uint64_t seek_serial = 0;     // go to that place
    FrameCount seek_frame = 0;
    State state = State::stopped;
};

// What is. Describes the piece of sound that was rendered last.
struct PlayProgress {
    std::uint64_t number = 0;      // of the wish that it answers
    std::int64_t rendered_at = 0;  // when that piece was begun: steady clock, nanoseconds
    FrameCount first_frame = 0;    // the place in the song at its begin
    FrameCount end_frame = 0;      // and at its end
    bool finished = false;         // the song has come to its end under this wish
};

class SongRenderer final : public AudioSource {
  public:
    // The synthesizer is touched by the audio thread only, and not before set_ready().
    explicit SongRenderer(Synthesizer& synthesizer);

    // User-interface thread.
    void submit(const PlayWish& wish) { wishes_.write(wish); }
    const PlayProgress& progress() { return progress_.read(); }
    void set_volume(float left, float right) { volume_.set(left, right); }  // 0 to 1 each

    // The synthesizer has its sound font, or there is none. Until then wishes wait. Any thread.
    void set_ready() { ready_.store(true, std::memory_order_release); }
    bool ready() const { return ready_.load(std::memory_order_acquire); }

    // AudioSource
    void render(float* left, float* right, int frames) noexcept override;
    bool idle() const noexcept override;

  private:
    enum class Activity {
        silent,
        playing,
        paused,   // in the middle of sounding notes
        ringing,  // notes and room die away
    };

    void obey(const PlayWish& wish);
    void end_sound();
    void seek(FrameCount frame);
    void start();
    int render_piece(float* left, float* right, int frames);
    void ring(const float* left, const float* right, int frames);
    void enter(Activity activity, SoundFlow flow);

    Synthesizer& synthesizer_;
    Sequencer sequencer_;
    OutputVolume volume_;
    LatestValue<PlayWish> wishes_;
    LatestValue<PlayProgress> progress_;
    std::atomic<bool> ready_{false};
    std::atomic<bool> idle_{true};

    PlayWish wish_;  // the one that is being obeyed
    Activity activity_ = Activity::silent;
    int ringing_frames_ = 0;
    bool finished_ = false;
};

}  // namespace zephyne
