#include "shell/tray_songs.h"

#include "core/playlist_entry.h"
#include "core/text/letter_case.h"
#include "engine/recent_songs.h"

#include <string>

namespace zephyne {
namespace {

constexpr int kEntries = 5;

bool plays_by_itself(const Settings& settings) {
    return settings.Mode < PlayMode::Manual;
}

// A song that did not come from the list goes by its whole path.
bool is_whole_path(const std::string& name, PathStyle style) {
    return style == PathStyle::windows ? name.find(':') != std::string::npos
                                       : name.starts_with('/');
}

}  // namespace

TraySongs::TraySongs(Stage& stage, Engine& engine) : stage_(stage), engine_(engine) {
    for (int number = 1; number <= kEntries; ++number) {
        stage_.tray.mnuSong(number).on_click = [this, number] { mnuSong_Click(number); };
    }
}

void TraySongs::mnuSong_Click(int number) {
    const Program& program = stage_.program;
    const RecentSong song = program.RecentSongs[static_cast<std::size_t>(kEntries - number)];
    if (song.folder.empty() || stage_.tray.mnuSong(number).caption.empty()) return;
    if (program.SwitchingSong || program.StartingUp) return;
    if (program.settings.Mode == PlayMode::Queue) return;

    if (stage_.files.check_readable(song.folder + song.name)) play(song);
    if (!program.Ending) engine_.between.EnableControls(Reselect::no);
}

// The song that makes room is not recorded as recent: with the entry for it the menu would move
// under the user's hand. Where it is not the list's, the next one is not recorded either.
void TraySongs::leave_current_song() {
    Program& program = stage_.program;
    program.SkipRecentOnce = true;
    if (stage_.form.File1.selected() && plays_by_itself(program.settings) &&
        !is_whole_path(program.CurrentSongName, stage_.files.path_style())) {
        record_finished_song(stage_);
    }
}

// Moves the folder list there; whether it has moved.
FileResult<bool> TraySongs::show_folder(const std::string& folder) {
    Form1& f = stage_.form;
    const auto resolved = stage_.files.resolve(folder);
    if (resolved && *resolved == f.Dir1.path()) return false;
    f.Drive1.refresh();  // the folder may lie on a drive that is new
    const FlagGuard switching(stage_.program.SwitchingSong);
    if (const auto shown = f.Dir1.set_path(folder); !shown) return tl::unexpected(shown.error());
    return true;
}

// The row of the very file; else, where names differ only in case, the first, of a playlist rather
// one of the folder.
std::optional<std::size_t> TraySongs::row_of(const RecentSong& song) const {
    const Form1& f = stage_.form;
    const bool playlist = stage_.settings().Playlist == 1;
    const PathStyle style = stage_.files.path_style();
    std::optional<std::size_t> found;
    int most_alike = 0;
    for (std::size_t row = 0; row < f.File1.count(); ++row) {
        const auto& entry = f.File1.item(row);
        if (!equal_ignoring_case(entry.text, song.name)) continue;
        const bool in_folder =
            playlist && row < f.List3.count() &&
            with_separator(std::string(split_entry_line(f.List3.item(row).text).second), style) ==
                song.folder;
        const int alike = 1 + (in_folder ? 2 : 0) + (entry.real() == song.name ? 1 : 0);
        if (alike <= most_alike) continue;
        most_alike = alike;
        found = row;
    }
    return found;
}

void TraySongs::play(const RecentSong& song) {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    engine_.between.DisableControls();
    leave_current_song();
    const auto moved = show_folder(song.folder);
    if (!moved) return;
    engine_.songs.refreshfiles();
    const auto row = row_of(song);
    if (!f.File1.empty() && *moved) {
        program.PausedByUser = false;
        if (row && program.settings.Continuous == 0) {
            engine_.order.refill_without(*row);
        } else {
            engine_.order.refill();
        }
    }
    if (row) {
        start(song, *row);
    } else {
        stage_.messages.ShowDlgMessage("Unknown Error", 0, "Error");
    }
}

void TraySongs::start(const RecentSong& song, std::size_t row) {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    {
        const FlagGuard switching(program.SwitchingSong);
        f.File1.set_selected(row);
    }
    const std::string remaining = f.Label4.caption();
    engine_.order.show_counters();
    if (!plays_by_itself(program.settings)) f.Label4.set_caption(remaining);
    program.CurrentSongName = std::string(f.File1.item(row).text);
    program.CurrentSongPath = song.folder + song.name;

    const FlagGuard starting(program.AutoStarting);
    if (stage_.device.is_open()) engine_.player.StopDevice();
    stage_.events.pump();
    if (program.Ending || stage_.device.is_open()) return;  // by a song started meanwhile
    engine_.display.rewind_slider();
    engine_.between.ResetSynth();
    engine_.player.PlayFile();
}

}  // namespace zephyne
