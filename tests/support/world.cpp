#include "tests/support/world.h"

#include "core/playlist_entry.h"
#include "core/text/letter_case.h"

#include <gtest/gtest.h>

#include <utility>

namespace zephyne::test {

World::World(std::initializer_list<std::string> songs, PathStyle style)
    : folder(style == PathStyle::posix ? "/music" : "C:\\music"),
      program_folder(style == PathStyle::posix ? "/zephyne" : "C:\\zephyne"),
      files(style, folder),
      form(files, scheduler),
      device(scheduler, files, form.MMControl1, {midi, wave, video}),
      stage{program, form, tray, device, files, pump, messages, beeper, random} {
    for (const std::string& song : songs) files.add_file(path(song));
    for (const char* name : {"gm_reset.aut", "xg_reset.aut", "gs_reset.aut"}) {
        files.add_file(joined(program_folder, name, style));
    }
    program.folders.own = program_folder;
    program.ResetFilePresent = true;
    program.StartFolder = folder;
    engine = std::make_unique<Engine>(stage);
    device.start_status_updates(500);
}

std::string World::path(const std::string& name) const {
    return joined(folder, name, files.path_style());
}

void World::open_folder() {
    settings().Mode = PlayMode::Manual;
    form.Timer5.set_enabled(true);
    engine->songs.refreshfiles();
}

void World::start(std::int32_t mode) {
    open_folder();
    settings().Mode = mode;
    engine->order.RefillAndPlayNext();
}

void World::open_playlist(std::initializer_list<std::string> entries) {
    open_folder();
    settings().Playlist = 1;
    std::vector<ListItem> lines;
    std::vector<ListItem> song_names;
    for (const std::string& entry : entries) {
        lines.push_back({entry, {}});
        song_names.push_back({std::string(split_entry_line(entry).first), {}});
    }
    form.List3.set_items(std::move(lines));
    form.File1.set_items(std::move(song_names));
}

void World::start_playlist(std::int32_t mode, std::initializer_list<std::string> entries) {
    open_playlist(entries);
    settings().Mode = mode;
    engine->order.RefillAndPlayNext();
}

void World::start_queue(const std::string& song, std::initializer_list<std::string> waiting) {
    settings().Mode = PlayMode::Queue;
    form.Command19.set_visible(true);
    program.CurrentSongName = program.CurrentSongPath = path(song);
    engine->player.PlayFile();
    for (const std::string& name : waiting) form.List2.add({path(name), {}});
}

void World::open_row(const std::string& name) {
    const auto& rows = form.Dir1.rows();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].text == name) return form.Dir1.open(row);
    }
    ADD_FAILURE() << name << " is not in the folder list";
}

void World::click(const std::string& name) {
    const auto& items = form.File1.items();
    for (std::size_t row = 0; row < items.size(); ++row) {
        if (items[row].text == name || items[row].real() == name) return form.File1.click(row);
    }
    ADD_FAILURE() << name << " is not in the list";
}

void World::end_song() {
    for (SimulatedBackend* backend : {&midi, &wave, &video}) {
        if (backend->mode() == DeviceMode::playing) backend->finish();
    }
}

void World::finish_song() {
    end_song();
    pump.pump();
}

std::vector<std::string> World::played() {
    std::vector<std::string> songs;
    for (; played_up_to_ < log.size(); ++played_up_to_) {
        std::string line = log[played_up_to_];
        for (const char* device_name : {"wave: ", "video: "}) {
            if (line.starts_with(device_name)) line.erase(0, std::string(device_name).size());
        }
        const bool starts = line.starts_with("play ") && line.find(" from ") == std::string::npos;
        if (starts && !line.ends_with(".aut")) songs.push_back(line.substr(5));
    }
    return songs;
}

Log World::happened() {
    Log lines(log.begin() + static_cast<std::ptrdiff_t>(happened_up_to_), log.end());
    happened_up_to_ = log.size();
    return lines;
}

Log World::said() {
    Log lines = happened();
    std::erase_if(lines, [](const std::string& line) {
        return !line.starts_with("message") && !line.starts_with("ask") && line != "beep";
    });
    return lines;
}

std::vector<std::string> World::names(const ListBox& list) {
    std::vector<std::string> names;
    for (const ListRow& row : list.items()) names.emplace_back(row.text);
    return names;
}

std::string World::shown(const MenuItem& entry) {
    return entry.caption + (entry.enabled ? "" : " (off)");
}

std::string World::open_song() const {
    return midi.open_song() + wave.open_song() + video.open_song();
}

void World::expect_title_tells_the_truth() const {
    const DeviceMode mode = device.Mode();
    if (mode == DeviceMode::playing) {
        EXPECT_EQ(form.title(), "Zephyne - Playing " + program.CurrentSongName);
        const std::string song = split_path(program.CurrentSongPath, files.path_style()).name;
        EXPECT_EQ(lower_case(open_song()), lower_case(song));
        EXPECT_TRUE(lower_case(form.title()).ends_with(lower_case(open_song())))
            << form.title() << ", but " << open_song() << " plays";
        EXPECT_TRUE(form.MMControl1.transport_enabled());
    } else if (mode == DeviceMode::paused && program.PausedByUser) {
        EXPECT_EQ(form.title(), "Zephyne - Paused");
    } else {
        EXPECT_EQ(form.title(), "Zephyne");
    }
}

void World::expect_window_unlocked() const {
    for (const Control* control : std::initializer_list<const Control*>{
             &form.Command1, &form.Command6, &form.Command9, &form.File1, &form.Dir1, &form.Drive1,
             &form.SSCommand1, &form.Frame2, &form.text2, &form.Slider1}) {
        EXPECT_TRUE(control->enabled()) << control->name();
    }
    EXPECT_EQ(form.Command6.caption(), "Reset List");
}

void World::expect_in_one_piece() const {
    expect_flags_at_rest();
    expect_title_tells_the_truth();
    expect_window_unlocked();
}

void World::expect_flags_at_rest() const {
    EXPECT_FALSE(program.SwitchingSong);
    EXPECT_FALSE(program.AutoStarting);
    EXPECT_FALSE(program.StartingUp);
    EXPECT_FALSE(program.SliderSync);
    EXPECT_FALSE(program.SliderDragging);
    EXPECT_FALSE(program.FindSync);
    EXPECT_FALSE(program.DisplayBusy);
    EXPECT_FALSE(program.DelayActive);
    EXPECT_EQ(program.ResumePosition, 0);
}

}  // namespace zephyne::test
