// The one synthesizer of the program with all that belongs to it: its sound font, its way out, and
// the songs that are handed to it.
//
// Several SequencerBackends may share it; one of them has it at a time. Whichever plays next takes
// it, and the one that had it stops in place.
//
// Threads: all calls come on the user-interface thread. Beside that there are a thread that loads
// synthesizer and sound font and ends, the thread of the audio output that watches over the
// devices, and the thread of the open device, which renders.
#pragma once

#include "core/scheduler.h"
#include "platform/sound/audio_output.h"
#include "platform/sound/song_renderer.h"
#include "platform/sound/sound_font_search.h"
#include "platform/sound/synthesizer.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace zephyne {

struct SynthesizerOptions {
    // A sound font's path; empty: the first of the usual places that will do.
    std::string sound_font;
    SoundFontPlaces usual_places = usual_sound_font_places();
};

class SynthesizerEngine {
  public:
    // Who plays on it.
    class Player {
      public:
        virtual ~Player() = default;
        virtual void synthesizer_taken() = 0;  // another is about to have it
    };

    // The scheduler must outlive the engine.
    SynthesizerEngine(Scheduler& scheduler, SynthesizerOptions options,
                      std::unique_ptr<AudioOutput> output);
    ~SynthesizerEngine();  // all players are gone by then
    SynthesizerEngine(const SynthesizerEngine&) = delete;
    SynthesizerEngine& operator=(const SynthesizerEngine&) = delete;

    // Begins to load the synthesizer and its sound font, once, in the background. What is to play
    // before that is done waits for it. Called when the window is up, which it would slow down.
    void begin_to_load();

    // Called from the event loop with a whole sentence for the user: that there is no synthesizer
    // or sound font and what to install, or that there is no sound device. Each comes at most once.
    // To be set before the event loop runs.
    std::function<void(const std::string&)> on_problem;

    // The volume of everything, amplitudes from 0 to 1; full at first. It glides there.
    void set_volume(float left, float right) { renderer_.set_volume(left, right); }

    // All is loaded, or it is known that there is nothing to load.
    bool ready() const { return renderer_.ready(); }

    // For players. Serial numbers for wishes: each is larger than all before.
    std::uint64_t next_serial() { return ++serial_; }

    // Hands in the player's wish and returns its number. The player has the synthesizer from then
    // on. The song of the wish is kept as long as it is in use.
    std::uint64_t submit(Player& player, PlayWish wish, std::shared_ptr<const MidiSong> song);

    // The synthesizer is told all of the song but its notes, together with the next wish and before
    // that. For a song that has to have been played, though there was no sound to play it with.
    void tell_before_next_wish(std::shared_ptr<const MidiSong> song);

    bool belongs_to(const Player& player) const { return player_ == &player; }
    void leave(const Player& player);  // before a player is destroyed

    PlayProgress progress() { return renderer_.progress(); }

  private:
    struct HandedOver {
        std::uint64_t number;  // of the last wish that named it
        std::shared_ptr<const MidiSong> song;
    };

    void keep(std::uint64_t number, const std::shared_ptr<const MidiSong>& song);
    void load();
    std::string load_sound_font();
    void drop_unused_songs();
    void look_for_problems();

    Synthesizer synthesizer_;
    SongRenderer renderer_{synthesizer_};
    std::vector<HandedOver> songs_;
    std::shared_ptr<const MidiSong> before_;  // goes with every wish, and counts once
    std::uint64_t before_serial_ = 0;
    Player* player_ = nullptr;
    std::uint64_t serial_ = 0;

    std::string loading_problem_;  // written before the renderer is ready, read after
    RepeatingTimer problem_check_;
    const SynthesizerOptions options_;
    std::thread loader_;
    std::unique_ptr<AudioOutput> output_;  // last: it stops rendering before the rest goes
};

}  // namespace zephyne
