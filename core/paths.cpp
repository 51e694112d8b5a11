#include "core/paths.h"

#include "core/text/letter_case.h"

namespace zephyne {

char separator(PathStyle style) {
    return style == PathStyle::posix ? '/' : '\\';
}

std::string with_separator(std::string folder, PathStyle style) {
    if (!folder.ends_with(separator(style))) folder += separator(style);
    return folder;
}

std::string joined(std::string folder, std::string_view name, PathStyle style) {
    return with_separator(std::move(folder), style).append(name);
}

SplitPath split_path(std::string_view path, PathStyle style) {
    const auto last = path.find_last_of(style == PathStyle::posix ? "/" : "\\:");
    const std::size_t begin_of_name = last == std::string_view::npos ? 0 : last + 1;
    return {std::string(path.substr(0, begin_of_name)), std::string(path.substr(begin_of_name))};
}

std::string extension_of(std::string_view path) {
    return lower_case(path.substr(path.size() < 4 ? 0 : path.size() - 4));
}

SongKind song_kind(std::string_view path) {
    const std::string extension = extension_of(path);
    if (extension == ".mid" || extension == ".rmi") return SongKind::midi;
    if (extension == ".wav") return SongKind::wave;
    if (extension == ".avi") return SongKind::video;
    return SongKind::none;
}

std::string sidecar_path(std::string_view song_path, std::string_view extension) {
    if (song_path.size() < 4) return {};
    return std::string(song_path.substr(0, song_path.size() - 4)).append(extension);
}

}  // namespace zephyne
