// A whole program in a small world: start-up, layouts and shutdown around the player of World.
// The log also tells when the main window is shown, hidden or minimised.
#pragma once

#include "tests/support/world.h"
#include "ui/main_window_commands.h"
#include "ui/main_window_layout.h"
#include "ui/shut_down.h"
#include "ui/start_up.h"

#include <string>

namespace zephyne::test {

class ProgramWorld : public World, private ControlObserver {
  public:
    explicit ProgramWorld(std::initializer_list<std::string> songs = {"a.mid"},
                          PathStyle style = PathStyle::posix)
        : World(songs, style) {
        form.observe(this);
        start_up.load_tray = [this] {
            log.push_back("tray icon");
            windows.has_icon = has_tray_host;
        };
        start_up.show_quick_tip = [this] { log.push_back("tip of the day"); };
        shut_down.end_program = [this] { log.push_back("end"); };
    }
    ~ProgramWorld() override { form.observe(nullptr); }

    FakeWindows windows;
    FakeHandOver hand_over;
    MainWindowLayout layout{stage, windows};
    StartUp start_up{stage, *engine, layout, windows, hand_over};
    ShutDown shut_down{stage, *engine};
    MainWindowCommands commands{stage,
                                layout,
                                {.show_options = [this] { log.push_back("options"); },
                                 .show_help = [this] { log.push_back("help"); },
                                 .show_web_links = [this] { log.push_back("web links"); },
                                 .renamefile = [this] { log.push_back("rename"); }}};
    bool has_tray_host = true;  // the desktop shows tray icons

    std::string settings_path() const {
        return joined(program_folder, "zephyne.ini", files.path_style());
    }

    // The program starts, with these lines in its settings file.
    Started load(const std::string& settings_lines, const std::string& command_line = {}) {
        files.add_file(settings_path(), settings_lines);
        return load_without_settings(command_line);
    }
    Started load_without_settings(const std::string& command_line = {}) {
        program.ResetFilePresent = false;
        if (give_way(hand_over, command_line)) return Started::ended;
        return start_up.Form_Load(command_line);
    }

    bool has_taskbar_button() const {
        return form.visible() && (windows.extended_style(form) & kAppWindowStyle) != 0;
    }

    // "shown", "hidden" or "minimised", and " with button" when the taskbar has one for it.
    std::string window() const {
        if (!form.visible()) return "hidden";
        const std::string state = form.state() == WindowState::minimized ? "minimised" : "shown";
        return has_taskbar_button() ? state + " with button" : state;
    }

  private:
    void property_changed(Property property) override {
        if (property == Property::visible || property == Property::state) {
            log.push_back("window " + window());
        }
    }
};

}  // namespace zephyne::test
