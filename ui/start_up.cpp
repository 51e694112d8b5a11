#include "ui/start_up.h"

#include "core/settings_file.h"
#include "core/window_placing.h"

#include <algorithm>
#include <utility>

namespace zephyne {
namespace {

constexpr int kHeight = 6510;
constexpr Milliseconds kStatusInterval = 500;
constexpr Milliseconds kQueuePollInterval = 1000;
constexpr Milliseconds kPollInterval = 1500;

}  // namespace

bool give_way(HandOver& hand_over, const std::string& command_line) {
    if (!hand_over.another_copy_runs()) return false;
    hand_over.bring_forward();
    if (!command_line.empty()) hand_over.poke(command_line);
    return true;
}

StartUp::StartUp(Stage& stage, Engine& engine, MainWindowLayout& layout, WindowHost& windows,
                 HandOver& hand_over)
    : stage_(stage), engine_(engine), layout_(layout), windows_(windows), hand_over_(hand_over) {
    stage_.form.on_activate = [this] { Form_Activate(); };
    stage_.form.on_resize = [this] { layout_.Form_Resize(); };
    hand_over_.on_poke = [this](std::string command_line) {
        engine_.hand_over.poke(std::move(command_line));
    };
    hand_over_.on_bring_forward = [this] { come_forward(); };
}

void StartUp::come_forward() {
    bring_back(stage_.form, windows_);
    // What waits for an answer comes with it, or the main window would seem dead.
    if (Form* modal = windows_.modal_form()) bring_back(*modal, windows_);
}

Started StartUp::Form_Load(const std::string& command_line) {
    if (choose_volume_device) choose_volume_device();
    set_up();
    if (!command_line.empty()) return start_queue(command_line);
    start_normally();
    return Started::normal;
}

void StartUp::set_up() {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    const PathStyle style = stage_.files.path_style();
    program.NormalExStyle = windows_.extended_style(f);
    program.TaskbarExStyle = program.NormalExStyle | kAppWindowStyle;
    f.load();
    f.set_title("Zephyne");
    program.SwitchingSong = false;
    program.StartingUp = true;
    program.HelpFile = program.folders.file(stage_.files, "zephyne.hlp");
    program.StartFolder = f.Dir1.path();
    stage_.device.Type = DeviceType::Sequencer;
    stage_.device.start_status_updates(kStatusInterval);
    engine_.display.ClearTimeDisplay();

    const auto settings = stage_.files.check_readable(SettingsPath(program, style));
    ReadSettings(program, f, stage_.files);
    const bool first_start = !settings && settings.error().kind == FileErrorKind::not_found;
    if (first_start) show_demo_songs_at_first_start();
    if (show_presets) show_presets();
    layout_.settips();
    check_reset_file(program, stage_.files);
    engine_.display.ClearTimeDisplay();
    layout_.led_colour();
    f.Timer4.set_enabled(true);
    f.Timer6.set_enabled(true);
    f.MMControl1.set_focus();  // Space plays and pauses
}

// Somebody who has never used the program gets the songs of the folder it was started in, and
// where that has none, something to listen to all the same.
void StartUp::show_demo_songs_at_first_start() {
    Form1& f = stage_.form;
    const PathStyle style = stage_.files.path_style();
    const auto names = stage_.files.list_files(f.Dir1.path());
    const bool has_songs =
        names && std::any_of(names->begin(), names->end(), [](const std::string& name) {
            return song_kind(name) == SongKind::midi;
        });
    if (has_songs) return;
    const FlagGuard switching(stage_.program.SwitchingSong);
    const ProgramFolders& folders = stage_.program.folders;
    for (const std::string& folder : {folders.own, folders.installed}) {
        const std::string songs = joined(folder, "songs", style);
        if (folder.empty() || !f.Dir1.set_path(songs)) continue;
        f.Drive1.follow(f.Dir1.path());
        return;
    }
}

Started StartUp::start_queue(const std::string& song) {
    Program& program = stage_.program;
    if (const auto readable = stage_.files.check_readable(song); !readable) {
        stage_.messages.ShowDlgMessage(
            "Error on Command Line - " + readable.error().description + ".", 0, "Error!");
        return Started::ended;
    }
    Settings& settings = program.settings;
    settings.SavedMode = settings.Mode;
    settings.SavedShowBar = settings.ShowBar;
    settings.SavedShowTray = settings.ShowTray;
    settings.Mode = PlayMode::Queue;
    layout_.compact();
    layout_.centre();
    stage_.form.Timer5.set_interval(kQueuePollInterval);
    stage_.form.Timer5.set_enabled(true);
    program.CurrentSongPath = song;
    program.CurrentSongName = song;
    {
        const FlagGuard starting(program.AutoStarting);
        engine_.between.ResetSynth();
        engine_.player.PlayFile();
    }
    if (program.Ending) return Started::queue;
    if (settings.AutoHide == 0) stage_.form.set_visible(true);
    settings.ShowBar = 1;
    settings.ShowTray = 0;
    layout_.shownbar();
    return Started::queue;
}

void StartUp::place_window() {
    const Settings& settings = stage_.settings();
    Form1& f = stage_.form;
    if (settings.Left == 0 || settings.Top == 0) return layout_.centre();
    put_in_place(f, windows_, {settings.Left, settings.Top}, {f.place().left, f.place().top});
}

void StartUp::start_normally() {
    Program& program = stage_.program;
    const Settings& settings = program.settings;
    Form1& f = stage_.form;
    Place place = f.place();
    place.height = kHeight;
    f.set_place(place);
    layout_.follow_extended();
    if (settings.ShowTray == 1 && load_tray) load_tray();
    place_window();
    if (settings.ShowBar == 1) {
        layout_.shownbar();
    } else if (!windows_.reachable_when_hidden()) {
        // Without our icon in the notification area, its taskbar button is the only way back to a
        // minimised window.
        windows_.set_extended_style(f, program.TaskbarExStyle);
    }
    program.StartingUp = false;
    if (settings.Playlist == 1) {
        layout_.playlist_based();
        if (settings.ShowTray == 1) {
            stage_.tray.mnuNext.enabled = false;
            stage_.tray.mnuPause.enabled = false;
            stage_.tray.mnuStop.enabled = false;
        }
    }
    if (settings.AutoHide == 0) {
        f.set_visible(true);
        if (show_quick_tip) show_quick_tip();
    } else if (settings.ShowBar == 0) {
        layout_.put_away();
    }
    f.Timer5.set_interval(kPollInterval);
    f.Timer5.set_enabled(true);
    engine_.songs.refreshfiles();
    if (settings.Mode == PlayMode::Manual) {
        f.Label2.set_caption(std::to_string(f.File1.count()));
    }
    if (settings.Playlist == 1 || settings.Mode >= PlayMode::Manual) return;
    const FlagGuard switching(program.SwitchingSong);
    engine_.order.RefillAndPlayNext();
}

void StartUp::Form_Activate() {
    Settings& settings = stage_.settings();
    if (settings.Mode == PlayMode::Queue) return;
    settings.Left = stage_.form.place().left;
    settings.Top = stage_.form.place().top;
}

}  // namespace zephyne
