// Which files are songs to the user, and the names under which he sees them.
#pragma once

#include "core/settings.h"

#include <string>
#include <string_view>

namespace zephyne {

// Whether song lists show a file of that name: MIDI files always, WAV and AVI files with AllowWav.
bool is_listed_song(std::string_view name, const Settings& settings);

// With Lowercase, the name with its first character in upper case and the rest in lower case.
std::string shown_song_name(const std::string& name, const Settings& settings);

}  // namespace zephyne
