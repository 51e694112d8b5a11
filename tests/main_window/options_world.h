// A running program whose Options window a test opens and acts on. The log tells what the rooms
// around it are asked for, when its windows come and go, and what the device does.
#pragma once

#include "tests/support/program_world.h"
#include "ui/options_window.h"

#include <functional>
#include <string>
#include <utility>

namespace zephyne::test {

class OptionsWorld : public ProgramWorld {
  public:
    // Random mode at rest in a.mid, without resets, so that the log stays short.
    explicit OptionsWorld(const std::string& settings = {}) : ProgramWorld({"a.mid", "b.mid"}) {
        services.load_tray = [this] { log.push_back("tray icon"), icon = true; };
        services.unload_tray = [this] { log.push_back("no tray icon"), icon = false; };
        services.tray_loaded = [this] { return icon; };
        services.unload_notes = [this] { log.push_back("notes closed"); };
        services.unload_quick_tip = [this] { log.push_back("tip closed"); };
        services.tips_at_start = [this] { return tips; };
        services.set_tips_at_start = [this](bool on) {
            log.push_back(on ? "tips at start" : "no tips at start");
        };
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

    OptionsServices services;
    Watcher watcher{*this};  // outlives the window that it watches
    OptionsWindow options{stage, *engine, layout, windows, services};
    bool icon = false;
    bool tips = false;

  private:
    std::function<void(Form2&)> act;
};

}  // namespace zephyne::test
