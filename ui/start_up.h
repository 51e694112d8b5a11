// From the first breath of the program to the first song.
#pragma once

#include "core/ports/services.h"
#include "core/ports/window_host.h"
#include "engine/engine.h"
#include "engine/stage.h"
#include "ui/main_window_layout.h"

#include <functional>
#include <string>

namespace zephyne {

// What start-up has made of the program.
enum class Started {
    normal,
    queue,  // the compact player of a copy started with a song
    ended,  // the song on the command line cannot be read
};

// Where another copy runs, brings that to the front, hands it the command line ("" when there is
// none), and returns true: this copy has nothing to do. To be asked before anything else is built.
bool give_way(HandOver& hand_over, const std::string& command_line);

class StartUp {
  public:
    StartUp(Stage& stage, Engine& engine, MainWindowLayout& layout, WindowHost& windows,
            HandOver& hand_over);

    // The whole start, with the command line as one text ("" when there is none).
    Started Form_Load(const std::string& command_line);

    // The main window became the active one: its position is the one to remember.
    void Form_Activate();

    // What other rooms do on the way: set the volume sliders, before anything else; name the
    // presets, once the settings are read; and in the normal start the tray icon and the tip of
    // the day.
    std::function<void()> choose_volume_device;
    std::function<void()> show_presets;
    std::function<void()> load_tray;
    std::function<void()> show_quick_tip;

  private:
    void set_up();
    Started start_queue(const std::string& song);
    void start_normally();
    void place_window();
    void show_demo_songs_at_first_start();
    void come_forward();

    Stage& stage_;
    Engine& engine_;
    MainWindowLayout& layout_;
    WindowHost& windows_;
    HandOver& hand_over_;
};

}  // namespace zephyne
