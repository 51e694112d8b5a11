#include "platform/sound/synthesizer_engine.h"

#include <algorithm>
#include <utility>

namespace zephyne {
namespace {

constexpr Milliseconds kProblemCheckInterval = 250;

}  // namespace

SynthesizerEngine::SynthesizerEngine(Scheduler& scheduler, SynthesizerOptions options,
                                     std::unique_ptr<AudioOutput> output)
    : problem_check_(scheduler, kProblemCheckInterval),
      options_(std::move(options)),
      output_(std::move(output)) {
    output_->connect(renderer_);
    problem_check_.on_tick = [this] { look_for_problems(); };
    problem_check_.set_enabled(true);
}

SynthesizerEngine::~SynthesizerEngine() {
    if (loader_.joinable()) loader_.join();
}

void SynthesizerEngine::begin_to_load() {
    if (!loader_.joinable()) loader_ = std::thread([this] { load(); });
}

void SynthesizerEngine::load() {
    loading_problem_ = synthesizer_.open()
                           ? load_sound_font()
                           : "The package libfluidsynth3 is not installed, so MIDI songs play "
                             "silently. Please install it, and start again.";
    renderer_.set_ready();
}

// What to tell the user when that fails.
std::string SynthesizerEngine::load_sound_font() {
    const bool chosen = !options_.sound_font.empty();
    const std::vector<std::string> fonts =
        chosen ? std::vector{options_.sound_font} : sound_fonts_in(options_.usual_places);
    const bool loaded = std::any_of(fonts.begin(), fonts.end(), [this](const std::string& font) {
        return synthesizer_.load_sound_font(font);
    });
    if (loaded) return {};
    if (chosen) {
        return "The sound font \"" + options_.sound_font +
               "\" could not be loaded, so MIDI songs play silently.";
    }
    return "No sound font was found, so MIDI songs play silently. Please install the package "
           "fluid-soundfont-gm or timgm6mb-soundfont, or put a sound font (.sf2 or .sf3) into the "
           "folder soundfonts in your data folder, usually ~/.local/share/soundfonts, and start "
           "again.";
}

std::uint64_t SynthesizerEngine::submit(Player& player, PlayWish wish,
                                        std::shared_ptr<const MidiSong> song) {
    if (player_ && player_ != &player) player_->synthesizer_taken();
    player_ = &player;
    wish.number = next_serial();
    wish.song = song.get();
    wish.before = before_.get();
    wish.before_serial = before_serial_;
    keep(wish.number, song);
    keep(wish.number, before_);
    renderer_.submit(wish);
    drop_unused_songs();
    if (wish.state == PlayWish::State::playing) {
        output_->wake();
        problem_check_.set_enabled(true);
    }
    return wish.number;
}

void SynthesizerEngine::tell_before_next_wish(std::shared_ptr<const MidiSong> song) {
    before_ = std::move(song);
    before_serial_ = next_serial();
}

void SynthesizerEngine::keep(std::uint64_t number, const std::shared_ptr<const MidiSong>& song) {
    const auto known = std::find_if(songs_.begin(), songs_.end(),
                                    [&](const HandedOver& entry) { return entry.song == song; });
    if (known != songs_.end()) {
        known->number = number;
    } else if (song) {
        songs_.push_back({number, song});
    }
}

void SynthesizerEngine::leave(const Player& player) {
    if (player_ == &player) player_ = nullptr;
}

// The song of the wish that is being obeyed was named by that wish or a later one.
void SynthesizerEngine::drop_unused_songs() {
    const std::uint64_t obeyed = renderer_.progress().number;
    std::erase_if(songs_, [obeyed](const HandedOver& entry) { return entry.number < obeyed; });
}

void SynthesizerEngine::look_for_problems() {
    if (!ready() || !output_->settled()) return;
    if (renderer_.idle()) problem_check_.set_enabled(false);  // until the next song
    const auto tell = on_problem;  // a copy: telling may take long and end the program
    const std::string loading_problem = std::exchange(loading_problem_, {});
    const auto output_problem = output_->take_problem();
    if (tell && !loading_problem.empty()) tell(loading_problem);
    if (tell && output_problem) tell(*output_problem);
}

}  // namespace zephyne
