// Plays one of the recently finished songs again, from the tray menu.
#pragma once

#include "engine/engine.h"
#include "engine/stage.h"

#include <cstddef>
#include <optional>

namespace zephyne {

class TraySongs {
  public:
    // Takes the five song entries of the menu.
    TraySongs(Stage& stage, Engine& engine);

  private:
    void mnuSong_Click(int number);
    void play(const RecentSong& song);
    void leave_current_song();
    FileResult<bool> show_folder(const std::string& folder);
    std::optional<std::size_t> row_of(const RecentSong& song) const;
    void start(const RecentSong& song, std::size_t row);

    Stage& stage_;
    Engine& engine_;
};

}  // namespace zephyne
