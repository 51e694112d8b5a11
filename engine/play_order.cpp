#include "engine/play_order.h"

#include "core/playlist_entry.h"
#include "core/text/numbers.h"
#include "engine/recent_songs.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace zephyne {
namespace {

std::string count_text(const ListBox& list) {
    return decimal(static_cast<std::int64_t>(list.count()));
}

bool runs_backwards(const Settings& settings) {
    return settings.Mode == PlayMode::Alpha && settings.Reverse == 1;
}

}  // namespace

PlayOrder::PlayOrder(Stage& stage, TimeDisplay& display, BetweenSongs& between, Player& player)
    : stage_(stage), display_(display), between_(between), player_(player) {
    stage_.form.Command9.set_on_click([this] { Command9_Click(); });
    stage_.form.Command6.set_on_click([this] { Command6_Click(); });
    stage_.form.Command19.set_on_click([this] { Command19_Click(); });
}

void PlayOrder::go_on() {
    if (stage_.form.List1.empty()) {
        RefillAndPlayNext();
    } else {
        PlayNextSong();
    }
}

void PlayOrder::RefillAndPlayNext() {
    if (stage_.settings().Playlist == 0) RecordRecentSong(stage_);
    stage_.program.PausedByUser = false;
    stage_.program.OrderIndex = 0;
    display_.ClearTimeDisplay();
    refill();
    PlayNextSong();
}

// What the cycle is filled with, row by row as the list shows it.
const ListBox& PlayOrder::all_songs() const {
    return stage_.settings().Playlist == 1 ? stage_.form.List3 : stage_.form.File1;
}

void PlayOrder::refill() {
    Form1& f = stage_.form;
    f.List1.set_items(all_songs().items(), Sorting::done);
    stage_.program.OrderIndex =
        runs_backwards(stage_.settings()) ? static_cast<std::int32_t>(f.List1.count()) - 1 : 0;
}

void PlayOrder::refill_without(std::size_t song) {
    Form1& f = stage_.form;
    ListRows others = all_songs().items();
    // While the playlist is being edited it may be shorter than the list that shows it.
    if (song < others.size()) others.erase(song);
    f.List1.set_items(std::move(others), Sorting::done);
    stage_.program.OrderIndex =
        runs_backwards(stage_.settings()) ? static_cast<std::int32_t>(f.List1.count()) - 1 : 0;
}

void PlayOrder::begin_with_new_list() {
    if (stage_.settings().Mode >= PlayMode::Manual) return;
    stage_.events.pump();
    RefillAndPlayNext();
}

void PlayOrder::drop(const std::string& real_name) {
    ListBox& remaining = stage_.form.List1;
    for (std::size_t row = remaining.count(); row-- > 0;) {
        if (remaining.item(row).real() != real_name) continue;
        remaining.remove(row);
        if (static_cast<std::int32_t>(row) < stage_.program.OrderIndex) {
            --stage_.program.OrderIndex;
        }
    }
    const auto count = static_cast<std::int32_t>(remaining.count());
    if (stage_.program.OrderIndex >= count && !runs_backwards(stage_.settings())) {
        stage_.program.OrderIndex = 0;
    }
}

void PlayOrder::rename(const std::string& real_name, const ListItem& renamed) {
    ListBox& remaining = stage_.form.List1;
    const std::size_t before = remaining.count();
    drop(real_name);
    if (remaining.count() == before) return;
    const auto row = static_cast<std::int32_t>(remaining.add(renamed));
    std::int32_t& next = stage_.program.OrderIndex;
    // A song that comes to stand right before the next one has played: it would play again. Without
    // Continuous it has not, and an order that takes from the top takes it from there.
    if (row < next || (row == next && stage_.settings().Continuous == 1)) ++next;
}

void PlayOrder::show_total() {
    stage_.form.Label2.set_caption(count_text(stage_.form.File1));
}

void PlayOrder::show_counters() {
    show_total();
    show_remaining();
}

void PlayOrder::show_remaining() {
    stage_.form.Label4.set_caption(
        stage_.settings().Continuous == 1 ? "Continuous" : count_text(stage_.form.List1));
}

std::size_t PlayOrder::choose() const {
    const std::size_t count = stage_.form.List1.count();
    if (stage_.settings().Mode == PlayMode::Random) {
        const auto index =
            static_cast<std::size_t>(stage_.random.next() * static_cast<double>(count));
        return std::min(index, count - 1);
    }
    // The list may have been changed under a running cycle.
    return std::min(static_cast<std::size_t>(std::max(stage_.program.OrderIndex, 0)), count - 1);
}

