// The layouts of the main window: wide or narrow, folder or playlist, the compact queue player,
// with or without a taskbar button, its LED colour and its tooltips.
#pragma once

#include "core/ports/window_host.h"
#include "engine/stage.h"

namespace zephyne {

class MainWindowLayout {
  public:
    // Takes the main window's key "Hide".
    MainWindowLayout(Stage& stage, WindowHost& windows);

    void wide();
    void narrow();
    void follow_extended();  // wide or narrow, as Extended says

    void folder_based();
    void playlist_based();
    void compact();     // the queue player
    void led_colour();  // of all LED texts, by Display
    void settips();     // tooltips, by ShowTips

    // Gives the window a taskbar button, or takes it away: it is hidden, and shown again.
    void shownbar();
    void hidenbar();

    void centre();

    // The window's size or state was changed from outside: the size is the layout's again; a
    // window without a taskbar button is put away when minimised.
    void Form_Resize();

    // Takes the window off the screen in a way that it can come back from: hidden while our icon
    // is in the notification area, else minimised, with a taskbar button.
    void put_away();

  private:
    void show_with_style(std::int32_t style);

    Stage& stage_;
    WindowHost& windows_;
};

}  // namespace zephyne
