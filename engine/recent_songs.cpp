#include "engine/recent_songs.h"

#include "core/text/letter_case.h"

#include <algorithm>
#include <utility>

namespace zephyne {

void show_recent_songs(Stage& stage) {
    const auto& songs = stage.program.RecentSongs;
    for (std::size_t slot = 0; slot < songs.size(); ++slot) {
        if (songs[slot].folder.empty()) continue;
        stage.tray.sep1.visible = true;
        MenuItem& entry = stage.tray.mnuSong(5 - static_cast<int>(slot));
        entry.caption = songs[slot].name;
        entry.visible = true;
    }
}

void RecordRecentSong(Stage& stage) {
    Program& program = stage.program;
    if (program.settings.Mode == PlayMode::Queue || program.SkipRecentOnce) return;
    if (program.CurrentSongPath.empty()) return;

    auto& songs = program.RecentSongs;
    const bool known = std::any_of(songs.begin(), songs.end(), [&](const RecentSong& song) {
        return equal_ignoring_case(song.folder + song.name, program.CurrentSongPath);
    });
    if (known) return;

    if (program.RecentCount == static_cast<int>(songs.size())) {
        std::rotate(songs.begin(), songs.begin() + 1, songs.end());
    } else {
        ++program.RecentCount;
    }
    const PathStyle style = stage.files.path_style();
    SplitPath split = split_path(program.CurrentSongPath, style);
    songs[static_cast<std::size_t>(program.RecentCount - 1)] = {
        with_separator(std::move(split.folder), style), std::move(split.name)};
    if (stage.shows_tray()) show_recent_songs(stage);
}

void record_finished_song(Stage& stage) {
    RecordRecentSong(stage);
    stage.program.SkipRecentOnce = false;
}

void ForgetRecentSongs(Stage& stage) {
    stage.program.RecentSongs.fill({});
    stage.program.RecentCount = 0;
    if (!stage.shows_tray()) return;
    stage.tray.sep1.visible = false;
    for (int number = 1; number <= 5; ++number) {
        MenuItem& entry = stage.tray.mnuSong(number);
        entry.caption.clear();
        entry.visible = false;
    }
}

}  // namespace zephyne
