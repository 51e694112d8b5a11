#include "tests/support/program_world.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace zephyne::test {
namespace {

const std::map<std::string, std::string> kTips = {
    {"Command14", "Remember volume setting for this file"},
    {"Slider2", "Left Volume (.mid/.rmi only)"},
    {"Slider3", "Right Volume (.mid/.rmi only)"},
    {"Check1", "Lock volume sliders"},
    {"Label16", "Lock volume sliders"},
    {"Command22", "Go to folder containing this song"},
    {"Command23", "Explore at location of current song"},
    {"Command19", "Play next queued song"},
    {"Label7", "Shows text in MIDI file"},
    {"MMControl1", "Play, pause, stop controls"},
    {"Label3", "Songs remaining to be played"},
    {"Label4", "Songs remaining to be played"},
    {"Dir1", "Set directory"},
    {"Drive1", "Set drive"},
    {"Command12", "Show Zephyne web links"},
    {"Command3", "Shows text in current MIDI file"},
    {"Command13", "Click for playlist editor"},
    {"Command20", "Click to load a playlist"},
    {"Label5", "Length of current song"},
    {"Label6", "Length of current song"},
    {"Command4", "Delete current file"},
    {"Command18", "Rename current file"},
    {"Command5", "Move current file to another folder"},
    {"Command2", "Quit the program"},
    {"Command10", "Get Help"},
    {"Command11", "Minimize to system tray"},
    {"Command21", "Show Quicktips"},
    {"Label1", "Total songs in list"},
    {"Label2", "Total songs in list"},
    {"Label12", "Amount of song played"},
    {"Label13", "Amount of song played"},
    {"Label8", "Enter filename to find in list"},
    {"text2", "Enter filename to find in list"},
    {"File1", "Click a file to play"},
    {"Command24", "Explore from current directory"},
    {"Slider1", "Sets playback position"},
    {"Command6", "Resets playback to start of list"},
    {"Command9", "Play next song in list"},
    {"Command1", "Set program options"},
    {"Label9", "Click Options to change mode"},
    {"Label10", "Click Options to change mode"},
    {"SSCommand1", "Resets MIDI Sequencer"},
    {"Tens", "Click to toggle time played/remaining"},
    {"Ones", "Click to toggle time played/remaining"},
    {"Tenths", "Click to toggle time played/remaining"},
    {"Hundredths", "Click to toggle time played/remaining"},
    {"Image2", "Click Options to toggle animation"},
    {"Command7", "Enter/edit note on current song"},
    {"Command8", "Click to set a preset"},
    {"Command15", "Click to clear a preset"},
    {"Command16", "View all presets"},
    {"Command17", "Clear all presets"},
};

std::map<std::string, std::string> tips_of(const Form1& form) {
    std::map<std::string, std::string> tips;
    for (const Control* control : form.controls()) {
        if (!control->tooltip().empty()) tips[control->name()] = control->tooltip();
    }
    return tips;
}

TEST(Tooltips, FollowTheSettingAndLeaveThePresetsAlone) {
    ProgramWorld world;
    world.load("Mode=Manual\r\nPresetFileName03=rag.mid\r\n");
    auto all = kTips;
    all["preset(3)"] = "rag.mid";
    EXPECT_EQ(tips_of(world.form), all);

    for (const std::int16_t off : {0, 2}) {
        world.settings().ShowTips = off;
        world.layout.settips();
        EXPECT_EQ(tips_of(world.form),
                  (std::map<std::string, std::string>{{"preset(3)", "rag.mid"}}));
    }
    world.settings().ShowTips = 1;
    world.layout.settips();
    EXPECT_EQ(tips_of(world.form), all);
}

}  // namespace
}  // namespace zephyne::test
