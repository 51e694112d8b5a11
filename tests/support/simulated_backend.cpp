#include "tests/support/simulated_backend.h"

#include <algorithm>

namespace zephyne::test {
namespace {

std::string file_name(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

}  // namespace

SimulatedBackend::SimulatedBackend(std::string name, VirtualClock& clock, Scheduler& scheduler,
                                   std::vector<std::string>& log)
    : name_(std::move(name)), clock_(clock), log_(log), end_(scheduler, 0) {
    end_.on_tick = [this] { finish(); };
}

tl::expected<void, std::string> SimulatedBackend::open(const std::string& path) {
    song_ = file_name(path);
    if (broken.contains(song_)) {
        log_.push_back(name_ + "cannot open " + song_);
        return tl::unexpected<std::string>("Not a song");
    }
    log_.push_back(name_ + "open " + song_);
    const auto length = lengths.find(song_);
    length_ = length != lengths.end() ? length->second : song_.ends_with(".aut") ? 80 : 180'000;
    held_at_ = 0;
    mode_ = DeviceMode::stopped;
    return {};
}

void SimulatedBackend::close() {
    if (mode_ == DeviceMode::not_open) return;
    log_.push_back(name_ + "close " + song_);
    end_.set_enabled(false);
    mode_ = DeviceMode::not_open;
    length_ = held_at_ = 0;
}

Milliseconds SimulatedBackend::position() const {
    if (mode_ != DeviceMode::playing) return held_at_;
    return std::min(length_, held_at_ + clock_.now() - started_);
}

void SimulatedBackend::hold(DeviceMode mode) {
    held_at_ = position();
    mode_ = mode;
    end_.set_enabled(false);
}

void SimulatedBackend::start() {
    if (mode_ == DeviceMode::not_open || mute.contains(song_)) return;
    mode_ = DeviceMode::playing;
    started_ = clock_.now();
    end_.set_enabled(false);
    end_.set_interval(std::max<Milliseconds>(length_ - held_at_, 20));
    end_.set_enabled(true);
}

void SimulatedBackend::play_from(Milliseconds from) {
    log_.push_back(name_ + "play " + song_ + " from " + std::to_string(from));
    held_at_ = std::min(from, length_);
    start();
}

void SimulatedBackend::play() {
    log_.push_back(name_ + "play " + song_);
    held_at_ = position();
    start();
}

void SimulatedBackend::pause() {
    if (mode_ == DeviceMode::not_open) return;
    log_.push_back(name_ + "pause " + song_);
    hold(DeviceMode::paused);
}

void SimulatedBackend::stop() {
    if (mode_ == DeviceMode::playing || mode_ == DeviceMode::paused) hold(DeviceMode::stopped);
}

void SimulatedBackend::wait_until_finished() {
    if (mode_ != DeviceMode::playing) return;
    clock_.advance_to(started_ + length_ - held_at_);
    hold(DeviceMode::stopped);
}

void SimulatedBackend::finish() {
    hold(DeviceMode::stopped);
    held_at_ = length_;
    if (on_finished) on_finished();
}

void SimulatedBackend::fail() {
    hold(DeviceMode::stopped);
    if (on_failed) on_failed();
}

}  // namespace zephyne::test
