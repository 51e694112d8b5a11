// The playlist in the editor: what the keys between the two sides do, and what else adds to it.
#pragma once

#include "core/sheets/form9.h"
#include "engine/stage.h"
#include "playlists/playlist_lists.h"

#include <string>
#include <vector>

namespace zephyne {

class EditedPlaylist {
  public:
    // Shows the main window's song list, and edits its entry lines from now on.
    EditedPlaylist(Stage& stage, Form9& form);

    const PlaylistLists& lists() const { return lists_; }
    PlaylistLists& lists() { return lists_; }

    // Whoever changes the playlist does so between these two. The second shows the new count.
    void playlistdisable();
    void playlistenable();

    // Adds entry lines as they are, each to its place.
    void add(const std::vector<std::string>& entry_lines) { lists_.add(entry_lines); }

    // Removes all but the first of entries with exactly the same name.
    void Killdupes() { lists_.Killdupes(); }

  private:
    void Command2_Click();
    void Command7_Click();
    void Command3_Click();
    void Command6_Click();
    void List1_DblClick();

    // Adds songs of the current folder by their rows; beeps for each that no entry line can hold.
    void addtolist(const std::vector<std::size_t>& songs);
    void add_songs(const std::vector<std::size_t>& songs);

    Stage& stage_;
    Form9& form_;
    PlaylistLists lists_;
    Control* focused_ = nullptr;  // before playlistdisable()
};

}  // namespace zephyne
