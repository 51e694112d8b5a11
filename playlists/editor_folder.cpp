#include "playlists/editor_folder.h"

#include "core/text/numbers.h"
#include "engine/listed_songs.h"

#include <utility>
#include <vector>

namespace zephyne {
namespace {

constexpr std::size_t kLongList = 10'000;

std::string counted(const ListBox& list, const char* what) {
    return decimal(static_cast<std::int64_t>(list.count())) + what;
}

}  // namespace

std::string playlist_count(const ListBox& playlist) {
    return counted(playlist, " items in playlist.");
}

EditorFolder::EditorFolder(Stage& stage, Form9& form, std::string& last_folder)
    : stage_(stage), form_(form), last_folder_(last_folder) {
    form_.Dir1.on_change = [this] { Dir1_Change(); };
    form_.Drive1.on_change = [this] { Drive1_Change(); };
}

void EditorFolder::go_to(const std::string& path) {
    if (form_.Dir1.set_path(path)) form_.Drive1.follow(form_.Dir1.path());
}

void EditorFolder::open() {
    const FlagGuard opening(opening_);
    go_to(stage_.form.Dir1.path());
    if (!last_folder_.empty()) go_to(last_folder_);
}

void EditorFolder::refreshem() {
    last_folder_ = form_.Dir1.path();
    const auto names = stage_.files.list_files(last_folder_).value_or(std::vector<std::string>());
    const bool is_long = names.size() > kLongList;
    if (is_long) stage_.events.show();
    auto songs = listed_songs(names, stage_.settings());
    if (is_long) stage_.events.show();
    form_.List1.set_items(std::move(songs));
    form_.Label10.set_caption(counted(form_.List1, " items in directory."));
    form_.Label11.set_caption(playlist_count(form_.List2));
}

void EditorFolder::Dir1_Change() {
    form_.Drive1.follow(form_.Dir1.path());
    if (opening_) return;
    refreshem();
    on_change();
}

void EditorFolder::Drive1_Change() {
    if (form_.Dir1.set_path(form_.Drive1.drive().root)) return;
    stage_.messages.ShowDlgMessage("Error - Drive May Be Unavailable.", 0, "Drive Error");
    form_.Drive1.follow(form_.Dir1.path());
}

}  // namespace zephyne
