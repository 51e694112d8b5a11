#include "shell/tray_player.h"

#include <algorithm>

namespace zephyne {
namespace {

constexpr int kVolumeStep = 20;  // of a slider's 100; its 0 is the full volume
constexpr Milliseconds kBlinkInterval = 250;

}  // namespace

TrayPlayer::TrayPlayer(Stage& stage, Engine& engine) : stage_(stage), engine_(engine) {
    stage_.tray.mnuNext.on_click = [this] { mnuNext_Click(); };
    stage_.tray.mnuPause.on_click = [this] { mnuPause_Click(); };
    stage_.tray.mnuStop.on_click = [this] { mnuStop_Click(); };
    stage_.tray.VolUp.on_click = [this] { change_volume(-kVolumeStep); };
    stage_.tray.VolDown.on_click = [this] { change_volume(kVolumeStep); };
}

void TrayPlayer::show_state() {
    MenuItem& pause = stage_.tray.mnuPause;
    MenuItem& stop = stage_.tray.mnuStop;
    const DeviceMode mode = stage_.device.Mode();
    const bool playing = mode == DeviceMode::playing;
    const bool paused = mode == DeviceMode::paused && stage_.program.PausedByUser;
    const bool waiting = stage_.device.is_open() && !playing && !paused;
    pause.caption = paused ? "Play" : "Pause";
    pause.enabled = playing || paused;
    stop.caption = waiting ? "Play" : "Stop";
    stop.enabled = playing || waiting;
}

bool TrayPlayer::song_waits() const {
    const DeviceMode mode = stage_.device.Mode();
    return mode == DeviceMode::stopped ||
           (mode == DeviceMode::paused && stage_.tray.mnuStop.caption == "Play");
}

// In Queue mode the queue's own key knows what is next; else it is what the key "Next" does.
void TrayPlayer::mnuNext_Click() {
    if (stage_.settings().Mode != PlayMode::Queue) return engine_.order.Command9_Click();
    stage_.program.PausedByUser = false;
    if (stage_.form.Command19.enabled()) stage_.form.Command19.click();
}

void TrayPlayer::mnuPause_Click() {
    if (stage_.program.SwitchingSong) return;
    const DeviceMode mode = stage_.device.Mode();
    if (mode != DeviceMode::playing && mode != DeviceMode::paused) return;
    engine_.transport.pause_or_resume();
    if (mode == DeviceMode::paused) stage_.device.set_transport_enabled(true);
}

void TrayPlayer::mnuStop_Click() {
    if (stage_.program.SwitchingSong) return;
    if (stage_.device.Mode() == DeviceMode::playing) return stop();
    if (song_waits()) play();
}

void TrayPlayer::stop() {
    Program& program = stage_.program;
    MediaDevice& device = stage_.device;
    engine_.between.EnableControls(Reselect::yes);
    program.PausedByUser = false;
    engine_.display.rewind_slider();
    engine_.between.ResetSynth();
    if (program.Ending || device.is_open()) return;  // by a song that has been started meanwhile
    device.Type = device_type_of(program.CurrentSongPath).value_or(DeviceType::Sequencer);
    engine_.player.wait_at_start();
    if (!device.is_open()) return engine_.player.StopDevice();  // the file is gone
    engine_.player.show_waiting();
    device.set_transport_enabled(true);
    stage_.form.Label13.set_caption("");
    engine_.display.StopAnimation();
    engine_.display.start_blinking(Blink::Stopped, kBlinkInterval);
    stage_.events.pump();
}

void TrayPlayer::play() {
    engine_.between.EnableControls(Reselect::yes);
    stage_.device.command(DeviceCommand::Play);
    stage_.device.set_transport_enabled(true);
    engine_.player.show_playing();
    engine_.display.StopAnimation();
}

// The poll of the device's volume would take the sliders back before the sound has followed them.
void TrayPlayer::change_volume(int by) {
    Form1& f = stage_.form;
    const int left = f.Slider2.value() + by;
    const int right = f.Slider3.value() + by;
    f.Slider2.set_value(std::clamp(left, Slider::lowest, Slider::highest));
    f.Slider3.set_value(std::clamp(right, Slider::lowest, Slider::highest));
    f.Timer6.set_enabled(false);
    if (stage_.services.setvolume) stage_.services.setvolume();
    f.Timer6.set_enabled(true);
}

}  // namespace zephyne
