#include "playlists/playlist_file.h"

#include <utility>

namespace zephyne {
namespace {

const FileChoice kPlaylistFiles{"Playlist Files (*.lst)|*.lst|All Files (*.*)|*.*", ".lst"};

}  // namespace

void PlaylistFile::tell(std::string text, std::string title) {
    stage_.messages.ShowDlgMessage(std::move(text), 0, std::move(title));
}

std::optional<PlaylistText> PlaylistFile::choose_and_read() {
    const auto path = dialogs_.open_file(kPlaylistFiles);
    if (!path || stage_.program.Ending) return std::nullopt;
    if (path->empty()) {
        tell("Please Provide a Filename to Load.", "Error");
        return std::nullopt;
    }
    constexpr std::size_t limit = FileSystem::text_file_limit;
    const auto bytes = stage_.files.read_file(*path, limit + 1);
    PlaylistText playlist;
    if (bytes && bytes->size() <= limit) {
        playlist = read_playlist_text(*bytes, stage_.files.path_style());
    }
    if (playlist.state == PlaylistState::empty) {
        tell("Error Loading Playlist", "Error");
        return std::nullopt;
    }
    if (playlist.state == PlaylistState::wrong_header) {
        tell("Invalid Playlist", "Error");
        return std::nullopt;
    }
    return playlist;
}

bool PlaylistFile::fill(PlaylistLists& lists, PlaylistText playlist) {
    drives_.apply(playlist.entry_lines);
    if (stage_.program.Ending) return false;
    lists.clear();
    lists.add(playlist.entry_lines);
    if (playlist.state == PlaylistState::complete) return true;
    tell("Error Loading Playlist", "Error");
    return false;
}

void PlaylistFile::save(const PlaylistLists& lists) {
    if (lists.empty()) return stage_.beeper.beep();
    const auto path = dialogs_.save_file(kPlaylistFiles);
    if (!path || path->empty() || stage_.program.Ending) return;
    const bool is_there = stage_.files.check_readable(*path).has_value();
    if (is_there && stage_.messages.ShowDlgMessage("File Exists - Overwrite it?", 1,
                                                   "Verify Save") != Answer::yes) {
        return;
    }
    // The file asked about, in whatever case its name is.
    const std::string target = stage_.files.resolve(*path).value_or(*path);
    if (stage_.files.replace_file(target, playlist_text_of(lists.lines().items()))) {
        tell("Playlist Saved Successfully!", "Save Complete");
    } else {
        tell("Error Saving Playlist", "Error");
    }
}

}  // namespace zephyne
