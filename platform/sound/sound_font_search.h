// Finds the sound fonts of this machine.
#pragma once

#include <string>
#include <vector>

namespace zephyne {

struct SoundFontPlaces {
    // Each is a sound font, or a folder of which all sound fonts are taken, by their names.
    std::vector<std::string> files_and_folders;
};

// The usual places: the user's folder for sound fonts first, then the system's defaults, then
// whatever lies beside those. Reads XDG_DATA_HOME and HOME from the environment.
SoundFontPlaces usual_sound_font_places();

// The ordinary files among them that are called *.sf2 or *.sf3, the most wanted first, none
// twice. Folders that cannot be read are passed over. Any thread.
std::vector<std::string> sound_fonts_in(const SoundFontPlaces& places);

}  // namespace zephyne
