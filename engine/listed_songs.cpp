#include "engine/listed_songs.h"

#include "core/paths.h"
#include "core/text/letter_case.h"

#include <string_view>

namespace zephyne {

bool is_listed(std::string_view name, const Settings& settings) {
    const SongKind kind = song_kind(name);
    return kind == SongKind::midi || (kind != SongKind::none && settings.AllowWav == 1);
}

std::string shown_name(const std::string& name, const Settings& settings) {
    return settings.Lowercase == 1 ? capitalised(name) : name;
}

ListRows listed_songs(const std::vector<std::string>& names, const Settings& settings) {
    ListRows songs;
    songs.reserve(names.size());
    for (const std::string& name : names) {
        if (!is_listed(name, settings)) continue;
        const std::string shown = shown_name(name, settings);
        songs.append({shown, shown == name ? std::string_view() : name});
    }
    return songs;
}

}  // namespace zephyne
