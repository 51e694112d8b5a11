// Which files of a folder are songs, and how lists name them.
#pragma once

#include "core/controls/list_rows.h"
#include "core/settings.h"

#include <string>
#include <string_view>
#include <vector>

namespace zephyne {

// Whether a file of that name is listed: a MIDI file, or with AllowWav a wave or video file.
bool is_listed(std::string_view name, const Settings& settings);

// With Lowercase, the name with its first character in upper case and the rest in lower case.
std::string shown_name(const std::string& name, const Settings& settings);

// The listed ones among these file names, in their order, each as shown and as it really is.
ListRows listed_songs(const std::vector<std::string>& names, const Settings& settings);

}  // namespace zephyne
