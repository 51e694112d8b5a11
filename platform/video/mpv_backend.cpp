#include "platform/video/mpv_backend.h"

#include "core/paths.h"
#include "core/text/utf8.h"
#include "platform/desktop/steady_clock.h"
#include "platform/files/posix_file_system.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zephyne {
namespace {

// What there is nothing of to play is in mode playing for this long.
constexpr Milliseconds kShortestPlay = 20;
constexpr Milliseconds kLongestOpening = 10000;
constexpr Milliseconds kWaitAfterEnd = 1000;

std::string outputs_for(const std::string& audio) {
    if (audio.empty() || audio == "auto") return "pulse,alsa,null";
    if (audio == "null" || audio.starts_with("file:")) return "null";
    return (audio == "pulseaudio" ? "pulse" : audio) + ",null";
}

Milliseconds to_milliseconds(double seconds) {
    return std::isfinite(seconds) ? std::llround(seconds * 1000) : 0;
}

double to_seconds(Milliseconds time) {
    return static_cast<double>(time) / 1000;
}

tl::unexpected<std::string> failure(std::string description) {
    return tl::unexpected(std::move(description));
}

std::string description_of(int error) {
    switch (error) {
        case MPV_ERROR_LOADING_FAILED:
            return "The file cannot be read";
        case MPV_ERROR_UNKNOWN_FORMAT:
            return "The file has an unknown format";
        case MPV_ERROR_NOTHING_TO_PLAY:
            return "There is nothing to play in the file";
        case MPV_ERROR_AO_INIT_FAILED:
            return "The sound device cannot be opened";
        case MPV_ERROR_VO_INIT_FAILED:
            return "The video window cannot be opened";
        default:
            return std::string("The player reports: ") + mpv_error_string(error);
    }
}

}  // namespace

MpvBackend::MpvBackend(Scheduler& scheduler, const std::string& audio)
    : audio_outputs_(outputs_for(audio)), end_timer_(scheduler, kShortestPlay) {
    end_timer_.on_tick = [this] { report(pending_ending()); };
}

MpvBackend::~MpvBackend() = default;

tl::expected<void, std::string> MpvBackend::open(const std::string& path) {
    close();
    if (const auto readable = PosixFileSystem().check_readable(path); !readable) {
        return failure(readable.error().description);
    }
    path_ = path;
    if (auto loaded = load(); !loaded) return loaded;
    mode_ = DeviceMode::stopped;
    length_ = std::max<Milliseconds>(to_milliseconds(player_->number("duration").value_or(0)), 0);
    return {};
}

tl::expected<void, std::string> MpvBackend::load() {
    if (!player_ || std::exchange(player_gone_, false)) {
        player_.reset();
        player_ = MpvPlayer::create(audio_outputs_, [this] { report(take_events(0)); });
    }
    if (!player_) return failure("The player for sound and video cannot be started");

    const std::string name = to_utf8(split_path(path_, PathStyle::posix).name);
    player_->set("pause", true);
    player_->set("vid", std::string(song_kind(path_) == SongKind::wave ? "no" : "auto"));
    player_->set("title", "$>" + name);  // the sign that no placeholders follow
    const int error = player_->command({"loadfile", path_.c_str()});
    if (error < 0) return failure(description_of(error));
    return wait_until_loaded();
}

tl::expected<void, std::string> MpvBackend::wait_until_loaded() {
    const SteadyClock clock;
    const Milliseconds deadline = clock.now() + kLongestOpening;
    bool begun = false;  // events before that belong to the file before
    while (clock.now() < deadline) {
        const mpv_event& event = player_->next_event(to_seconds(deadline - clock.now()));
        if (event.event_id == MPV_EVENT_START_FILE) begun = true;
        if (!begun) continue;
        if (event.event_id == MPV_EVENT_FILE_LOADED) {
            loaded_ = true;
            broken_ = false;
            seek_ = Seek::none;
            return {};
        }
        if (event.event_id == MPV_EVENT_END_FILE) {
            const auto* details = static_cast<const mpv_event_end_file*>(event.data);
            return failure(description_of(details->error));
        }
        if (event.event_id == MPV_EVENT_SHUTDOWN) break;
    }
    player_gone_ = true;  // stuck or ended; the next file gets a new one
    return failure("The file does not open");
}

void MpvBackend::close() {
    end_timer_.set_enabled(false);
    if (player_ && loaded_) player_->command({"stop"});
    loaded_ = false;
    broken_ = false;
    seek_ = Seek::none;
    mode_ = DeviceMode::not_open;
    length_ = 0;
    place_ = 0;
}

