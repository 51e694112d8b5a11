// The left side of the playlist editor: a drive, a folder of it, and the songs there.
#pragma once

#include "core/sheets/form9.h"
#include "engine/stage.h"

#include <functional>
#include <string>

namespace zephyne {

class EditorFolder {
  public:
    // `last_folder` is where the editor was last, "" at first; it is kept up to date.
    EditorFolder(Stage& stage, Form9& form, std::string& last_folder);

    // Begins in the folder of the last time, else in the main window's; lists nothing yet.
    void open();

    // Lists the songs of the current folder and shows both counts.
    void refreshem();

    // The folder has changed, and is listed.
    std::function<void()> on_change;

  private:
    void Dir1_Change();
    void Drive1_Change();
    void go_to(const std::string& path);

    Stage& stage_;
    Form9& form_;
    std::string& last_folder_;
    bool opening_ = false;
};

// The text of Label11 for a playlist.
std::string playlist_count(const ListBox& playlist);

}  // namespace zephyne
