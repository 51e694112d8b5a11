#include "playlists/drive_search_window.h"

#include "core/sheets/form10.h"
#include "core/text/numbers.h"
#include "core/window_placing.h"
#include "engine/listed_songs.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace zephyne {
namespace {

constexpr const char* kInstructions =
    "Select a drive to catalog and hit the Find button.  Once cataloging is complete, select the "
    "files you want to add to the playlist and click Done.";

// Items between two reports of progress, and the longest time that a slow disk may put one off.
constexpr int kItems = 100;
constexpr Milliseconds kLongestSilence = 40;

std::string files_found(std::size_t count) {
    return " " + decimal(static_cast<std::int64_t>(count)) + " Files Found.";
}

// The keys that rest while a search is running.
std::array<Button*, 3> result_keys(Form10& f) {
    return {&f.Command1, &f.Command3, &f.Command4};
}

}  // namespace

// One opening of the window.
struct DriveSearchWindow::Opened {
    Opened(Stage& stage, EditedPlaylist& edited)
        : form(stage.files), results(form.List2, form.List3, stage.events), playlist(edited) {}

    Form10 form;
    PlaylistLists results;
    EditedPlaylist& playlist;
    bool searching = false;
    bool cancel_requested = false;
    int items = 0;              // since the last report of progress
    Milliseconds reported = 0;  // the moment of that
};

DriveSearchWindow::DriveSearchWindow(Stage& stage, const Scheduler& scheduler, WindowHost& windows)
    : stage_(stage), scheduler_(scheduler), windows_(windows) {}

void DriveSearchWindow::show(EditedPlaylist& playlist) {
    Opened window(stage_, playlist);
    Form_Load(window);
    windows_.create(window.form);
    windows_.run_modal(window.form);
    windows_.destroy(window.form);
}

void DriveSearchWindow::Form_Load(Opened& window) {
    Form10& f = window.form;
    f.load();
    centre(f, windows_);
    f.Label1.set_caption(kInstructions);
    f.Command1.set_on_click([this, &window] { Command1_Click(window); });
    f.Command2.set_on_click([this, &window] { Command2_Click(window); });
    const auto on_hidden_list = [&f](void (ListBox::*change)()) {
        if (f.List2.empty()) return;
        f.List2.set_visible(false);
        (f.List2.*change)();
        f.List2.set_visible(true);
    };
    f.Command3.set_on_click([=] { on_hidden_list(&ListBox::select_all); });
    f.Command4.set_on_click([=] { on_hidden_list(&ListBox::select_none); });
}

// "Done"
void DriveSearchWindow::Command1_Click(Opened& window) {
    Form10& f = window.form;
    window.playlist.playlistdisable();
    for (Button* key : result_keys(f)) key->set_enabled(false);
    f.Command2.set_enabled(false);
    std::vector<std::string> lines;
    for (const std::size_t row : f.List2.selected_rows())
        lines.emplace_back(f.List3.item(row).text);
    if (!lines.empty()) window.playlist.add(lines);
    window.playlist.Killdupes();
    window.playlist.playlistenable();
    f.request_unload(CloseReason::program);
}

// "Find Files...", "Cancel Search"
void DriveSearchWindow::Command2_Click(Opened& window) {
    if (window.searching) {
        window.cancel_requested = true;
    } else {
        search(window);
    }
}

void DriveSearchWindow::search(Opened& window) {
    Form10& f = window.form;
    const FlagGuard searching(window.searching);
    window.cancel_requested = false;
    window.results.clear();
    for (Button* key : result_keys(f)) key->set_enabled(false);
    f.Command2.set_caption("Cancel Search");
    f.Label1.set_caption("Searching for Files...");
    stage_.events.pump();
    window.reported = scheduler_.now();

    DriveSearch walk(stage_.files, stage_.settings(),
                     [&](SearchStep step) { return goes_on(window, walk.found(), step); });
    if (walk.run(f.Drive1.drive().root)) list(window, walk.found());

    for (Button* key : result_keys(f)) key->set_enabled(true);
    f.Command2.set_caption("Find Files...");
    f.Label1.set_caption(kInstructions);
    f.Label2.set_caption(files_found(f.List2.count()));
}

// A window that is closed, or a program that ends, ends the search as its key does.
bool DriveSearchWindow::goes_on(Opened& window, const FoundSongs& found, SearchStep step) {
    const bool due = step == SearchStep::other
                         ? scheduler_.now() - window.reported >= kLongestSilence
                         : ++window.items == kItems;
    if (due) report_progress(window, found);
    return !window.cancel_requested && window.form.loaded() && !stage_.program.Ending;
}

void DriveSearchWindow::report_progress(Opened& window, const FoundSongs& found) {
    window.items = 0;
    window.form.Label2.set_caption(files_found(found.songs.size()));
    stage_.events.pump();
    window.reported = scheduler_.now();
}

// Of songs with the same name one is listed: the one whose folder sorts first.
void DriveSearchWindow::list(Opened& window, const FoundSongs& found) {
    std::vector<std::string> lines;
    lines.reserve(found.songs.size());
    for (auto song = found.songs.begin(); song != found.songs.end();) {
        const std::string& folder = found.folders[song->folder];
        std::vector<std::string> files;
        for (const auto number = song->folder; song != found.songs.end(); ++song) {
            if (song->folder != number) break;
            files.push_back(song->name);
        }
        const ListRows songs = listed_songs(files, stage_.settings());
        for (const std::string_view name : entry_names(songs)) {
            std::string line = entry_line(name, folder);
            if (line.empty()) {
                stage_.beeper.beep();
            } else {
                lines.push_back(std::move(line));
            }
        }
    }
    window.results.add(lines);
    window.results.Killdupes();
}

}  // namespace zephyne
