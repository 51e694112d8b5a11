#include "engine/song_list.h"

#include "core/playlist_entry.h"
#include "engine/listed_songs.h"
#include "engine/recent_songs.h"

#include <string_view>
#include <utility>

namespace zephyne {
namespace {

constexpr std::size_t kLongList = 10'000;

}  // namespace

SongList::SongList(Stage& stage, TimeDisplay& display, BetweenSongs& between, Player& player,
                   PlayOrder& order)
    : stage_(stage), display_(display), between_(between), player_(player), order_(order) {
    stage_.form.File1.on_click = [this] { File1_Click(); };
    stage_.form.Dir1.on_change = [this] { Dir1_Change(); };
    stage_.form.Drive1.on_change = [this] { Drive1_Change(); };
    order_.refreshfiles = [this] { refreshfiles(); };
}

void SongList::rebuild() {
    const FlagGuard switching(stage_.program.SwitchingSong);
    refreshfiles();
}

void SongList::forget(const std::string& real_name) {
    order_.drop(real_name);
    rebuild();
    between_.select_current_song();
}

void SongList::refreshfiles() {
    if (stage_.settings().Playlist == 1) return;
    Form1& f = stage_.form;
    {
        const FlagGuard emptying(stage_.program.FindSync);
        f.text2.set_text("");
    }
    const auto names = stage_.files.list_files(f.Dir1.path());
    // A long list takes a while to read, to name and to sort; the picture goes on in between.
    const bool is_long = names && names->size() > kLongList;
    if (is_long) stage_.events.show();
    ListRows songs;
    if (names) songs = listed_songs(*names, stage_.settings());
    if (is_long) stage_.events.show();
    f.File1.set_items(std::move(songs));
    order_.show_total();
    if (is_long) stage_.events.show();
}

void SongList::filepathchange() {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    if (program.StartingUp) return;
    const auto forget_song_of_empty_list = [&] {
        if (!f.File1.empty()) return;
        program.CurrentSongName.clear();
        program.CurrentSongPath.clear();
    };

    if (program.settings.Mode != PlayMode::Queue) {
        f.Label6.set_caption("");
        f.Label13.set_caption("");
        f.set_title("Zephyne");
        if (program.settings.Extended == 1) f.Text1.set_text("");
        RecordRecentSong(stage_);
    }
    switch (program.settings.Mode) {
        case PlayMode::Manual:
            forget_song_of_empty_list();
            order_.show_total();
            f.Label4.set_caption("N/A");
            player_.StopDevice();
            break;
        case PlayMode::Queue:
            player_.StopDevice();
            break;
        default:
            order_.RefillAndPlayNext();
            forget_song_of_empty_list();
            break;
    }
    program.PausedByUser = false;
}

void SongList::Dir1_Change() {
    stage_.form.Drive1.follow(stage_.form.Dir1.path());
    if (stage_.program.SwitchingSong) return;
    refreshfiles();
    filepathchange();
}

void SongList::Drive1_Change() {
    Form1& f = stage_.form;
    if (f.Dir1.set_path(f.Drive1.drive().root)) return;
    // Where the program itself moves the lists, it knows what to say.
    if (stage_.program.SwitchingSong) return f.Drive1.follow(f.Dir1.path());
    if (recovering_) return;
    const FlagGuard recovering(recovering_);
    const std::string folder = f.Dir1.path();
    stage_.messages.ShowDlgMessage("Error - Drive May Be Unavailable.", 0, "Drive Error");
    // A song that has been handed over meanwhile has brought its folder, and keeps it.
    if (f.Dir1.path() == folder) {
        (void)f.Drive1.set_drive_of(stage_.program.StartFolder);
        (void)f.Dir1.set_path(f.Drive1.drive().root);
    }
    f.Drive1.follow(f.Dir1.path());
}

// A playlist is edited in its lines, so that while its editor is open a row may show one song and
// its line name another.
bool SongList::shows_its_song() const {
    const Form1& f = stage_.form;
    if (stage_.settings().Playlist != 1 || !f.File1.selected()) return true;
    const std::size_t row = *f.File1.selected();
    return row < f.List3.count() &&
           split_entry_line(f.List3.item(row).text).first == f.File1.item(row).text;
}

// The selected row becomes the current song.
void SongList::take_selected() {
    Program& program = stage_.program;
    const Form1& f = stage_.form;
    if (!f.File1.selected() || !shows_its_song()) return;
    const std::size_t row = *f.File1.selected();
    const PathStyle style = stage_.files.path_style();
    if (program.settings.Playlist == 1) {
        const auto [name, folder] = split_entry_line(f.List3.item(row).text);
        program.CurrentSongName = std::string(name);
        program.CurrentSongPath = joined(std::string(folder), name, style);
    } else {
        program.CurrentSongName = f.File1.item(row).text;
        program.CurrentSongPath = joined(f.Dir1.path(), f.File1.item(row).real(), style);
    }
}

// The user may click again while the synthesizer is being reset; the last click counts.
void SongList::play_taken() {
    const auto row = stage_.form.File1.selected();
    if (song_kind(stage_.program.CurrentSongName) == SongKind::midi) {
        between_.ResetSynth();
        if (stage_.form.File1.selected() != row) take_selected();
    }
    player_.PlayFile();
}

void SongList::File1_Click() {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    if (program.SwitchingSong || program.StartingUp) return;
    if (program.settings.Mode == PlayMode::Queue || f.File1.empty()) return;
    if (!shows_its_song()) return;

    if (stage_.device.is_open()) {
        program.SwitchingSong = true;
        display_.StopAnimation();
        player_.StopDevice();
        program.SwitchingSong = false;
        stage_.device.Type = DeviceType::Sequencer;
        f.Label13.set_caption("");  // the clock writes it no sooner than at the first percent
        display_.rewind_slider();
    }
    program.PausedByUser = false;

    const auto empty_find_box = [&] {
        const FlagGuard emptying(program.FindSync);
        f.text2.set_text("");
    };
    RecordRecentSong(stage_);
    empty_find_box();
    display_.rewind_slider();
    take_selected();
    if (program.settings.Playlist == 1) {
        const FlagGuard starting(program.StartingUp);
        f.Drive1.set_enabled(false);
        f.Dir1.set_enabled(false);
        play_taken();
        f.Drive1.set_enabled(true);
        f.Dir1.set_enabled(true);
    } else {
        const FlagGuard starting(program.AutoStarting);
        play_taken();
    }
}

}  // namespace zephyne
