// The tray icon: its life, its clicks, its tooltip, and the entries of its menu that are about
// windows. The menu's entries for the player and the recent songs are in tray_player.h and
// tray_songs.h.
#pragma once

#include "core/ports/notification_area.h"
#include "core/ports/window_host.h"
#include "engine/engine.h"
#include "engine/stage.h"
#include "shell/tray_player.h"
#include "shell/tray_songs.h"

#include <cstdint>
#include <functional>

namespace zephyne {

class TrayMenu {
  public:
    TrayMenu(Stage& stage, Engine& engine, WindowHost& windows, NotificationArea& area);

    // Puts the icon up, with the menu as the player is at present; takes it away. Harmless when
    // that is so already.
    void load();
    void unload();
    bool loaded() const { return loaded_; }

    // Whether a hidden window can be reached by the icon: it is up, and the desktop shows it.
    bool reachable() { return loaded_ && area_.has_host(); }

    // Takes the main window off the screen in a way that it can come back from; hides it, unless
    // set. Called for "Hide", and when the desktop loses its notification area while the window is
    // hidden.
    std::function<void()> put_away;

    // "About...". The entry is disabled as long as there is nobody to show it.
    std::function<void()> show_about;

  private:
    enum class ShownBy { menu, double_click };

    void message(std::uint32_t message, std::uint32_t lParam);
    void left_button_released();
    void Timer1_Timer();
    void Timer2_Timer();
    void Show(ShownBy by);
    bool next_song_possible() const;
    std::string tooltip() const;
    std::string place_in_round() const;

    Stage& stage_;
    WindowHost& windows_;
    NotificationArea& area_;
    TrayPlayer player_;
    TraySongs songs_;
    NotifyIconData data_;
    std::int16_t clicks_ = 0;  // on the icon since the double-click time began
    bool loaded_ = false;
};

}  // namespace zephyne
