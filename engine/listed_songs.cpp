#include "engine/listed_songs.h"

#include "core/paths.h"
#include "core/text/letter_case.h"

#include <utility>

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

std::vector<ListItem> listed_songs(std::vector<std::string> names, const Settings& settings) {
    const bool lower = settings.Lowercase == 1;
    std::vector<ListItem> songs;
    songs.reserve(names.size());
    for (std::string& name : names) {
        if (!is_listed(song_kind(name), settings)) continue;
        std::string shown = lower ? capitalised(name) : name;
        if (shown == name) {
            songs.push_back({std::move(shown), {}});
        } else {
            songs.push_back({std::move(shown), std::move(name)});
        }
    }
    return songs;
}

}  // namespace zephyne
