#include "platform/sound/sound_font_search.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace zephyne {
namespace {

namespace fs = std::filesystem;

bool is_sound_font(const fs::path& path) {
    std::string extension = path.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    std::error_code ignored;
    return (extension == ".sf2" || extension == ".sf3") && fs::is_regular_file(path, ignored);
}

std::vector<fs::path> contents_of(const fs::path& folder) {
    std::vector<fs::path> found;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        found.push_back(entry->path());
    }
    std::sort(found.begin(), found.end());
    return found;
}

}  // namespace

SoundFontPlaces usual_sound_font_places() {
    SoundFontPlaces places;
    const char* const data_home = std::getenv("XDG_DATA_HOME");
    const char* const home = std::getenv("HOME");
    if (data_home && *data_home) {
        places.files_and_folders.push_back(std::string(data_home) + "/soundfonts");
    } else if (home && *home) {
        places.files_and_folders.push_back(std::string(home) + "/.local/share/soundfonts");
    }
    for (const char* place :
         {"/usr/share/sounds/sf2/default-GM.sf2", "/usr/share/soundfonts/default.sf2",
          "/usr/share/sounds/sf3/default-GM.sf3", "/usr/share/sounds/sf2", "/usr/share/soundfonts",
          "/usr/share/sounds/sf3"}) {
        places.files_and_folders.emplace_back(place);
    }
    return places;
}

std::vector<std::string> sound_fonts_in(const SoundFontPlaces& places) {
    std::vector<std::string> found;
    const auto take = [&found](const fs::path& path) {
        const std::string name = path.string();
        const bool known = std::find(found.begin(), found.end(), name) != found.end();
        if (!known && is_sound_font(path)) found.push_back(name);
    };
    for (const std::string& place : places.files_and_folders) {
        std::error_code ignored;
        if (fs::is_directory(place, ignored)) {
            for (const fs::path& path : contents_of(place)) take(path);
        } else {
            take(place);
        }
    }
    return found;
}

}  // namespace zephyne
