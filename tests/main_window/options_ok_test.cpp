#include "tests/main_window/options_world.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace zephyne::test {
namespace {

// The settings that OK may write, except the window's place.
Log changes(const Settings& before, const Settings& after) {
    Log list;
    const auto note = [&](const char* name, double old_value, double new_value) {
        if (old_value == new_value) return;
        const std::string text = std::to_string(new_value);
        list.push_back(std::string(name) + "=" + text.substr(0, text.find('.') + 2));
    };
#define NOTE(field) note(#field, before.field, after.field)
    NOTE(Mode), NOTE(Reverse), NOTE(Continuous), NOTE(PreviewTime), NOTE(Playlist);
    NOTE(AutoReset), NOTE(AutoRepeat), NOTE(AutoHide), NOTE(AutoNotes), NOTE(AllowWav);
    NOTE(Lowercase), NOTE(AutoDelay), NOTE(AutoDelayTime), NOTE(Extended), NOTE(Animated);
    NOTE(ShowTips), NOTE(Beeps), NOTE(ConfirmExit), NOTE(ShowTray), NOTE(ShowBar);
    NOTE(PresetPathOnly), NOTE(ResetType), NOTE(Display);
#undef NOTE
    return list;
}

struct OkRow {
    std::string what;
    std::string settings;
    std::function<void(Form2&)> acts;
    Log log;
    Log changes;
    std::string mode_display = "Random Playback";
};

// What the marks that start at 1 bring with them: the taskbar group, and the tray group.
const Log kBar = {"notes closed", "tip closed", "dialog hidden", "window hidden",
                  "window shown with button"};
const Log kTray = {"window hidden", "dialog hidden", "notes closed", "tip closed",
                   "window shown with button"};
const Log kNewRound = {"close a.mid", "open a.mid", "play a.mid", "dialog unloaded"};

Log operator+(Log first, const Log& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

// Without the icon and with a taskbar button unless a row says otherwise.
const std::string kBarOnly = "ShowTray=0\r\nShowBar=1\r\n";

const std::vector<OkRow>& ok_rows() {
    static const std::vector<OkRow> rows = {
        {"nothing touched, with a button", kBarOnly, [](auto&) {}, kBar, {}},
        {"nothing touched, with both",
         "ShowTray=1\r\nShowBar=1\r\n",
         [](auto&) {},
         kTray + Log{"notes closed", "tip closed", "window hidden", "window shown with button"},
         {}},
        {"tray on",
         kBarOnly,
         [](auto& f) { f.Check16.click(); },
         Log{"window hidden", "dialog hidden", "notes closed", "tip closed", "tray icon",
             "window shown with button", "notes closed", "tip closed", "window hidden",
             "window shown with button"},
         {"ShowTray=1.0"}},
        {"tray off",
         "ShowTray=1\r\nShowBar=1\r\n",
         [](auto& f) { f.Check16.click(); },
         Log{"no tray icon"} + kBar,
         {"ShowTray=0.0"}},
        {"taskbar off",
         "ShowTray=1\r\nShowBar=1\r\n",
         [](auto& f) { f.Check17.click(); },
         kTray + Log{"notes closed", "tip closed", "window hidden", "window shown"},
         {"ShowBar=0.0"}},
        {"boxes without a mark of their own",
         kBarOnly + "AutoReset=0\r\n",
         [](auto& f) {
             for (CheckBox* box :
                  {&f.Check1, &f.Check2, &f.Check3, &f.Check8, &f.Check13, &f.Check15}) {
                 box->click();
             }
         },
         kBar,
         {"AutoReset=1.0", "AutoRepeat=1.0", "AutoHide=1.0", "AutoNotes=1.0", "Beeps=0.0",
          "ConfirmExit=0.0"}},
        {"tooltips off", kBarOnly, [](auto& f) { f.Check14.click(); }, kBar, {"ShowTips=0.0"}},
        {"tips at start",
         kBarOnly,
         [](auto& f) { f.Check5.click(); },
         kBar + Log{"tips at start"},
         {}},
        {"tips at start, there and back",
         kBarOnly,
         [](auto& f) { f.Check5.click(), f.Check5.click(); },
         kBar + Log{"no tips at start"},
         {}},
        {"playlist-based",
         kBarOnly,
         [](auto& f) { f.Option11.click(); },
         kBar + Log{"close a.mid"},
         {"Playlist=1.0"}},
        {"folder-based again",
         kBarOnly + "Playlist=1\r\n",
         [](auto& f) { f.Option10.click(); },
         kBar + Log{"open a.mid", "play a.mid", "dialog unloaded"},
         {"Playlist=0.0"}},
        {"colour", kBarOnly, [](auto& f) { f.Option8.click(); }, kBar, {"Display=1.0"}},
        {"no animation", kBarOnly, [](auto& f) { f.Check11.click(); }, kBar, {"Animated=0.0"}},
        {"narrow", kBarOnly, [](auto& f) { f.Check10.click(); }, kBar, {"Extended=0.0"}},
        {"media types",
         kBarOnly,
         [](auto& f) { f.Check9.click(); },
         kBar + kNewRound,
         {"AllowWav=1.0"}},
        {"lower case",
         kBarOnly,
         [](auto& f) { f.Check12.click(); },
         kBar + Log{"close a.mid", "open a.mid", "play a.mid", "dialog unloaded"},
         {"Lowercase=1.0"}},
        {"delay",
         kBarOnly,
         [](auto& f) { f.Check4.click(), f.Text1.type("7.5"); },
         kBar,
         {"AutoDelay=1.0", "AutoDelayTime=7.5"}},
        {"a long delay",
         kBarOnly,
         [](auto& f) { f.Check4.click(), f.Text1.type("90"); },
         kBar,
         {"AutoDelay=1.0", "AutoDelayTime=60.0"}},
        {"no delay",
         kBarOnly + "AutoDelay=1\r\nAutoDelayTime=3\r\n",
         [](auto& f) { f.Text1.type("0"); },
         kBar,
         {"AutoDelay=0.0"}},
        {"a delay that is no number",
         kBarOnly + "AutoDelay=1\r\nAutoDelayTime=3\r\n",
         [](auto& f) { f.Text1.type("."); },
         kBar,
         {"AutoDelay=0.0"}},
        {"presets without songs",
         kBarOnly,
         [](auto& f) { f.Option4_1.click(); },
         kBar,
         {"PresetPathOnly=1.0"}},
        {"XG", kBarOnly, [](auto& f) { f.Option5_1.click(); }, kBar, {"ResetType=1.0"}},
        {"GS", kBarOnly, [](auto& f) { f.Option5_2.click(); }, kBar, {"ResetType=2.0"}},
        {"random once more", kBarOnly, [](auto& f) { f.Option1.click(); }, kBar + kNewRound, {}},
        {"alpha",
         kBarOnly,
         [](auto& f) { f.Option2.click(); },
         kBar + kNewRound,
         {"Mode=1.0"},
         "Forward Alpha"},
        {"alpha backwards",
         kBarOnly,
         [](auto& f) { f.Option2.click(), f.Label3.click(); },
         kBar + Log{"close a.mid", "open b.mid", "play b.mid", "dialog unloaded"},
         {"Mode=1.0", "Reverse=1.0"},
         "Reverse Alpha"},
        {"manual",
         kBarOnly,
         [](auto& f) { f.Option3.click(); },
         kBar,
         {"Mode=2.0"},
         "Manual Select"},
        {"preview",
         kBarOnly,
         [](auto& f) { f.Option6.click(), f.text2.type("12"); },
         kBar + kNewRound,
         {"Mode=-1.0", "PreviewTime=12.0"},
         "Preview Mode"},
        {"continuous",
         kBarOnly,
         [](auto& f) { f.Label4.click(); },
         kBar + kNewRound,
         {"Continuous=1.0"}},
        {"continuous while waiting for a choice",
         kBarOnly,
         [](auto& f) { f.Check6.click(), f.Option3.click(); },
         kBar,
         {"Mode=2.0", "Continuous=1.0"},
         "Manual Select"},
    };
    return rows;
}

// What the device says beyond opening, playing and closing is another test's affair.
Log essential(const Log& log) {
    Log lines;
    for (const std::string& line : log) {
        if (line != "stop" && line != "pause") lines.push_back(line);
    }
    return lines;
}

TEST(OptionsOk, CarriesOutWhatWasTouchedInThisOrderAndWritesTheseSettings) {
    for (const OkRow& row : ok_rows()) {
        OptionsWorld world(row.settings);
        const Settings before = world.settings();
        world.ok(row.acts);
        EXPECT_EQ(essential(world.happened()), row.log) << row.what;
        EXPECT_EQ(changes(before, world.settings()), row.changes) << row.what;
        EXPECT_EQ(world.form.Label10.caption(), row.mode_display) << row.what;
        world.expect_flags_at_rest();
    }
}

}  // namespace
}  // namespace zephyne::test
