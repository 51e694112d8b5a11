// Quick tips: one short hint at a time, out of a file that the user may change.
#pragma once

#include "core/ports/profile_file.h"
#include "core/ports/services.h"
#include "core/ports/window_host.h"
#include "core/sheets/quick_tip.h"
#include "engine/stage.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace zephyne {

class QuickTips {
  public:
    // Takes the main window's key "Tips...".
    QuickTips(Stage& stage, WindowHost& windows, ProfileFile& profiles, Clipboard& clipboard);

    // Whether the user wants a tip at each start; and the wish itself, which is kept in the file.
    bool tips_at_start();
    void set_tips_at_start(bool wanted);

    // Opens the window, anew if it is open, with the next tip. Not modal.
    void show();

    // Closes it, and keeps the rest as it is.
    void unload();

    // The program's help, at its contents. The key "Help" is disabled unless there is one.
    std::function<void()> show_help;

  private:
    void Form_Load(Quick_Tip& form);
    std::string ShowNextTip();
    std::string ShowPreviousTip();
    std::string ReadTipValue(const std::string& key) const;
    bool WriteTipValue(const std::string& key, const std::string& value);
    std::string current() const;
    void set_current(const std::string& key);
    std::string tip_file() const;
    void fetch_tip_file();

    Stage& stage_;
    WindowHost& windows_;
    ProfileFile& profiles_;
    Clipboard& clipboard_;
    std::unique_ptr<Quick_Tip> form_;

    // Where a file that cannot be written would stand.
    std::optional<std::string> unwritten_current_;
};

}  // namespace zephyne
