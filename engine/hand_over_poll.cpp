#include "engine/hand_over_poll.h"

#include "core/text/letter_case.h"
#include "engine/recent_songs.h"

#include <algorithm>
#include <utility>

namespace zephyne {

HandOverPoll::HandOverPoll(Stage& stage, BetweenSongs& between, Player& player, PlayOrder& order,
                           SongList& songs)
    : stage_(stage), between_(between), player_(player), order_(order), songs_(songs) {
    stage_.form.Timer5.on_tick = [this] { Timer5_Timer(); };
}

void HandOverPoll::tell(std::string text) {
    stage_.messages.ShowDlgMessage(std::move(text), 0, "Error");
}

void HandOverPoll::poke(std::string command_line) {
    if (queueing()) queue_waiting_song();
    stage_.form.Label15.set_caption(std::move(command_line));
}

bool HandOverPoll::queueing() const {
    return stage_.settings().Mode == PlayMode::Queue;
}

void HandOverPoll::queue_waiting_song() {
    Form1& f = stage_.form;
    if (f.Label15.caption().empty()) return;
    f.List2.add({f.Label15.caption(), {}});
    f.Label15.set_caption("");
}

void HandOverPoll::Timer5_Timer() {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    if (queueing()) {
        f.Command19.set_enabled(!f.List2.empty());
        return queue_waiting_song();
    }
    if (f.Label15.caption().empty()) return;
    // A song on its way is started first; the one handed over then follows with the next tick.
    if (program.SwitchingSong || program.AutoStarting || program.DelayActive) return;

    const std::string path = f.Label15.caption();
    f.Label15.set_caption("");
    if (!stage_.files.check_readable(path)) {
        tell("Error - File not found!");
        between_.EnableControls(Reselect::no);
    } else if (program.settings.Playlist == 1) {
        play_beside_playlist(path);
    } else {
        play_from_folder(path);
    }
}

void HandOverPoll::play_beside_playlist(const std::string& path) {
    Program& program = stage_.program;
    program.CurrentSongName = path;
    program.CurrentSongPath = path;
    const FlagGuard starting(program.AutoStarting);
    {
        const FlagGuard switching(program.SwitchingSong);
        stage_.form.File1.set_selected(std::nullopt);
    }
    player_.StopDevice();
    between_.ResetSynth();
    player_.PlayFile();
}

// Moves the folder list to the folder of `path`, which is completed when it has none. False when
// that fails; the user has been told.
bool HandOverPoll::show_folder_of(std::string& path, bool& moved, std::string& name) {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    const PathStyle style = stage_.files.path_style();
    SplitPath split = split_path(path, style);
    if (split.folder.empty()) {
        split.folder = with_separator(f.Dir1.path(), style);
        path = split.folder + split.name;
        if (!stage_.files.check_readable(path)) {
            tell("Error - Path is unspecified for the current file.  Can't locate file!");
            return false;
        }
    }
    name = split.name;
    if (stage_.device.is_open() && !program.CurrentSongPath.empty()) RecordRecentSong(stage_);

    const auto folder = stage_.files.resolve(split.folder);
    moved = !folder || *folder != f.Dir1.path();
    if (!moved) return true;
    f.Drive1.refresh();  // the folder may lie on a drive that is new
    FileResult<void> shown;
    {
        const FlagGuard switching(program.SwitchingSong);
        shown = f.Dir1.set_path(split.folder);
    }
    if (!shown) tell("Error - " + shown.error().description);
    return shown.has_value();
}

void HandOverPoll::play_from_folder(std::string path) {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    bool moved = false;
    std::string name;
    if (!show_folder_of(path, moved, name)) return between_.EnableControls(Reselect::no);

    between_.DisableControls();
    {
        const FlagGuard switching(program.SwitchingSong);
        songs_.refreshfiles();
    }
    if (!f.File1.empty() && moved) {
        program.PausedByUser = false;
        order_.refill();
    }

    const auto& songs = f.File1.items();
    auto found = std::find_if(songs.begin(), songs.end(),
                              [&](const ListRow& song) { return song.real() == name; });
    if (found == songs.end()) {
        found = std::find_if(songs.begin(), songs.end(), [&](const ListRow& song) {
            return equal_ignoring_case(song.text, name);
        });
    }
    if (found == songs.end()) {
        if (!moved) between_.select_current_song();  // the list has been read anew
        tell("Unknown Error");
        return between_.EnableControls(Reselect::no);
    }
    const auto row = static_cast<std::size_t>(found - songs.begin());
    {
        const FlagGuard switching(program.SwitchingSong);
        f.File1.set_selected(row);
        between_.EnableControls(Reselect::no);
    }
    player_.StopDevice();
    program.CurrentSongName = name;
    program.CurrentSongPath = path;
    program.PausedByUser = false;

    if (program.settings.Continuous == 1) {
        order_.refill();
    } else {
        order_.refill_without(row);
    }
    const std::string remaining = f.Label4.caption();
    order_.show_counters();
    if (program.settings.Mode == PlayMode::Manual) f.Label4.set_caption(remaining);

    {
        const FlagGuard starting(program.AutoStarting);
        between_.ResetSynth();
        player_.PlayFile();
    }
    between_.EnableControls(Reselect::no);
}

}  // namespace zephyne
