#include "platform/sound/sequencer_backend.h"

#include "platform/sound/song_file.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

namespace zephyne {
namespace {

// A song, however short, is in mode playing for about this long.
constexpr Milliseconds kShortestPlay = 30;
// How late the sound of a song may be that is waited for.
constexpr Milliseconds kLongestDelay = 250;
// How often the end is looked for when it is overdue.
constexpr Milliseconds kOverdueCheck = 5;

using SteadyClock = std::chrono::steady_clock;

// Where a rendered piece of sound is by now, as it is played. It is rendered in one go, but heard
// frame by frame.
FrameCount frame_now(const PlayProgress& progress) {
    const std::int64_t now =
        std::chrono::nanoseconds(SteadyClock::now().time_since_epoch()).count();
    const std::int64_t passed =
        std::clamp<std::int64_t>(now - progress.rendered_at, 0, 1'000'000'000);
    return std::min(progress.first_frame + passed * kFramesPerSecond / 1'000'000'000,
                    progress.end_frame);
}

}  // namespace

SequencerBackend::SequencerBackend(Scheduler& scheduler, SynthesizerEngine& engine)
    : engine_(engine), end_check_(scheduler, 0) {
    end_check_.on_tick = [this] { check_the_end(); };
}

SequencerBackend::~SequencerBackend() {
    close();
    engine_.leave(*this);
}

tl::expected<void, std::string> SequencerBackend::open(const std::string& path) {
    close();
    auto song = read_song_file(path);
    if (!song) return tl::unexpected(std::move(song.error()));
    song_ = std::make_shared<const MidiSong>(std::move(*song));
    length_ = song_->length_in_milliseconds();
    mode_ = DeviceMode::stopped;
    wish_ = PlayWish{.song_serial = engine_.next_serial()};
    return {};
}

void SequencerBackend::close() {
    stand_still(DeviceMode::not_open);
    position_ = 0;
    song_.reset();
    wish_ = {};
    if (engine_.belongs_to(*this)) submit(PlayWish::State::stopped);
}

void SequencerBackend::play_from(Milliseconds from) {
    if (!song_) return;
    position_ = std::clamp<Milliseconds>(from, 0, length_);
    wish_place();
    play();
}

void SequencerBackend::play() {
    if (!song_) return;
    if (!engine_.belongs_to(*this)) wish_place();  // the synthesizer knows nothing of the song
    mode_ = DeviceMode::playing;
    submit(PlayWish::State::playing);
    check_the_end_in(std::max(length_ - position_, kShortestPlay));
}

void SequencerBackend::pause() {
    if (!song_) return;
    const bool playing = mode_ == DeviceMode::playing;
    stand_still(DeviceMode::paused);
    if (playing) submit(PlayWish::State::paused);
}

void SequencerBackend::stop() {
    if (!song_) return;
    const bool was_stopped = mode_ == DeviceMode::stopped;
    stand_still(DeviceMode::stopped);
    if (was_stopped || !engine_.belongs_to(*this)) return;
    wish_.cut_serial = engine_.next_serial();
    submit(PlayWish::State::stopped);
}

void SequencerBackend::wait_until_finished() {
    if (mode_ != DeviceMode::playing) return;
    const auto deadline =
        SteadyClock::now() + std::chrono::milliseconds(length_ - position() + kLongestDelay);
    while (engine_.ready() && !finished() && SteadyClock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    if (finished()) {
        stand_still(DeviceMode::stopped);
    } else {
        engine_.tell_before_next_wish(song_);
        stop();
    }
}

Milliseconds SequencerBackend::position() const {
    if (!song_ || !engine_.belongs_to(*this)) return position_;
    const PlayProgress progress = engine_.progress();
    if (progress.number != wish_number_) return position_;  // the wish is not obeyed yet
    if (progress.finished) return position_ = length_;
    const FrameCount frame =
        mode_ == DeviceMode::playing ? frame_now(progress) : progress.end_frame;
    return position_ = std::max(position_, std::min(millisecond_at(frame), length_));
}

void SequencerBackend::synthesizer_taken() {
    // What was rendered last is where it stops; a later play goes on from there.
    stand_still(mode_ == DeviceMode::playing ? DeviceMode::stopped : mode_);
}

void SequencerBackend::wish_place() {
    wish_.seek_serial = engine_.next_serial();
    // The length in milliseconds may be a little less than the length.
    const bool at_end = position_ == length_;
    wish_.seek_frame = at_end ? frame_at(song_->length) : frame_at_millisecond(position_);
}

void SequencerBackend::submit(PlayWish::State state) {
    wish_.state = state;
    wish_number_ = engine_.submit(*this, wish_, song_);
}

void SequencerBackend::stand_still(DeviceMode mode) {
    position_ = position();
    mode_ = mode;
    end_check_.set_enabled(false);
}

void SequencerBackend::check_the_end_in(Milliseconds delay) {
    end_check_.set_enabled(false);
    end_check_.set_interval(delay);
    end_check_.set_enabled(true);
}

bool SequencerBackend::finished() const {
    if (!engine_.belongs_to(*this)) return false;
    const PlayProgress progress = engine_.progress();
    return progress.number == wish_number_ && progress.finished;
}

void SequencerBackend::check_the_end() {
    if (!finished()) {
        check_the_end_in(std::max(length_ - position(), kOverdueCheck));
        return;
    }
    stand_still(DeviceMode::stopped);
    if (on_finished) {
        const auto callback = on_finished;  // a copy: it may destroy the back end
        callback();
    }
}

}  // namespace zephyne
