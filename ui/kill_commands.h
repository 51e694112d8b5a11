// "Kill Note Files" and "Kill Vol.Settings Files": remove what was kept beside the songs of the
// current folder.
#pragma once

#include "engine/stage.h"

#include <functional>

namespace zephyne {

class KillCommands {
  public:
    // unload_notes closes the Notes window, which would write its note again.
    KillCommands(Stage& stage, const std::function<void()>& unload_notes)
        : stage_(stage), unload_notes_(unload_notes) {}

    // Both ask first, refuse in playlist-based mode, and pass over files that cannot be removed.
    // The folder is that of the question, even if a song of another one is chosen meanwhile.
    void kill_notes() const;
    void kill_volumes() const;

  private:
    // `before` runs between the answer Yes and the deletion.
    void kill(const std::string& extension, const std::string& question,
              const std::function<void()>& before) const;

    Stage& stage_;
    const std::function<void()>& unload_notes_;
};

}  // namespace zephyne
