// Which files of a folder are songs, and how lists name them.
#pragma once

#include "core/controls/list_rows.h"
#include "core/settings.h"

#include <string>
#include <vector>

namespace zephyne {

// The songs among these file names, in their order: MIDI files, and wave and video files where
// AllowWav is on. With Lowercase their names are shown capitalised, and kept as they really are
// beside that.
ListRows listed_songs(const std::vector<std::string>& names, const Settings& settings);

}  // namespace zephyne
