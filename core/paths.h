// Paths as bytes, in the style of the file system they belong to.
#pragma once

#include <string>
#include <string_view>

namespace zephyne {

// posix: "/" separates, every other byte is part of a name.
// windows: "\" separates, and a drive letter with ":" may come first.
enum class PathStyle { posix, windows };

char separator(PathStyle style);

// The folder, with a separator at its end unless it has one.
std::string with_separator(std::string folder, PathStyle style);

// The folder joined with a file name.
std::string joined(std::string folder, std::string_view name, PathStyle style);

// A path split behind its last separator (also behind a drive's ":" in the windows style). The
// folder keeps that last character and is empty when there is none.
struct SplitPath {
    std::string folder;
    std::string name;
};
SplitPath split_path(std::string_view path, PathStyle style);

// The last four characters in lower case, which tell what kind of song a file is.
std::string extension_of(std::string_view path);

// What a file is played as. WAV and AVI files count as songs only where the user allows them;
// that is the caller's question.
enum class SongKind { none, midi, wave, video };
SongKind song_kind(std::string_view path);

// The song's path with its last four characters replaced by `extension` (".nte", ".vol"). Empty
// when the path is shorter than that.
std::string sidecar_path(std::string_view song_path, std::string_view extension);

}  // namespace zephyne
