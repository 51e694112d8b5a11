#include "engine/player.h"

#include "engine/recent_songs.h"

namespace zephyne {
namespace {

constexpr Milliseconds kLastSeconds = 10;
constexpr Milliseconds kLastSecondsBlink = 500;

}  // namespace

Player::Player(Stage& stage, TimeDisplay& display, BetweenSongs& between, NextSong& next)
    : stage_(stage), display_(display), between_(between), next_(next) {
    stage_.device.on_done = [this](NotifyCode code) { Done(code); };
    stage_.device.on_status_update = [this] { StatusUpdate(); };
}

void Player::PlayFile() {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    const SongServices& services = stage_.services;
    if (program.Ending || stage_.device.is_open()) return;
    const bool from_start = program.ResumePosition == 0;
    const std::string path = program.CurrentSongPath;

    if (from_start && !program.SwitchingSong && services.release_presets) {
        services.release_presets();
    }
    program.PausedByUser = false;
    f.Drive1.set_enabled(false);
    f.Dir1.set_enabled(false);
    const auto let_choose = [&] {
        program.ResumePosition = 0;
        f.Drive1.set_enabled(true);
        f.Dir1.set_enabled(true);
    };

    const auto type = device_type_of(path);
    if (!type) return let_choose();
    stage_.device.Type = *type;

    if (from_start && stage_.settings().AutoNotes == 1 && services.show_note &&
        stage_.files.check_readable(sidecar_path(path, ".nte"))) {
        services.show_note(path);
    }
    if (services.apply_remembered_volume) services.apply_remembered_volume(path);

    stage_.device.open_to_play(path);
    f.Label6.set_caption(length_text(stage_.device.Length()));
    display_.forget_digits();
    const PlayResult result = stage_.device.start(program.ResumePosition, stage_.events);
    if (program.Ending) return;
    if (result == PlayResult::overtaken) return let_choose();
    if (result == PlayResult::does_not_play) {
        // First the window, then the message: a song may be handed over while that is open.
        f.set_title("Zephyne");
        display_.ClearTimeDisplay();
        let_choose();
        stage_.messages.ShowDlgMessage(
            "Error - MCI Device may be in use or file may be corrupt or have been deleted.", 0,
            "Error");
        return stage_.events.pump();
    }

    show_playing();
    display_.UpdateTimeDisplay();
    stage_.device.set_transport_enabled(true);
    if (from_start && stage_.settings().Extended == 1 && services.getsonginfo) {
        services.getsonginfo();
    }
    let_choose();
}

void Player::StopDevice() {
    stage_.form.Timer4.set_enabled(true);
    stage_.device.StopAndClose();
    if (!stage_.program.SwitchingSong) {
        empty_displays();
        stage_.device.Type = DeviceType::Sequencer;
        display_.rewind_slider();
    }
    if (stage_.shows_tray()) {
        stage_.tray.mnuPause.caption = "Pause";
        stage_.tray.mnuPause.enabled = false;
        stage_.tray.mnuStop.caption = "Stop";
        stage_.tray.mnuStop.enabled = false;
    }
    display_.StopAnimation();
}

void Player::empty_displays() {
    Form1& f = stage_.form;
    if (stage_.settings().Extended == 1) f.Text1.set_text("");
    f.set_title("Zephyne");
    f.Label13.set_caption("");
    f.Label6.set_caption("");
    display_.ClearTimeDisplay();
}

void Player::restart() {
    const FlagGuard starting(stage_.program.AutoStarting);
    StopDevice();
    PlayFile();
}

void Player::show_playing() {
    stage_.form.set_title("Zephyne - Playing " + stage_.program.CurrentSongName);
    stage_.form.Label6.set_caption(length_text(stage_.device.Length()));
    if (!stage_.shows_tray()) return;
    stage_.tray.mnuPause.caption = "Pause";
    stage_.tray.mnuPause.enabled = true;
    stage_.tray.mnuStop.caption = "Stop";
    stage_.tray.mnuStop.enabled = true;
}

void Player::show_waiting() {
    if (!stage_.shows_tray()) return;
    stage_.tray.mnuPause.caption = "Pause";
    stage_.tray.mnuPause.enabled = false;
    stage_.tray.mnuStop.caption = "Play";
    stage_.tray.mnuStop.enabled = true;
}

bool Player::song_still_there() {
    Program& program = stage_.program;
    if (stage_.files.check_readable(program.CurrentSongPath)) return true;
    program.CurrentSongName.clear();
    program.CurrentSongPath.clear();
    StopDevice();
    stage_.messages.ShowDlgMessage("File was apparently deleted or moved.", 0, "Error");
    return false;
}

void Player::Done(NotifyCode code) {
    Program& program = stage_.program;
    if (code == NotifyCode::failed) stage_.beeper.beep();
    if (code != NotifyCode::successful || program.SwitchingSong) return;
    program.PausedByUser = false;
    display_.StopAnimation();
    display_.ClearTimeDisplay();
    if (program.settings.Mode == PlayMode::Queue) return end_in_queue();

    if (program.settings.AutoDelay != 0 && !between_.AutoDelayPause()) return;
    between_.EnableControls(Reselect::no);
    if (program.settings.AutoRepeat == 1) return restart();
    if (program.settings.Mode == PlayMode::Manual) return end_in_manual();
    record_finished_song(stage_);
    next_.go_on();
}

void Player::wait_at_start() {
    stage_.device.open_paused(stage_.program.CurrentSongPath);
    stage_.form.set_title("Zephyne");
    stage_.form.Label6.set_caption("");
    display_.ClearTimeDisplay();
}

void Player::end_in_queue() {
    Program& program = stage_.program;
    MediaDevice& device = stage_.device;
    display_.rewind_slider();
    const bool midi = song_kind(program.CurrentSongPath) == SongKind::midi;
    if (midi) between_.ResetSynth();
    show_waiting();
    if (!midi) {
        device.Notify = false;
        device.Wait = true;
        device.command(DeviceCommand::Close);
        device.Type = device_type_of(program.CurrentSongPath).value_or(DeviceType::Sequencer);
    }
    if (device.is_open()) return;  // by a song that has been started meanwhile
    if (!song_still_there()) return;
    wait_at_start();
    display_.rewind_slider();
    next_.play_next_queued();
}

void Player::end_in_manual() {
    display_.rewind_slider();
    if (song_kind(stage_.program.CurrentSongName) == SongKind::midi) {
        between_.ResetSynth();
        if (stage_.device.is_open()) return;  // by a song that has been started meanwhile
    }
    show_waiting();
    if (!song_still_there()) return;
    wait_at_start();
    display_.StopAnimation();
    stage_.form.Label13.set_caption("");
    display_.rewind_slider();
}

void Player::StatusUpdate() {
    if (stage_.program.SwitchingSong) return;
    if (!stage_.form.Timer3.enabled()) display_.UpdateTimeDisplay();
    if (stage_.device.Mode() != DeviceMode::playing) return;
    if (stage_.settings().Mode == PlayMode::Preview) {
        preview_clock();
    } else {
        blink_near_the_end();
    }
}

void Player::blink_near_the_end() {
    const Milliseconds length = stage_.device.Length();
    const Milliseconds remaining = length / 1000 - stage_.device.Position() / 1000;
    if (length > 0 && remaining <= kLastSeconds && !stage_.form.Timer3.enabled()) {
        display_.start_blinking(Blink::LastTenSeconds, kLastSecondsBlink);
    }
}

// A song that the user has paused, and resumed, is a song that the user wants to hear.
void Player::preview_clock() {
    const Milliseconds seconds = stage_.device.Position() / 1000;
    if (stage_.program.PausedByUser) return;
    if (seconds % 60 <= stage_.settings().PreviewTime && seconds < 60) return;
    StopDevice();
    if (stage_.settings().AutoDelay != 0 && !between_.AutoDelayPause()) return;
    next_.go_on();
}

}  // namespace zephyne