// Moves OrderIndex on, `count` being the number of songs before the chosen one is taken out.
void PlayOrder::advance_after(std::size_t chosen, std::size_t count) {
    const Settings& settings = stage_.settings();
    std::int32_t& next = stage_.program.OrderIndex;
    const auto index = static_cast<std::int32_t>(chosen);
    const auto last = static_cast<std::int32_t>(count) - 1;
    if (settings.Continuous == 1 && settings.Mode != PlayMode::Random) {
        if (runs_backwards(settings)) {
            next = index == 0 ? last : index - 1;
        } else {
            next = index == last ? 0 : index + 1;
        }
    } else if (settings.Continuous != 1 && runs_backwards(settings)) {
        next = last - 1;
    }
}

// Shows what plays, and returns that row, or the entry where no row is like it. A row that looks
// the same may be another file, so that the real name decides where it can; after that the first
// row that begins like the song's name.
ListItem PlayOrder::select_in_list(const ListItem& entry) {
    Program& program = stage_.program;
    const auto& songs = stage_.form.File1.items();
    auto found = songs.end();
    if (stage_.settings().Playlist == 0) found = std::find(songs.begin(), songs.end(), entry);
    if (found == songs.end()) {
        found = std::find_if(songs.begin(), songs.end(), [&](const ListRow& song) {
            return song.text.starts_with(program.CurrentSongName);
        });
    }
    if (found == songs.end()) return entry;
    stage_.form.File1.set_selected(static_cast<std::size_t>(found - songs.begin()));
    program.CurrentSongName = found->text;
    return *found;
}

void PlayOrder::PlayNextSong() {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    if (program.Ending) return;
    player_.StopDevice();
    show_counters();
    if (f.List1.empty() || f.File1.empty()) return;

    const std::size_t index = choose();
    advance_after(index, f.List1.count());
    const ListItem entry = f.List1.item(index);
    const bool playlist = stage_.settings().Playlist == 1;
    const auto [name, folder] = split_entry_line(entry.text);
    program.CurrentSongName = playlist ? std::string(name) : entry.text;
    if (stage_.settings().Continuous != 1) {
        f.List1.remove(index);
        show_remaining();
    }

    const FlagGuard starting(program.AutoStarting);
    program.SwitchingSong = true;
    stage_.device.set_transport_enabled(false);
    f.Drive1.set_enabled(false);  // PlayFile enables them again
    f.Dir1.set_enabled(false);
    const ListItem song = select_in_list(entry);
    program.CurrentSongPath =
        playlist ? joined(std::string(folder), program.CurrentSongName, stage_.files.path_style())
                 : joined(f.Dir1.path(), song.real(), stage_.files.path_style());
    stage_.events.pump();
    display_.rewind_slider();
    program.SwitchingSong = false;

    if (song_kind(program.CurrentSongName) == SongKind::midi) between_.ResetSynth();
    player_.PlayFile();
    if (!program.Ending) stage_.device.set_transport_enabled(true);
}

void PlayOrder::play_next_queued() {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    while (!f.List2.empty()) {
        const std::string path(f.List2.item(0).text);
        f.List2.remove(0);
        if (!stage_.files.check_readable(path)) {
            stage_.events.pump();
            continue;
        }
        program.CurrentSongName = path;
        program.CurrentSongPath = path;
        program.SwitchingSong = false;
        display_.rewind_slider();
        player_.restart();
        stage_.device.set_transport_enabled(true);
        return;
    }
}

void PlayOrder::Command19_Click() {
    // While the song that ended is being reset the queue is about to be served anyway.
    if (!stage_.program.SwitchingSong) play_next_queued();
}

void PlayOrder::Command9_Click() {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    program.PausedByUser = false;
    if (program.settings.Mode == PlayMode::Queue || program.AutoStarting) return;

    const std::string& name = program.CurrentSongName;
    const bool midi = name.ends_with(".rmi") || name.ends_with(".mid");
    if (midi || f.File1.empty()) {
        const DeviceMode mode = stage_.device.Mode();
        const bool holds_song = mode == DeviceMode::paused || mode == DeviceMode::playing ||
                                mode == DeviceMode::stopped;
        if (!holds_song) return;
    }
    between_.EnableControls(Reselect::no);

    if (program.settings.Mode == PlayMode::Manual) {
        if (program.SwitchingSong) return;  // the list would move and not be heard
        const std::size_t below = f.File1.selected() ? *f.File1.selected() + 1 : 0;
        if (below >= f.File1.count()) return;
        display_.StopAnimation();
        record_finished_song(stage_);
        f.File1.set_selected(below);
        return;
    }
    if (f.List1.empty()) return;
    record_finished_song(stage_);
    PlayNextSong();
}

void PlayOrder::Command6_Click() {
    Program& program = stage_.program;
    if (program.DelayActive) return between_.cancel_delay();
    const bool by_hand =
        program.settings.Mode == PlayMode::Manual || program.settings.Mode == PlayMode::Queue;
    if (program.SwitchingSong && !by_hand) return;
    {
        const FlagGuard switching(program.SwitchingSong);
        refreshfiles();
    }
    if (by_hand || stage_.form.File1.empty()) return;
    program.PausedByUser = false;
    RefillAndPlayNext();
}

}  // namespace zephyne
