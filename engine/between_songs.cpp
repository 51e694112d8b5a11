#include "engine/between_songs.h"

#include "core/text/letter_case.h"
#include "core/text/numbers.h"

#include <algorithm>

namespace zephyne {
namespace {

constexpr Milliseconds kLongestPause = 60'000;

template <std::size_t N>
void enable(const std::array<Control*, N>& controls) {
    for (Control* control : controls) control->set_enabled(true);
}

template <std::size_t N>
void disable(const std::array<Control*, N>& controls) {
    for (Control* control : controls) control->set_enabled(false);
}

// The file commands work on the current folder, so that a playlist leaves them disabled.
std::array<Control*, 4> file_commands(Form1& f) {
    return {&f.Command4, &f.Command18, &f.Command24, &f.Command5};
}

}  // namespace

BetweenSongs::BetweenSongs(Stage& stage, TimeDisplay& display) : stage_(stage), display_(display) {
    stage_.form.Timer1.on_tick = [this] {
        stage_.program.DelayDone = true;
        stage_.form.Timer1.set_enabled(false);
    };
}

bool BetweenSongs::AutoDelayPause() {
    const double seconds = stage_.settings().AutoDelayTime;
    const auto wanted = static_cast<Milliseconds>(
        round_half_even(std::clamp(seconds * 1000, 0.0, static_cast<double>(kLongestPause))));
    if (wanted == 0) return true;

    EnableControls(Reselect::no);  // the key that cancels the pause, too
    Form1& f = stage_.form;
    MediaDevice& device = stage_.device;
    f.Timer1.set_interval(wanted);
    stage_.program.DelayDone = false;
    device.command(DeviceCommand::Close);
    device.set_transport_enabled(false);
    disable(file_commands(f));
    disable(std::array<Control*, 9>{&f.Command1, &f.Command3, &f.Frame2, &f.Command7, &f.Command9,
                                    &f.Drive1, &f.Dir1, &f.File1, &f.SSCommand1});
    f.Command6.set_caption("Cancel Dly");
    f.set_title("Delaying " + decimal(seconds) + " Second(s)...");

    stage_.program.DelayActive = true;
    f.Timer1.set_enabled(true);
    const auto over = [&] {
        return stage_.program.DelayDone || stage_.program.Ending || device.is_open();
    };
    while (!over()) stage_.events.wait();
    f.Timer1.set_enabled(false);

    enable(std::array<Control*, 3>{&f.Command1, &f.Command3, &f.Frame2});
    if (stage_.settings().Playlist == 0) enable(file_commands(f));
    enable(std::array<Control*, 6>{&f.Command7, &f.Command9, &f.Drive1, &f.Dir1, &f.File1,
                                   &f.SSCommand1});
    f.Command6.set_caption("Reset List");
    device.set_transport_enabled(true);
    stage_.program.DelayActive = false;
    return !stage_.program.Ending && !device.is_open();
}

void BetweenSongs::cancel_delay() {
    stage_.form.Timer1.set_enabled(false);
    stage_.program.DelayDone = true;
}

void BetweenSongs::ResetSynth() {
    if (stage_.program.ResumePosition != 0) return;
    reset(stage_.settings().AutoReset == 1 ? Sequence::played : Sequence::left_out);
}

void BetweenSongs::reset_now() {
    reset(Sequence::played);
}

void BetweenSongs::reset(Sequence sequence) {
    MediaDevice& device = stage_.device;
    stage_.form.Timer4.set_enabled(false);
    device.Notify = false;
    device.Wait = true;
    device.command(DeviceCommand::Stop);
    device.command(DeviceCommand::Close);
    device.Type = DeviceType::Sequencer;
    if (stage_.program.ResetFilePresent && sequence == Sequence::played) play_reset_sequence();
    stage_.program.SwitchingSong = false;
    display_.forget_digits();
    stage_.form.Timer4.set_enabled(true);
}

void BetweenSongs::play_reset_sequence() {
    Form1& f = stage_.form;
    // The end of the sequence must not pass for the end of a song.
    stage_.program.SwitchingSong = true;
    disable(std::array<Control*, 2>{&f.Drive1, &f.Dir1});
    display_.show_reset_glyphs();
    f.set_title("Resetting MCI Sequencer...");
    hear_reset_sequence();
    enable(std::array<Control*, 2>{&f.Drive1, &f.Dir1});
}

// Events run in between. A song that one of them starts has had a reset of its own, and stays.
void BetweenSongs::hear_reset_sequence() {
    MediaDevice& device = stage_.device;
    const unsigned closed = device.opening();
    stage_.events.pump();
    if (device.opening() != closed) return;
    device.Notify = false;
    device.Wait = true;
    device.FileName =
        stage_.program.folders.file(stage_.files, reset_file_name(stage_.settings().ResetType));
    device.command(DeviceCommand::Open);
    device.Notify = true;
    device.Wait = true;
    device.command(DeviceCommand::Play);
    const unsigned reset = device.opening();
    stage_.events.pump();
    if (device.opening() != reset) return;
    device.Notify = false;
    device.Wait = true;
    device.command(DeviceCommand::Close);
    stage_.events.pump();
}

void BetweenSongs::DisableControls() {
    Form1& f = stage_.form;
    if (!f.Command1.enabled()) return;
    disable(file_commands(f));
    disable(std::array<Control*, 11>{&f.Command1, &f.Command6, &f.Command8, &f.Command15,
                                     &f.Command16, &f.Command17, &f.File1, &f.Dir1, &f.Drive1,
                                     &f.Frame2, &f.SSCommand1});
}

void BetweenSongs::EnableControls(Reselect reselect) {
    Form1& f = stage_.form;
    const FlagGuard emptying(stage_.program.FindSync);
    f.text2.set_text("");
    if (f.Command1.enabled() || stage_.program.DelayActive) return;  // the pause unlocks by itself
    enable(std::array<Control*, 3>{&f.Command1, &f.Command6, &f.Frame2});
    if (stage_.settings().Playlist == 0) enable(file_commands(f));
    enable(std::array<Control*, 8>{&f.Command8, &f.Command15, &f.Command16, &f.Command17, &f.File1,
                                   &f.Dir1, &f.Drive1, &f.SSCommand1});
    if (reselect == Reselect::yes) select_current_song();
}

// Of names that differ only in case, the one whose file is the current song's.
void BetweenSongs::select_current_song() {
    const Program& program = stage_.program;
    const auto& songs = stage_.form.File1.items();
    const std::string file = split_path(program.CurrentSongPath, stage_.files.path_style()).name;
    auto found = songs.end();
    for (auto song = songs.begin(); song != songs.end(); ++song) {
        if (!equal_ignoring_case(song->text, program.CurrentSongName)) continue;
        if (found == songs.end() || song->real() == file) found = song;
    }
    if (found == songs.end()) return;
    const FlagGuard switching(stage_.program.SwitchingSong);
    stage_.form.File1.set_selected(static_cast<std::size_t>(found - songs.begin()));
}

}  // namespace zephyne
