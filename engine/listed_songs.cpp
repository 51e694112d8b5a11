#include "engine/listed_songs.h"

#include "core/paths.h"
#include "core/text/letter_case.h"

#include <string_view>

namespace zephyne {
namespace {

bool is_listed(SongKind kind, const Settings& settings) {
    switch (kind) {
        case SongKind::midi:
            return true;
        case SongKind::wave:
        case SongKind::video:
            return settings.AllowWav == 1;
        case SongKind::none:
            break;
    }
    return false;
}

}  // namespace

ListRows listed_songs(const std::vector<std::string>& names, const Settings& settings) {
    const bool lower = settings.Lowercase == 1;
    ListRows songs;
    songs.reserve(names.size());
    for (const std::string& name : names) {
        if (!is_listed(song_kind(name), settings)) continue;
        const std::string shown = lower ? capitalised(name) : name;
        songs.append({shown, shown == name ? std::string_view() : name});
    }
    return songs;
}

}  // namespace zephyne
