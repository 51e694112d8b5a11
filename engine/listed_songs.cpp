#include "engine/listed_songs.h"

#include "core/paths.h"
#include "core/text/letter_case.h"

#include <utility>

namespace zephyne {

bool is_listed(std::string_view name, const Settings& settings) {
    const SongKind kind = song_kind(name);
    return kind == SongKind::midi || (kind != SongKind::none && settings.AllowWav == 1);
}

std::string shown_name(const std::string& name, const Settings& settings) {
    return settings.Lowercase == 1 ? capitalised(name) : name;
}

std::vector<ListItem> listed_songs(std::vector<std::string> names, const Settings& settings) {
    std::vector<ListItem> songs;
    songs.reserve(names.size());
    for (std::string& name : names) {
        if (!is_listed(name, settings)) continue;
        std::string shown = shown_name(name, settings);
        if (shown == name) {
            songs.push_back({std::move(shown), {}});
        } else {
            songs.push_back({std::move(shown), std::move(name)});
        }
    }
    return songs;
}

}  // namespace zephyne
