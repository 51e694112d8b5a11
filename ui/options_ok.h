// The OK of the Options window: takes the settings from the controls and carries out what each
// change requires, in an order in which no step undoes another.
#pragma once

#include "core/sheets/form2.h"
#include "engine/engine.h"
#include "engine/stage.h"
#include "ui/main_window_layout.h"
#include "ui/options_marks.h"
#include "ui/options_services.h"

#include <cstdint>
#include <string>

namespace zephyne {

class OptionsOk {
  public:
    // For one OK; all of it outlives the call. Sets the play-mode mark where the song list changes.
    OptionsOk(Stage& stage, Engine& engine, MainWindowLayout& layout,
              const OptionsServices& services, Form2& form, OptionsMarks& marks);

    // Hides the window, and unloads it where a new cycle of songs begins.
    void run();

  private:
    // Those that return early when the group was not touched.
    void tray();
    void taskbar();
    void tooltips();
    void tips_at_start();
    void base_mode();
    void colour();
    void large_display();
    void media_types();
    void lower_case();

    void remember_place();
    void animation();
    void delay();
    void presets();
    void reset_method();
    void folder_based();
    void playlist_based();

    // The playback mode, and what becomes of the song that plays.
    void play_mode();
    void play_by(std::int32_t mode, const std::string& name);
    void wait_for_choice();
    void start_new_cycle();

    std::string song_count() const;

    Stage& stage_;
    Engine& engine_;
    MainWindowLayout& layout_;
    const OptionsServices& services_;
    Form2& form_;
    OptionsMarks& marks_;
    Settings& settings_;
};

}  // namespace zephyne
