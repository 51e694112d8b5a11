// Removing all files of a kind from a folder.
#pragma once

#include "core/ports/file_system.h"

#include <string>
#include <string_view>

namespace zephyne {

// Removes the files of a folder (not of the folders in it) whose last four characters are the
// extension, in upper or lower case. What cannot be removed stays.
void remove_files_ending(FileSystem& files, const std::string& folder, std::string_view extension);

}  // namespace zephyne