void MpvBackend::play_from(Milliseconds from) {
    if (mode_ != DeviceMode::not_open) start_at(std::clamp<Milliseconds>(from, 0, length_));
}

void MpvBackend::play() {
    if (mode_ != DeviceMode::not_open && mode_ != DeviceMode::playing) start_at(place_);
}

void MpvBackend::start_at(Milliseconds place) {
    const bool moved = place != place_ || mode_ == DeviceMode::playing;
    const bool at_end = loaded_ && !moved && seek_ == Seek::none && player_->flag("eof-reached");
    if (at_end) place = length_;  // it was paused there, before the end was told
    place_ = place;
    mode_ = DeviceMode::playing;
    end_timer_.set_enabled(false);
    if (place >= length_) {
        if (loaded_) player_->set("pause", true);
        end_timer_.set_enabled(true);
        return;
    }
    const bool reloaded = !loaded_;
    if (reloaded && !load()) {
        broken_ = true;
        end_timer_.set_enabled(true);
        return;
    }
    if (moved || reloaded) {
        seek_ = Seek::requested;
        player_->set("time-pos", to_seconds(place));  // and goes on when it is there; see note()
    } else {
        player_->set("pause", false);
    }
}

void MpvBackend::pause() {
    if (mode_ != DeviceMode::not_open) rest(DeviceMode::paused);
}

void MpvBackend::stop() {
    if (mode_ != DeviceMode::not_open) rest(DeviceMode::stopped);
}

void MpvBackend::rest(DeviceMode mode) {
    if (loaded_) player_->set("pause", true);
    place_ = position();
    end_timer_.set_enabled(false);  // only now: while it runs, the library is not where we are
    mode_ = mode;
}

void MpvBackend::wait_until_finished() {
    if (mode_ != DeviceMode::playing) return;
    const SteadyClock clock;
    const Milliseconds deadline = clock.now() + length_ - position() + kWaitAfterEnd;
    Ending ending = end_timer_.enabled() ? pending_ending() : Ending::none;
    while (ending == Ending::none && clock.now() < deadline) {
        ending = take_events(to_seconds(deadline - clock.now()));
    }
    end(ending);
}

Milliseconds MpvBackend::position() const {
    const bool moving = mode_ == DeviceMode::playing && loaded_ && seek_ == Seek::none;
    if (!moving || end_timer_.enabled()) return place_;
    // What is heard is known to the very moment; what is seen stands for a picture's duration.
    auto seconds = player_->number("audio-pts");
    if (!seconds) seconds = player_->number("time-pos");
    return seconds ? std::clamp<Milliseconds>(to_milliseconds(*seconds), 0, length_) : place_;
}

// Waits for an event for so long, takes it and all that came with it, and tells whether playing
// has ended by now.
MpvBackend::Ending MpvBackend::take_events(double seconds) {
    for (const mpv_event* event = &player_->next_event(seconds); event->event_id != MPV_EVENT_NONE;
         event = &player_->next_event(0)) {
        note(*event);
    }
    if (mode_ != DeviceMode::playing || end_timer_.enabled()) return Ending::none;
    if (!loaded_) return pending_ending();
    const bool at_end = seek_ == Seek::none && player_->flag("eof-reached");
    return at_end ? Ending::end_of_file : Ending::none;
}

void MpvBackend::note(const mpv_event& event) {
    switch (event.event_id) {
        case MPV_EVENT_SEEK:
            if (seek_ == Seek::requested) seek_ = Seek::started;
            break;
        case MPV_EVENT_PLAYBACK_RESTART:
            if (seek_ != Seek::started) break;
            seek_ = Seek::none;
            // Not before: else the sound of the old place would be heard for a moment, also when
            // the file is only moved and shall not sound at all.
            if (mode_ == DeviceMode::playing) player_->set("pause", false);
            break;
        case MPV_EVENT_END_FILE: {
            const auto* details = static_cast<const mpv_event_end_file*>(event.data);
            loaded_ = false;
            broken_ = details->reason == MPV_END_FILE_REASON_ERROR;
            break;
        }
        case MPV_EVENT_SHUTDOWN:
            loaded_ = false;
            player_gone_ = true;
            break;
        default:
            break;
    }
}

void MpvBackend::end(Ending ending) {
    end_timer_.set_enabled(false);
    if (loaded_) player_->set("pause", true);
    if (ending != Ending::failure) place_ = length_;
    seek_ = Seek::none;
    mode_ = DeviceMode::stopped;
}

void MpvBackend::report(Ending ending) {
    if (ending == Ending::none) return;
    end(ending);
    const auto& callback = ending == Ending::failure ? on_failed : on_finished;
    if (callback) callback();
}

}  // namespace zephyne
