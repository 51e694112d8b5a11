#include "engine/media_device.h"

#include "core/text/numbers.h"

#include <cmath>
#include <utility>

namespace zephyne {

std::optional<DeviceType> device_type_of(std::string_view path) {
    switch (song_kind(path)) {
        case SongKind::midi:
            return DeviceType::Sequencer;
        case SongKind::wave:
            return DeviceType::WaveAudio;
        case SongKind::video:
            return DeviceType::AVIVideo;
        case SongKind::none:
            break;
    }
    return std::nullopt;
}

MediaDevice::MediaDevice(Scheduler& scheduler, const FileSystem& files, Transport& transport,
                         MediaBackends backends)
    : files_(files),
      transport_(transport),
      backends_(backends),
      done_queue_(scheduler),
      status_timer_(scheduler, 0) {
    for (MediaBackend* backend : {&backends_.sequencer, &backends_.wave, &backends_.video}) {
        backend->on_finished = [this, backend] { finished(*backend, NotifyCode::successful); };
        backend->on_failed = [this, backend] { finished(*backend, NotifyCode::failed); };
    }
    status_timer_.on_tick = [this] {
        light_key();
        if (on_status_update) on_status_update();
    };
    transport_.on_press = [this](TransportKey key) { key_pressed(key); };
}

MediaBackend& MediaDevice::backend_for(DeviceType type) const {
    switch (type) {
        case DeviceType::WaveAudio:
            return backends_.wave;
        case DeviceType::AVIVideo:
            return backends_.video;
        case DeviceType::Sequencer:
            break;
    }
    return backends_.sequencer;
}

DeviceMode MediaDevice::Mode() const {
    return open_ ? open_->mode() : DeviceMode::not_open;
}
Milliseconds MediaDevice::Length() const {
    return open_ ? open_->length() : 0;
}
Milliseconds MediaDevice::Position() const {
    return open_ ? open_->position() : 0;
}

void MediaDevice::command(DeviceCommand command) {
    const bool is_play = command == DeviceCommand::Play;
    const bool notify = std::exchange(Notify, std::nullopt).value_or(is_play);
    const bool wait = std::exchange(Wait, std::nullopt).value_or(!is_play);
    if (shut_down_) return;

    switch (command) {
        case DeviceCommand::Open:
            open();
            break;
        case DeviceCommand::Play:
            play(notify, wait);
            break;
        case DeviceCommand::Pause:
            // Asked to notify, a pause speaks of the end of the song that it holds.
            if (open_) open_->pause();
            notify_at_end_ = notify_at_end_ || notify;
            break;
        case DeviceCommand::Stop:
            if (open_) open_->stop();
            if (std::exchange(notify_at_end_, false)) post_done(NotifyCode::aborted);
            break;
        case DeviceCommand::Close:
            if (open_) open_->close();
            open_ = nullptr;
            notify_at_end_ = false;
            ++opened_;
            break;
    }
    light_key();
}

void MediaDevice::open() {
    command(DeviceCommand::Close);
    MediaBackend& backend = backend_for(Type);
    const auto path = files_.resolve(FileName);
    if (path && backend.open(*path)) open_ = &backend;
}

void MediaDevice::play(bool notify, bool wait) {
    const auto from = std::exchange(From, std::nullopt);
    if (!open_) return;
    if (notify_at_end_ && notify) post_done(NotifyCode::superseded);
    notify_at_end_ = notify;
    at_end_ = false;
    if (from) {
        open_->play_from(*from);
    } else {
        open_->play();
    }
    if (!wait) return;
    open_->wait_until_finished();
    if (std::exchange(notify_at_end_, false)) post_done(NotifyCode::successful);
}

void MediaDevice::finished(const MediaBackend& backend, NotifyCode code) {
    if (open_ != &backend) return;
    at_end_ = code == NotifyCode::successful;
    light_key();
    if (std::exchange(notify_at_end_, false)) post_done(code);
}

void MediaDevice::post_done(NotifyCode code) {
    done_queue_.post([this, code, of = opened_] {
        if (of == opened_ && on_done) on_done(code);
    });
}

void MediaDevice::start_status_updates(Milliseconds interval) {
    status_timer_.set_interval(interval);
    status_timer_.set_enabled(true);
}

void MediaDevice::shut_down() {
    command(DeviceCommand::Close);
    status_timer_.set_enabled(false);
    done_queue_.clear();
    shut_down_ = true;
}

void MediaDevice::key_pressed(TransportKey key) {
    bool cancel = false;
    if (on_key) on_key(key, cancel);
    if (cancel) return;
    switch (key) {
        case TransportKey::play:
            command(DeviceCommand::Play);
            break;
        case TransportKey::pause:
            command(DeviceCommand::Pause);
            break;
        case TransportKey::stop:
            command(DeviceCommand::Stop);
            break;
    }
}

void MediaDevice::light_key() {
    switch (Mode()) {
        case DeviceMode::playing:
            transport_.set_light(TransportLight::play);
            break;
        case DeviceMode::paused:
            transport_.set_light(TransportLight::pause);
            break;
        default:
            transport_.set_light(TransportLight::none);
            break;
    }
}

void MediaDevice::open_to_play(const std::string& path) {
    set_transport_enabled(false);
    Notify = false;
    Wait = true;
    FileName = path;
    command(DeviceCommand::Open);
}

PlayResult MediaDevice::start(Milliseconds from, EventPump& events) {
    if (from != 0) From = from;
    Notify = true;
    Wait = false;
    command(DeviceCommand::Play);
    return settle(events);
}

PlayResult MediaDevice::play_again(EventPump& events) {
    command(DeviceCommand::Play);
    return settle(events);
}

PlayResult MediaDevice::settle(EventPump& events) {
    const unsigned opening = opened_;
    events.pump();
    if (Mode() != DeviceMode::playing) events.pump();
    if (opening != opened_ || Mode() == DeviceMode::paused) return PlayResult::overtaken;
    const bool plays = Mode() == DeviceMode::playing || (is_open() && at_end_);
    return plays ? PlayResult::plays : PlayResult::does_not_play;
}

void MediaDevice::StopAndClose() {
    set_transport_enabled(false);
    Notify = false;
    Wait = true;
    command(DeviceCommand::Stop);
    Wait = true;
    command(DeviceCommand::Close);
}

void MediaDevice::PauseDevice() {
    Wait = true;
    Notify = false;
    command(DeviceCommand::Pause);
}

void MediaDevice::ResumeDevice() {
    Wait = false;
    Notify = true;
    command(DeviceCommand::Play);
}

void MediaDevice::open_paused(const std::string& path) {
    FileName = path;
    command(DeviceCommand::Open);
    Notify = true;
    Wait = false;
    command(DeviceCommand::Pause);
}

void MediaDevice::ReloadPaused(const std::string& path) {
    if (song_kind(path) == SongKind::midi) {
        open_paused(path);
    } else {
        Notify = false;
        Wait = true;
        command(DeviceCommand::Stop);
        command(DeviceCommand::Close);
        FileName = path;
        command(DeviceCommand::Open);
    }
    set_transport_enabled(true);
}

void MediaDevice::SeekPercent(int percent, EventPump& events) {
    const auto target = static_cast<Milliseconds>(
        round_half_even(static_cast<double>(percent) / 100 * static_cast<double>(Length())));
    if (Mode() == DeviceMode::paused) {
        From = target;
        command(DeviceCommand::Play);
        command(DeviceCommand::Pause);
    } else if (Mode() == DeviceMode::playing) {
        const unsigned opening = opened_;
        set_transport_enabled(false);
        command(DeviceCommand::Stop);
        events.pump();
        events.pump();
        if (opening != opened_) return;  // the place is in a file that is gone
        From = target;
        command(DeviceCommand::Play);
        set_transport_enabled(true);
    }
}

}  // namespace zephyne
