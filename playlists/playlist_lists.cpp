#include "playlists/playlist_lists.h"

#include "core/playlist_entry.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace zephyne {
namespace {

constexpr std::size_t kLongList = 10'000;

std::string_view name_of(const ListRow& line) {
    return split_entry_line(line.text).first;
}

}  // namespace

std::string entry_line(std::string_view name, std::string_view folder) {
    std::string line;
    line.reserve(name.size() + 1 + folder.size());
    line.append(name).append(1, '|').append(folder);
    const bool splits_right = split_entry_line(line) == std::pair(name, folder);
    if (!splits_right || line.find_first_of("\r\n") != std::string::npos) line.clear();
    return line;
}

std::vector<std::string_view> entry_names(const ListRows& songs_of_folder) {
    std::unordered_map<std::string_view, int> shown;
    const bool differ = std::any_of(songs_of_folder.begin(), songs_of_folder.end(),
                                    [](const ListRow& song) { return !song.real_name.empty(); });
    for (const ListRow& song : songs_of_folder) {
        if (differ) ++shown[song.text];
    }
    std::vector<std::string_view> names;
    names.reserve(songs_of_folder.size());
    for (const ListRow& song : songs_of_folder) {
        names.push_back(differ && shown[song.text] > 1 ? song.real() : song.text);
    }
    return names;
}

void PlaylistLists::show_progress() {
    if (count() > kLongList) events_.show();
}

void PlaylistLists::clear() {
    names_.clear();
    lines_.clear();
}

void PlaylistLists::add(const std::vector<std::string>& entry_lines) {
    ListRows lines = lines_.items();
    lines.reserve(lines.size() + entry_lines.size());
    for (const std::string& line : entry_lines) lines.append({line, {}});
    lines_.set_items(std::move(lines));
    show_progress();

    ListRows names;
    names.reserve(count());
    for (const ListRow& line : lines_.items()) names.append({name_of(line), {}});
    names_.set_items(std::move(names), Sorting::done);
    show_progress();
}

void PlaylistLists::remove(const std::vector<std::size_t>& ascending) {
    names_.remove_rows(ascending);
    lines_.remove_rows(ascending);
    show_progress();
}

void PlaylistLists::Killdupes() {
    std::vector<std::size_t> again;
    const ListRows& names = names_.items();
    for (std::size_t row = 1; row < names.size(); ++row) {
        if (names[row].text == names[row - 1].text) again.push_back(row);
    }
    remove(again);
}

void PlaylistLists::remove_selected() {
    remove(names_.selected_rows());
}

bool PlaylistLists::in_step() const {
    if (names_.count() != lines_.count()) return false;
    for (std::size_t row = 0; row < names_.count(); ++row) {
        if (names_.item(row).text != name_of(lines_.item(row))) return false;
    }
    return true;
}

}  // namespace zephyne
