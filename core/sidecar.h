// The small files beside a song: its note and its volume.
#pragma once

#include "core/ports/file_system.h"

#include <string>
#include <string_view>

namespace zephyne {

struct Sidecar {
    std::string path;    // where it is, or where a new one belongs; "" when it can have none
    bool there = false;  // it exists
};

// The sidecar of a song, by its path and the sidecar's extension (".nte", ".vol"). One whose name
// differs in case is the song's too, unless the folder holds another song that differs from this
// one in case alone: then it may be the other's, and is left alone.
Sidecar find_sidecar(const FileSystem& files, const std::string& song_path,
                     std::string_view extension);

}  // namespace zephyne
