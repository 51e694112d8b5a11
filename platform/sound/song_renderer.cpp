#include "platform/sound/song_renderer.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace zephyne {
namespace {

constexpr int kLongestRing = 3 * kFramesPerSecond;
constexpr float kInaudible = 1.0F / 65536.0F;  // half a step of a 16-bit sample

std::int64_t steady_nanoseconds() {
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

bool inaudible(const float* samples, int count) {
    return std::all_of(samples, samples + count,
                       [](float sample) { return std::fabs(sample) < kInaudible; });
}

}  // namespace

SongRenderer::SongRenderer(Synthesizer& synthesizer)
    : synthesizer_(synthesizer), sequencer_(synthesizer) {}

bool SongRenderer::idle() const noexcept {
    return idle_.load(std::memory_order_acquire) && !wishes_.fresh();
}

void SongRenderer::render(float* left, float* right, int frames) noexcept {
    PlayProgress progress{.rendered_at = steady_nanoseconds()};
    if (!ready()) {
        std::fill_n(left, frames, 0.0F);
        std::fill_n(right, frames, 0.0F);
        return;
    }
    if (const PlayWish& wish = wishes_.read(); wish.number != wish_.number) obey(wish);

    progress.number = wish_.number;
    progress.first_frame = sequencer_.frame();
    for (int done = 0; done < frames;) {
        done += render_piece(left + done, right + done, frames - done);
    }
    progress.end_frame = sequencer_.frame();
    progress.finished = finished_;
    volume_.apply(left, right, frames, synthesizer_.master_volume());
    const bool still = activity_ == Activity::silent || activity_ == Activity::paused;
    idle_.store(still && !synthesizer_.bridging(), std::memory_order_release);
    progress_.write(progress);
}

int SongRenderer::render_piece(float* left, float* right, int frames) {
    if (activity_ == Activity::playing) {
        sequencer_.send_due_events();
        if (sequencer_.at_end()) {
            finished_ = true;
            synthesizer_.release_notes();
            enter(Activity::ringing, SoundFlow::heard);
        } else {
            frames =
                static_cast<int>(std::min<FrameCount>(frames, sequencer_.frames_to_next_stop()));
        }
    }
    synthesizer_.render(left, right, frames);
    if (activity_ == Activity::playing) sequencer_.advance(frames);
    if (activity_ == Activity::ringing) ring(left, right, frames);
    return frames;
}

void SongRenderer::ring(const float* left, const float* right, int frames) {
    ringing_frames_ += frames;
    const bool died_away = !synthesizer_.has_voices() && !synthesizer_.bridging() &&
                           inaudible(left, frames) && inaudible(right, frames);
    if (!died_away && ringing_frames_ < kLongestRing) return;
    synthesizer_.cut_notes();
    enter(Activity::silent, SoundFlow::frozen);
}

void SongRenderer::enter(Activity activity, SoundFlow flow) {
    activity_ = activity;
    ringing_frames_ = 0;
    synthesizer_.set_flow(flow);
}

void SongRenderer::obey(const PlayWish& wish) {
    const bool before = wish.before_serial != wish_.before_serial;
    const bool other_song = before || wish.song_serial != wish_.song_serial;
    const bool cut = wish.cut_serial != wish_.cut_serial;
    const bool go = wish.seek_serial != wish_.seek_serial;
    wish_ = wish;
    finished_ = false;

    if (other_song || cut || wish.state == PlayWish::State::stopped) end_sound();
    if (before) sequencer_.open_at_end(*wish.before);
    if (other_song) {
        sequencer_.open(wish.song);
        if (wish.song) synthesizer_.remember_state();
    }
    if (go) seek(wish.seek_frame);
    if (wish.state == PlayWish::State::playing) start();
    if (wish.state == PlayWish::State::paused && activity_ == Activity::playing) {
        enter(Activity::paused, SoundFlow::frozen);
    }
}

// A song that was paused was silent already: what it left in the room must not be heard with the
// next one.
void SongRenderer::end_sound() {
    if (activity_ == Activity::playing) {
        synthesizer_.cut_notes();
        enter(Activity::ringing, SoundFlow::heard);
    } else if (activity_ == Activity::paused) {
        synthesizer_.empty_room();
        enter(Activity::silent, SoundFlow::frozen);
    }
}

// A song that stands where it shall go is left alone: seeking there would only take away what
// sounds, and, at its start, reset what it was to begin with.
void SongRenderer::seek(FrameCount frame) {
    if (std::min(frame, sequencer_.end_frame()) == sequencer_.frame()) return;
    sequencer_.seek(frame);
    if (activity_ == Activity::paused) enter(Activity::silent, SoundFlow::frozen);
}

void SongRenderer::start() {
    if (wish_.song) enter(Activity::playing, SoundFlow::heard);
}

}  // namespace zephyne
