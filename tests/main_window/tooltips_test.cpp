#include "tests/support/program_world.h"

#include <gtest/gtest.h>

#include <map>

namespace zephyne::test {
namespace {

using Tips = std::map<std::string, std::string>;

Tips tips_of(const Form1& form) {
    Tips tips;
    for (const Control* control : form.controls()) {
        if (!control->tooltip().empty()) tips[control->name()] = control->tooltip();
    }
    return tips;
}

TEST(Tooltips, FollowTheSettingAndLeaveThePresetsAlone) {
    ProgramWorld world;
    world.load("Mode=Manual\r\nPresetFileName03=rag.mid\r\n");
    const Tips all = tips_of(world.form);
    EXPECT_EQ(all.size(), 53U) << "all that can be clicked, and all that shows something";
    const Tips some = {{"Command14", "Remember volume setting for this file"},
                       {"Label16", "Lock volume sliders"},
                       {"Command4", "Delete current file"},
                       {"Command5", "Move current file to another folder"},
                       {"Command18", "Rename current file"},
                       {"Label6", "Length of current song"},
                       {"text2", "Enter filename to find in list"},
                       {"Hundredths", "Click to toggle time played/remaining"},
                       {"preset(3)", "rag.mid"}};
    for (const auto& [name, text] : some) EXPECT_EQ(all.at(name), text);

    for (const std::int16_t off : {0, 2}) {
        world.settings().ShowTips = off;
        world.layout.settips();
        EXPECT_EQ(tips_of(world.form), (Tips{{"preset(3)", "rag.mid"}}));
    }
    world.settings().ShowTips = 1;
    world.layout.settips();
    EXPECT_EQ(tips_of(world.form), all);
}

}  // namespace
}  // namespace zephyne::test
