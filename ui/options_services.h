// What the Options window needs of rooms that it does not know. An empty function is a service
// that is not there.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace zephyne {

struct OptionsServices {
    std::function<void()> load_tray;    // puts up the icon
    std::function<void()> unload_tray;  // takes it away
    std::function<bool()> tray_loaded;

    std::function<void()> unload_notes;      // closes the Notes window, which saves the note
    std::function<void()> unload_quick_tip;  // closes the tip of the day

    std::function<bool()> tips_at_start;  // whether the tip of the day shows at start
    std::function<void(bool wanted)> set_tips_at_start;

    std::function<void()> show_about;
    std::function<void()> ask_whats_this;  // the next click asks for help

    // The help on a topic, as plain text; "" when there is none.
    std::function<std::string(std::string_view topic)> help_text;
};

}  // namespace zephyne
