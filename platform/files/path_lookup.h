// Finding a path on a disk that tells upper from lower case, for people and files that do not.
#pragma once

#include "core/ports/file_system.h"

#include <string>

namespace zephyne {

// The path with each part that is not there as written replaced by the only name in its folder
// that equals it without regard to case. Fails when a part has no such name, or more than one.
// Nothing is remembered between calls: each part not found as written costs one reading of its
// folder, so try the path itself first.
FileResult<std::string> find_in_any_case(const std::string& path);

// The path made absolute, without "." and "..", empty parts and a separator at its end. The piece
// before a ".." must exist: behind a link, that is another folder than the one written before it.
FileResult<std::string> normalised(const std::string& path);

// The working folder of the process; "/" when it has been deleted.
std::string working_folder();

}  // namespace zephyne
