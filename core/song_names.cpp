#include "core/song_names.h"

#include "core/paths.h"
#include "core/text/letter_case.h"

namespace zephyne {

bool is_listed_song(std::string_view name, const Settings& settings) {
    const SongKind kind = song_kind(name);
    return kind == SongKind::midi || (kind != SongKind::none && settings.AllowWav == 1);
}

std::string shown_song_name(const std::string& name, const Settings& settings) {
    return settings.Lowercase == 1 ? capitalised(name) : name;
}

}  // namespace zephyne
