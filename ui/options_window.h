// The Options window: what happens while it is open, and how long it lives. Its OK is in
// options_ok.h.
//
// It stays loaded, but hidden, after an OK that starts no new cycle of songs; shown again then, it
// has its last state and its marks.
#pragma once

#include "core/ports/window_host.h"
#include "core/sheets/form2.h"
#include "engine/engine.h"
#include "engine/stage.h"
#include "ui/kill_commands.h"
#include "ui/main_window_layout.h"
#include "ui/options_marks.h"
#include "ui/options_services.h"

#include <cstdint>
#include <memory>

namespace zephyne {

class OptionsWindow {
  public:
    // The services may be filled in later, until the window is first shown.
    OptionsWindow(Stage& stage, Engine& engine, MainWindowLayout& layout, WindowHost& windows,
                  OptionsServices& services);
    ~OptionsWindow();

    // "Options..." of the main window: shows the window until it is closed. Nothing happens while
    // it is open or its OK is still at work.
    void show();

    // The window while it is loaded, else null.
    Form2* form() const { return form_.get(); }
    const OptionsMarks& marks() const { return marks_; }

  private:
    void Form_Load();
    void Form_Unload();
    void take_handlers(Form2& form);
    void take_mode_handlers(Form2& form);
    void take_mark_handlers(Form2& form);
    void take_key_filters(Form2& form);

    void Command1_Click();  // "OK"
    void mode_Click(const OptionButton& mode);
    void presence_Click(CheckBox& clicked, std::int16_t& mark);  // tray icon and taskbar

    Stage& stage_;
    Engine& engine_;
    MainWindowLayout& layout_;
    WindowHost& windows_;
    OptionsServices& services_;
    KillCommands kill_;
    std::unique_ptr<Form2> form_;
    OptionsMarks marks_;
    bool in_use_ = false;
};

}  // namespace zephyne
