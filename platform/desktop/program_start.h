// What the program learns from the way it was started: where its own files are, and which song or
// playlist it shall open.
#pragma once

#include "core/program.h"

#include <span>
#include <string>
#include <vector>

namespace zephyne {

// What the choice of folders depends on. Empty where the system does not tell.
struct StartSurroundings {
    std::string executable_folder;
    std::string home_override;             // ZEPHYNE_HOME
    std::string user_configuration;        // XDG_CONFIG_HOME, or its customary place
    std::vector<std::string> system_data;  // XDG_DATA_DIRS, or their customary places
};
StartSurroundings start_surroundings();

// The program's folders. With the data files beside the executable (a build tree, a portable
// folder) that is the one for all. Else settings live in the user's configuration, in a folder
// "zephyne", and the data files are looked for where an installation puts them: in
// "share/zephyne" beside the folder of the executable, then in the system's data folders. An
// overriding home takes the place of the folder for settings in both cases.
//
// The folder for settings is created where it is missing; where that fails, writing the settings
// will say so. `installed` is empty when there are no data files anywhere.
ProgramFolders program_folders(const FileSystem& files, const StartSurroundings& surroundings);

// The command line as one text: the arguments (those behind the program's name), joined by blanks.
// The relative path of a file or folder that is there becomes absolute, so that it means the same
// to another copy of the program; thus "--help" stays what it is unless a file is called so. Empty,
// as without arguments, for "-session ID", with which a session manager restores the program.
std::string command_line(const FileSystem& files, std::span<const char* const> arguments);

}  // namespace zephyne
