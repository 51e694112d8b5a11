// The Move File window: puts the current song into another folder.
#pragma once

#include "core/ports/window_host.h"
#include "core/sheets/form6.h"
#include "engine/engine.h"
#include "engine/stage.h"

#include <memory>
#include <string>

namespace zephyne {

class MoveFile {
  public:
    MoveFile(Stage& stage, Engine& engine, WindowHost& windows);

    // "Move": shows the window for the selected song, or in Queue mode for the current one.
    void Command5_Click();

  private:
    bool find_source();
    void show();
    void show_destination();
    void Drive1_Change();
    void move_it();
    void after_move(const std::string& destination);
    void stop_and_clear();

    Stage& stage_;
    Engine& engine_;
    WindowHost& windows_;
    Form6* form_ = nullptr;  // while it is open
    std::string source_;     // full path
    std::string name_;
    std::string destination_;  // as the window proposes it
    std::string played_then_;  // what was the current song when the window opened
};

}  // namespace zephyne
