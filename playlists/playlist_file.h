// Playlist files as the user meets them: the dialogs, the messages, and the steps in between.
//
// The main window and the editor read alike; what they do around it is theirs.
#pragma once

#include "core/ports/file_dialogs.h"
#include "engine/stage.h"
#include "playlists/drive_mapping.h"
#include "playlists/playlist_lists.h"
#include "playlists/playlist_text.h"

#include <optional>
#include <string>

namespace zephyne {

class PlaylistFile {
  public:
    PlaylistFile(Stage& stage, FileDialogs& dialogs)
        : stage_(stage), dialogs_(dialogs), drives_(stage.files, dialogs) {}

    // Lets the user choose a playlist, and reads it. Nothing where that was cancelled, or where it
    // failed and the user has been told.
    std::optional<PlaylistText> choose_and_read();

    // Fills the lists with what was read instead of what they hold. False where the file was
    // damaged: the entries before the damage are in the lists, and the user has been told.
    bool fill(PlaylistLists& lists, PlaylistText playlist);

    // Lets the user choose a file and writes the lists to it. Beeps where they are empty. The file
    // that was there is replaced in one step, so that a failure leaves it as it was.
    void save(const PlaylistLists& lists);

  private:
    void tell(std::string text, std::string title);

    Stage& stage_;
    FileDialogs& dialogs_;
    DriveMapping drives_;
};

}  // namespace zephyne
