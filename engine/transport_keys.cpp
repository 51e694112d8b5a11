#include "engine/transport_keys.h"

namespace zephyne {
namespace {

constexpr Milliseconds kBlinkInterval = 250;

}  // namespace

TransportKeys::TransportKeys(Stage& stage, TimeDisplay& display, BetweenSongs& between,
                             Player& player)
    : stage_(stage), display_(display), between_(between), player_(player) {
    stage_.device.on_key = [this](TransportKey key, bool& cancel) {
        cancel = stage_.program.SwitchingSong;
        if (cancel) return;
        switch (key) {
            case TransportKey::play:
                return PlayClick(cancel);
            case TransportKey::pause:
                return PauseClick(cancel);
            case TransportKey::stop:
                return StopClick(cancel);
        }
    };
}

void TransportKeys::PlayClick(bool& cancel) {
    cancel = true;
    const PlayResult result = stage_.device.play_again(stage_.events);
    if (result == PlayResult::overtaken) return;
    if (result == PlayResult::does_not_play) {
        stage_.messages.ShowDlgMessage("Error - MCI Device may be in use.", 0, "Error");
        stage_.events.pump();
        return;
    }
    player_.show_playing();
    display_.StopAnimation();
}

void TransportKeys::PauseClick(bool& cancel) {
    cancel = true;
    pause_or_resume();
}

void TransportKeys::pause_or_resume() {
    MediaDevice& device = stage_.device;
    if (!device.is_open()) return;  // nothing to resume
    between_.EnableControls(Reselect::yes);
    if (device.Mode() == DeviceMode::playing) {
        stage_.form.set_title("Zephyne - Paused");
        stage_.program.PausedByUser = true;
        display_.StopAnimation();
        display_.forget_digits();
        display_.UpdateTimeDisplay();
        display_.start_blinking(Blink::Paused, kBlinkInterval);
        if (stage_.shows_tray()) {
            stage_.tray.mnuPause.caption = "Play";
            stage_.tray.mnuStop.caption = "Stop";
            stage_.tray.mnuStop.enabled = false;
        }
        device.PauseDevice();
        return;
    }
    stage_.form.set_title("Zephyne - Playing " + stage_.program.CurrentSongName);
    if (stage_.shows_tray()) {
        stage_.tray.mnuPause.caption = "Pause";
        stage_.tray.mnuStop.enabled = true;
    }
    display_.StopAnimation();
    device.ResumeDevice();
}

void TransportKeys::StopClick(bool& cancel) {
    Program& program = stage_.program;
    MediaDevice& device = stage_.device;
    if (program.CurrentSongPath.empty()) {  // there is no song to stop
        cancel = true;
        return;
    }
    player_.show_waiting();
    between_.EnableControls(Reselect::yes);
    program.PausedByUser = false;
    stage_.form.Label13.set_caption("");
    device.set_transport_enabled(false);
    display_.rewind_slider();
    switch (song_kind(program.CurrentSongName)) {
        case SongKind::midi:
            between_.ResetSynth();
            if (device.is_open()) {  // by a song that has been started meanwhile
                cancel = true;
                return;
            }
            device.Type = DeviceType::Sequencer;
            break;
        case SongKind::wave:
            device.Type = DeviceType::WaveAudio;
            stage_.beeper.beep();
            break;
        case SongKind::video:
            device.Type = DeviceType::AVIVideo;
            break;
        case SongKind::none:
            break;
    }
    cancel = !player_.song_still_there();
    if (cancel) return;
    device.ReloadPaused(program.CurrentSongPath);
    const unsigned opening = device.opening();
    stage_.form.set_title("Zephyne");
    stage_.form.Label6.set_caption("");
    display_.ClearTimeDisplay();
    display_.StopAnimation();
    display_.start_blinking(Blink::Stopped, kBlinkInterval);
    stage_.events.pump();
    // The device must not stop what has been started meanwhile.
    cancel = device.opening() != opening || device.Mode() == DeviceMode::playing;
}

}  // namespace zephyne
