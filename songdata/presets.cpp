#include "songdata/presets.h"

#include "core/text/numbers.h"
#include "engine/recent_songs.h"

#include <algorithm>

namespace zephyne {
namespace {

constexpr Colour kWhite = 0xFFFFFF;
constexpr Colour kRed = 0xFF0000;
constexpr Colour kGreen = 0x00FF00;

Colour colour_of(PresetMode mode) {
    switch (mode) {
        case PresetMode::store:
            return kRed;
        case PresetMode::clear:
            return kGreen;
        case PresetMode::use:
            break;
    }
    return kWhite;
}

}  // namespace

Presets::Presets(Stage& stage, Engine& engine) : stage_(stage), engine_(engine) {
    Form1& f = stage_.form;
    f.Command8.set_on_click([this] { arm(PresetMode::store); });
    f.Command15.set_on_click([this] { arm(PresetMode::clear); });
    f.Command17.set_on_click([this] { Command17_Click(); });
    f.Timer2.on_tick = [this] { Timer2_Timer(); };
    for (std::size_t i = 0; i < f.presets.size(); ++i) {
        f.presets[i]->set_on_click([this, i] { preset_Click(i); });
    }
    stage_.services.release_presets = [this] { release_all(); };
    f.Frame2.set_colour(kWhite);
}

void Presets::release_all() {
    if (stage_.program.SwitchingSong) return;
    for (auto& key : stage_.form.presets) key->set_latched(false);
}

// The song's name; a preset of a folder alone says which folder, and an unused one that it is none.
void Presets::show_tooltip(std::size_t index) {
    const Settings& settings = stage_.settings();
    const std::string& name = settings.PresetFileName[index];
    const std::string& path = settings.PresetPath[index];
    stage_.form.presets[index]->set_tooltip(!name.empty()   ? name
                                            : !path.empty() ? path
                                                            : "No Preset");
}

void Presets::show_tooltips() {
    for (std::size_t i = 0; i < stage_.form.presets.size(); ++i) show_tooltip(i);
}

void Presets::arm(PresetMode mode) {
    if (mode_ != PresetMode::use) return disarm();
    mode_ = mode;
    stage_.form.Frame2.set_colour(colour_of(mode));
    stage_.form.Timer2.set_enabled(true);
    release_all();
}

void Presets::disarm() {
    mode_ = PresetMode::use;
    stage_.form.Timer2.set_enabled(false);
    stage_.form.Frame2.set_colour(kWhite);
}

void Presets::Timer2_Timer() {
    blink_phase_ = !blink_phase_;
    stage_.form.Frame2.set_colour(blink_phase_ ? kWhite : colour_of(mode_));
}

// A press on a key that is down lets it up, and that is all.
void Presets::preset_Click(std::size_t index) {
    Button& key = *stage_.form.presets[index];
    if (key.latched()) return key.set_latched(false);
    release_all();
    key.set_latched(true);
    switch (mode_) {
        case PresetMode::store:
            return store(index);
        case PresetMode::clear:
            return clear(index);
        case PresetMode::use:
            break;
    }
    const Program& program = stage_.program;
    if (program.settings.PresetPath[index].empty() || program.SwitchingSong || program.StartingUp ||
        program.settings.Mode == PlayMode::Queue) {
        return release_all();
    }
    use(index);
}

void Presets::store(std::size_t index) {
    Settings& settings = stage_.settings();
    const ListBox& songs = stage_.form.File1;
    disarm();
    settings.PresetPath[index] = stage_.form.Dir1.path();
    const bool with_song = songs.selected() && settings.PresetPathOnly != 1;
    settings.PresetFileName[index] = with_song ? lasting_name(*songs.selected()) : "";
    show_tooltip(index);
}

// The name as it is listed, unless that would not tell which of two files is meant.
std::string Presets::lasting_name(std::size_t row) const {
    const ListItem song = stage_.form.File1.item(row);
    const std::string& folder = stage_.form.Dir1.path();
    const PathStyle style = stage_.files.path_style();
    const auto found = stage_.files.resolve(joined(folder, song.text, style));
    const bool is_it = found && *found == joined(folder, song.real(), style);
    return is_it ? song.text : song.real();
}

// The row of a song by its name in the list or, better, on disk; of several the last one.
std::optional<std::size_t> Presets::row_of(const std::string& name) const {
    const PathStyle style = stage_.files.path_style();
    const auto path = stage_.files.resolve(joined(stage_.form.Dir1.path(), name, style));
    const std::string real_name = path ? split_path(*path, style).name : name;
    const auto& songs = stage_.form.File1.items();
    std::optional<std::size_t> row;
    for (std::size_t i = 0; i < songs.size(); ++i) {
        if (songs[i].real() == real_name) return i;
        if (songs[i].text == name) row = i;
    }
    return row;
}

void Presets::clear(std::size_t index) {
    disarm();
    empty(index);
    release_all();
}

void Presets::empty(std::size_t index) {
    stage_.settings().PresetPath[index].clear();
    stage_.settings().PresetFileName[index].clear();
    stage_.form.presets[index]->set_tooltip("");
}

bool Presets::go_to_folder(std::size_t index) {
    Form1& f = stage_.form;
    const std::string& path = stage_.settings().PresetPath[index];
    if (!f.Drive1.set_drive_of(path) || !f.Dir1.set_path(path)) return false;
    engine_.songs.refreshfiles();
    return true;
}

void Presets::use(std::size_t index) {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    program.SwitchingSong = true;
    const std::string folder = f.Dir1.path();
    const std::size_t drive = f.Drive1.selected();
    const std::string selected(f.File1.selected() ? f.File1.item(*f.File1.selected()).text : "");
    if (!go_to_folder(index)) return path_not_found(index, folder, drive, selected);

    const bool moved = f.Dir1.path() != folder;
    const std::string& name = program.settings.PresetFileName[index];
    if (name.empty()) {
        program.SwitchingSong = false;
        return play_folder(moved);
    }
    const std::string path =
        joined(program.settings.PresetPath[index], name, stage_.files.path_style());
    if (!stage_.files.check_readable(path)) return file_not_found(index, moved);
    play_song(index, path, moved);
}

void Presets::play_folder(bool moved) {
    if (!moved) {
        // The list has been read anew; what plays is still selected.
        engine_.between.select_current_song();
        return release_all();
    }
    if (stage_.settings().Mode == PlayMode::Manual) {
        engine_.player.StopDevice();
        stage_.form.File1.set_selected(std::nullopt);
        engine_.order.show_counters();
        stage_.form.Label4.set_caption("N/A");
    } else {
        engine_.order.RefillAndPlayNext();
    }
    release_all();
}

void Presets::play_song(std::size_t index, const std::string& path, bool moved) {
    Program& program = stage_.program;
    Form1& f = stage_.form;
    const std::string name = program.settings.PresetFileName[index];
    RecordRecentSong(stage_);
    program.CurrentSongName = name;
    program.CurrentSongPath = path;

    const auto row = row_of(name);
    if (row) {
        f.File1.set_selected(row);
        program.CurrentSongName = std::string(f.File1.item(*row).text);
    }
    if (program.settings.Mode != PlayMode::Manual && moved) {
        if (program.settings.Continuous == 1 || !row) {
            engine_.order.refill();
        } else {
            engine_.order.refill_without(*row);
        }
        f.Label2.set_caption(decimal(static_cast<std::int64_t>(f.File1.count())));
        f.Label4.set_caption(decimal(static_cast<std::int64_t>(f.List1.count())));
    }
    {
        // The end of the song that plays now is nobody's, but that of the new one must be heard,
        // however early it comes: so the flag is down before PlayFile.
        const FlagGuard starting(program.AutoStarting);
        engine_.player.StopDevice();
        engine_.between.ResetSynth();
        program.SwitchingSong = false;
        engine_.player.PlayFile();
    }
    release_all();
}

void Presets::path_not_found(std::size_t index, const std::string& folder, std::size_t drive,
                             const std::string& selected) {
    Form1& f = stage_.form;
    stage_.messages.ShowDlgMessage("Path Not Found for this Preset - Clearing Preset", 0, "Error");
    empty(index);
    if (drive < f.Drive1.volumes().size()) {
        (void)f.Drive1.set_drive_of(f.Drive1.volumes()[drive].root);
    }
    (void)f.Dir1.set_path(folder);
    engine_.songs.refreshfiles();
    const auto& songs = f.File1.items();
    const auto found = std::find_if(songs.begin(), songs.end(),
                                    [&](const ListRow& song) { return song.text == selected; });
    if (found != songs.end()) {
        f.File1.set_selected(static_cast<std::size_t>(found - songs.begin()));
    }
    stage_.program.SwitchingSong = false;
    release_all();
}

void Presets::file_not_found(std::size_t index, bool moved) {
    stage_.messages.ShowDlgMessage("File Not Found for this Preset - Setting to path only", 0,
                                   "Error");
    stage_.settings().PresetFileName[index].clear();
    show_tooltip(index);
    stage_.program.SwitchingSong = false;
    if (!moved) {
        engine_.between.select_current_song();
    } else if (!stage_.form.File1.empty() && stage_.settings().Mode < PlayMode::Manual) {
        engine_.order.RefillAndPlayNext();
    } else {
        engine_.player.StopDevice();
    }
    release_all();
}

void Presets::Command17_Click() {
    const Answer answer = stage_.messages.ShowDlgMessage(
        "Are you sure you want to clear all presets?", 1, "Verify Clear All Operation");
    if (answer != Answer::yes) return;
    for (std::size_t i = 0; i < stage_.form.presets.size(); ++i) empty(i);
    release_all();
}

}  // namespace zephyne
