// A running program whose Options window a test opens and acts on. The log tells what the rooms
// around it are asked for, when its windows come and go, and what the device does.
#pragma once

#include "shell/help_topics.h"
#include "tests/support/program_world.h"
#include "ui/options_window.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace zephyne::test {

class OptionsWorld : public ProgramWorld {
  public:
    // Random mode at rest in a.mid, without resets, so that the log stays short.
    explicit OptionsWorld(const std::string& settings = {}) : ProgramWorld({"a.mid", "b.mid"}) {
        start_up.load_tray = [this] { icon = true; };
        windows.on_modal = [this](Form& shown) {
            auto& form2 = dynamic_cast<Form2&>(shown);
            form2.observe(&watcher);
            if (act) std::exchange(act, {})(form2);
        };
        load("Mode=Random\r\nAutoReset=0\r\nLowercase=0\r\n" + settings);
        run_for(2000);
        happened();
    }

    // Opens the window; `user` acts on it.
    void open(std::function<void(Form2&)> user) {
        act = std::move(user);
        happened();
        options.show();
        if (!options.form()) log.push_back("dialog unloaded");
    }
    void ok(std::function<void(Form2&)> user) {
        open([user = std::move(user)](Form2& form2) {
            user(form2);
            form2.Command1.click();
        });
    }

    OptionsWindow options{stage, *engine, layout, windows, services()};
    std::string guide;  // the help file
    bool icon = false;
    bool tips = false;

  private:
    OptionsServices services() {
        const auto say = [this](const char* what) { return [this, what] { log.push_back(what); }; };
        return {.load_tray = [this] { log.push_back("tray icon"), icon = true; },
                .unload_tray = [this] { log.push_back("no tray icon"), icon = false; },
                .tray_loaded = [this] { return icon; },
                .unload_notes = say("notes closed"),
                .unload_quick_tip = say("tip closed"),
                .tips_at_start = [this] { return tips; },
                .set_tips_at_start =
                    [this](bool on) { log.push_back(on ? "tips at start" : "no tips at start"); },
                .show_about = say("about"),
                .ask_whats_this = say("what's this?"),
                .help_text = [this](std::string_view topic) { return help_topic(guide, topic); }};
    }

    class Watcher final : public zephyne::ControlObserver {
      public:
        explicit Watcher(OptionsWorld& world) : world_(world) {}
        void property_changed(Property property) override {
            const Form2* form2 = world_.options.form();
            if (property == Property::visible && form2 && !form2->visible()) {
                world_.log.push_back("dialog hidden");
            }
        }

      private:
        OptionsWorld& world_;
    };

    Watcher watcher{*this};
    std::function<void(Form2&)> act;
};

}  // namespace zephyne::test
