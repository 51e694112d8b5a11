// The system's error numbers in the words of the program.
#pragma once

#include "core/ports/file_system.h"

namespace zephyne {

// The error for an errno value that a call on a file left behind.
FileError file_error(int error_number);

// The same where the call was on a folder: a missing one is a path that is not found.
FileError folder_error(int error_number);

// For what is there but is not an ordinary file: a folder, pipe, socket or device.
FileError not_an_ordinary_file();

}  // namespace zephyne
