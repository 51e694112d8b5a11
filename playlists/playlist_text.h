// The text of a playlist file: a header line, then one entry line ("name|folder") a song. The page
// docs/formats/playlist.md describes it byte by byte.
#pragma once

#include "core/controls/list_rows.h"
#include "core/paths.h"

#include <string>
#include <string_view>
#include <vector>

namespace zephyne {

enum class PlaylistState {
    complete,
    empty,         // not even a header
    damaged,       // a line has no "|"; the entries before that line are there
    wrong_header,  // no playlist
};

struct PlaylistText {
    PlaylistState state = PlaylistState::empty;
    std::vector<std::string> entry_lines;  // in the order of the file
};

// Reads the bytes of a playlist file, whatever they are. On a file system of the posix style lines
// with a "/" folder are kept byte by byte, because names are bytes there; all others come from the
// old platform, and are taken for Windows-1252 where they are not UTF-8.
PlaylistText read_playlist_text(std::string_view bytes, PathStyle style);

// The bytes of a file with these rows as its entry lines.
std::string playlist_text_of(const ListRows& entry_lines);

}  // namespace zephyne
