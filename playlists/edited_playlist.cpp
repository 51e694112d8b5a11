#include "playlists/edited_playlist.h"

#include "playlists/editor_folder.h"

#include <array>
#include <numeric>
#include <utility>

namespace zephyne {
namespace {

std::array<Control*, 9> editing_controls(Form9& f) {
    return {&f.Command2, &f.Command3, &f.Command4, &f.Command5, &f.Command6,
            &f.Command7, &f.Drive1,   &f.Dir1,     &f.List1};
}

}  // namespace

EditedPlaylist::EditedPlaylist(Stage& stage, Form9& form)
    : stage_(stage), form_(form), lists_(form.List2, stage.form.List3, stage.events) {
    form_.List2.set_items(stage_.form.File1.items(), Sorting::done);
    form_.Command2.set_on_click([this] { Command2_Click(); });
    form_.Command7.set_on_click([this] { Command7_Click(); });
    form_.Command3.set_on_click([this] { Command3_Click(); });
    form_.Command6.set_on_click([this] { Command6_Click(); });
    form_.List1.on_double_click = [this] { List1_DblClick(); };
}

// A disabled control cannot keep the keyboard, and it is to be where it was afterwards.
void EditedPlaylist::playlistdisable() {
    focused_ = form_.focused();
    for (Control* control : editing_controls(form_)) control->set_enabled(false);
}

void EditedPlaylist::playlistenable() {
    for (Control* control : editing_controls(form_)) control->set_enabled(true);
    if (focused_) focused_->set_focus();
    form_.Label11.set_caption(playlist_count(form_.List2));
}

void EditedPlaylist::addtolist(const std::vector<std::size_t>& songs) {
    const std::string folder = with_separator(form_.Dir1.path(), stage_.files.path_style());
    const std::vector<std::string_view> names = entry_names(form_.List1.items());
    std::vector<std::string> lines;
    lines.reserve(songs.size());
    for (const std::size_t song : songs) {
        std::string line = entry_line(names[song], folder);
        if (line.empty()) {
            stage_.beeper.beep();
        } else {
            lines.push_back(std::move(line));
        }
    }
    if (!lines.empty()) add(lines);
}

void EditedPlaylist::add_songs(const std::vector<std::size_t>& songs) {
    if (form_.List1.empty()) return;
    playlistdisable();
    addtolist(songs);
    if (!songs.empty()) Killdupes();
    playlistenable();
}

void EditedPlaylist::Command2_Click() {
    add_songs(form_.List1.selected_rows());
}

void EditedPlaylist::Command7_Click() {
    std::vector<std::size_t> all(form_.List1.count());
    std::iota(all.begin(), all.end(), std::size_t{0});
    add_songs(all);
}

void EditedPlaylist::List1_DblClick() {
    if (form_.List1.selected()) add_songs({*form_.List1.selected()});
}

void EditedPlaylist::Command3_Click() {
    if (lists_.empty()) return;
    playlistdisable();
    lists_.remove_selected();
    playlistenable();
}

void EditedPlaylist::Command6_Click() {
    if (lists_.empty()) return;
    const Answer answer = stage_.messages.ShowDlgMessage(
        "\r\nAre you sure you want to clear the playlist?  You won't be able to recover from this "
        "operation.",
        1, "Important...");
    if (answer != Answer::yes) return;
    playlistdisable();
    lists_.clear();
    playlistenable();
}

}  // namespace zephyne
