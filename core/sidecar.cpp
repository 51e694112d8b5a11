#include "core/sidecar.h"

#include "core/text/letter_case.h"

#include <algorithm>

namespace zephyne {
namespace {

bool has_twin(const FileSystem& files, const std::string& song_path) {
    const SplitPath song = split_path(song_path, files.path_style());
    const auto names = files.list_files(song.folder.empty() ? files.current_folder() : song.folder);
    return names && std::any_of(names->begin(), names->end(), [&](const std::string& other) {
               return other != song.name && equal_ignoring_case(other, song.name);
           });
}

}  // namespace

Sidecar find_sidecar(const FileSystem& files, const std::string& song_path,
                     std::string_view extension) {
    std::string path = sidecar_path(song_path, extension);
    if (path.empty()) return {};
    const auto found = files.resolve(path);
    if (!found) return {std::move(path), false};
    const PathStyle style = files.path_style();
    const bool as_written = split_path(*found, style).name == split_path(path, style).name;
    if (!as_written && has_twin(files, song_path)) return {std::move(path), false};
    return {*found, true};
}

}  // namespace zephyne
