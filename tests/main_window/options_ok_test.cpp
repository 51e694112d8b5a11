#include "tests/main_window/options_world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

// The settings that OK may write, except the window's place; and the mode as the window shows it,
// where it is another one than before.
Log changes(const Settings& before, const OptionsWorld& world) {
    const Settings& after = world.program.settings;
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
    const std::string& mode = world.form.Label10.caption();
    if (mode != "Random Playback") list.push_back(mode);
    return list;
}

// What the marks that start at 1 bring with them: the taskbar group, and the tray group.
const Log kBar = {"notes closed", "tip closed", "dialog hidden", "window hidden",
                  "window shown with button"};
const Log kTray = {"window hidden", "dialog hidden", "notes closed", "tip closed",
                   "window shown with button"};

// A new round, which begins with the first song or with another one.
Log new_round(const std::string& song = "a.mid") {
    return {"close a.mid", "open " + song, "play " + song, "dialog unloaded"};
}

Log operator+(Log first, const Log& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

// Without the icon and with a taskbar button unless a row says otherwise.
const std::string kBarOnly = "ShowTray=0\r\nShowBar=1\r\n";
const std::string kBoth = "ShowTray=1\r\nShowBar=1\r\n";

struct OkRow {
    std::string what;
    std::function<void(Form2&)> acts;
    Log changes;
    Log log = kBar;
    std::string settings = kBarOnly;
};

const std::vector<OkRow>& ok_rows() {
    static const std::vector<OkRow> rows = {
        {"nothing touched, with a button", [](auto&) {}, {}},
        {"nothing touched, with both",
         [](auto&) {},
         {},
         kTray + Log{"notes closed", "tip closed", "window hidden", "window shown with button"},
         kBoth},
        {"tray on",
         [](auto& f) { f.Check16.click(); },
         {"ShowTray=1.0"},
         Log{"window hidden", "dialog hidden", "notes closed", "tip closed", "tray icon",
             "window shown with button", "notes closed", "tip closed", "window hidden",
             "window shown with button"}},
        {"tray off",
         [](auto& f) { f.Check16.click(); },
         {"ShowTray=0.0"},
         Log{"no tray icon"} + kBar,
         kBoth},
        {"taskbar off",
         [](auto& f) { f.Check17.click(); },
         {"ShowBar=0.0"},
         kTray + Log{"notes closed", "tip closed", "window hidden", "window shown"},
         kBoth},
        {"boxes without a mark of their own",
         [](auto& f) {
             for (CheckBox* box :
                  {&f.Check1, &f.Check2, &f.Check3, &f.Check8, &f.Check13, &f.Check15}) {
                 box->click();
             }
         },
         {"AutoReset=1.0", "AutoRepeat=1.0", "AutoHide=1.0", "AutoNotes=1.0", "Beeps=0.0",
          "ConfirmExit=0.0"}},
        {"tooltips off", [](auto& f) { f.Check14.click(); }, {"ShowTips=0.0"}},
        {"tips at start", [](auto& f) { f.Check5.click(); }, {}, kBar + Log{"tips at start"}},
        {"tips at start, there and back",
         [](auto& f) { f.Check5.click(), f.Check5.click(); },
         {},
         kBar + Log{"no tips at start"}},
        {"playlist-based",
         [](auto& f) { f.Option11.click(); },
         {"Playlist=1.0"},
         kBar + Log{"close a.mid"}},
        {"folder-based again",
         [](auto& f) { f.Option10.click(); },
         {"Playlist=0.0"},
         kBar + Log{"open a.mid", "play a.mid", "dialog unloaded"},
         kBarOnly + "Playlist=1\r\n"},
        {"colour", [](auto& f) { f.Option8.click(); }, {"Display=1.0"}},
        {"no animation", [](auto& f) { f.Check11.click(); }, {"Animated=0.0"}},
        {"narrow", [](auto& f) { f.Check10.click(); }, {"Extended=0.0"}},
        {"media types", [](auto& f) { f.Check9.click(); }, {"AllowWav=1.0"}, kBar + new_round()},
        {"lower case", [](auto& f) { f.Check12.click(); }, {"Lowercase=1.0"}, kBar + new_round()},
        {"delay",
         [](auto& f) { f.Check4.click(), f.Text1.type("7.5"); },
         {"AutoDelay=1.0", "AutoDelayTime=7.5"}},
        {"a long delay",
         [](auto& f) { f.Check4.click(), f.Text1.type("90"); },
         {"AutoDelay=1.0", "AutoDelayTime=60.0"}},
        {"no delay",
         [](auto& f) { f.Text1.type("0"); },
         {"AutoDelay=0.0"},
         kBar,
         kBarOnly + "AutoDelay=1\r\nAutoDelayTime=3\r\n"},
        {"a delay that is no number",
         [](auto& f) { f.Text1.type("."); },
         {"AutoDelay=0.0"},
         kBar,
         kBarOnly + "AutoDelay=1\r\nAutoDelayTime=3\r\n"},
        {"presets without songs", [](auto& f) { f.Option4_1.click(); }, {"PresetPathOnly=1.0"}},
        {"XG", [](auto& f) { f.Option5_1.click(); }, {"ResetType=1.0"}},
        {"GS", [](auto& f) { f.Option5_2.click(); }, {"ResetType=2.0"}},
        {"random once more", [](auto& f) { f.Option1.click(); }, {}, kBar + new_round()},
        {"alpha",
         [](auto& f) { f.Option2.click(); },
         {"Mode=1.0", "Forward Alpha"},
         kBar + new_round()},
        {"alpha backwards",
         [](auto& f) { f.Option2.click(), f.Label3.click(); },
         {"Mode=1.0", "Reverse=1.0", "Reverse Alpha"},
         kBar + new_round("b.mid")},
        {"manual", [](auto& f) { f.Option3.click(); }, {"Mode=2.0", "Manual Select"}},
        {"preview",
         [](auto& f) { f.Option6.click(), f.text2.type("12"); },
         {"Mode=-1.0", "PreviewTime=12.0", "Preview Mode"},
         kBar + new_round()},
        {"continuous", [](auto& f) { f.Label4.click(); }, {"Continuous=1.0"}, kBar + new_round()},
        {"continuous while waiting for a choice",
         [](auto& f) { f.Check6.click(), f.Option3.click(); },
         {"Mode=2.0", "Continuous=1.0", "Manual Select"}},
    };
    return rows;
}

TEST(OptionsOk, CarriesOutWhatWasTouchedInThisOrderAndWritesTheseSettings) {
    for (const OkRow& row : ok_rows()) {
        OptionsWorld world(row.settings);
        const Settings before = world.settings();
        world.ok(row.acts);
        EXPECT_EQ(world.happened(), row.log) << row.what;
        EXPECT_EQ(changes(before, world), row.changes) << row.what;
        world.expect_flags_at_rest();
    }
}

}  // namespace
}  // namespace zephyne::test
