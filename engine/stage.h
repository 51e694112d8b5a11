// What every procedure of the player acts on: the shared state, the main window, the device, and
// the ports. Built once by app/ (or by a test) and outliving the engine.
#pragma once

#include "core/ports/file_system.h"
#include "core/ports/services.h"
#include "core/program.h"
#include "core/scheduler.h"
#include "core/sheets/form1.h"
#include "core/sheets/tray_form.h"
#include "engine/media_device.h"

#include <functional>
#include <string>
#include <utility>

namespace zephyne {

// What the rooms above do for a song. An empty function is a service that is not there.
struct SongServices {
    std::function<void(const std::string& song_path)> show_note;  // the song has one: open it
    std::function<void(const std::string& song_path)> apply_remembered_volume;
    std::function<void()> getsonginfo;      // the summary of the current song, into Text1
    std::function<void()> release_presets;  // no preset key stays down
    std::function<void()> setvolume;        // the sound follows the volume sliders
};

struct Stage {
    Program& program;
    Form1& form;
    TrayForm& tray;
    MediaDevice& device;
    FileSystem& files;
    EventPump& events;
    Messages& messages;
    Beeper& beeper;
    Random& random;
    SongServices services{};

    Settings& settings() const { return program.settings; }
    bool shows_tray() const { return program.settings.ShowTray == 1; }
};

// Sets a flag for as long as it lives; for steps in which every way out clears it. A step inside a
// step that has set the same flag leaves it set.
class FlagGuard {
  public:
    explicit FlagGuard(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
    ~FlagGuard() { flag_ = before_; }
    FlagGuard(const FlagGuard&) = delete;
    FlagGuard& operator=(const FlagGuard&) = delete;

  private:
    bool& flag_;
    bool before_;
};

}  // namespace zephyne
