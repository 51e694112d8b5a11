#include "tests/support/program_world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

TEST(MainWindowCommands, TheKeysLeadWhereTheySay) {
    ProgramWorld world;
    world.load("Mode=Manual\r\n");
    world.happened();
    for (Button* key : {&world.form.Command1, &world.form.Command10, &world.form.Command12}) {
        key->click();
    }
    EXPECT_EQ(world.happened(), (Log{"options", "help", "web links"}));
    world.messages.answer = Answer::no;
    world.form.Command2.click();
    EXPECT_EQ(world.happened(),
              Log{"message: Are you sure you want to quit Zephyne? [Confirm Exit]"});
}

TEST(MainWindowCommands, F2RenamesUnlessASongIsBeingSwitched) {
    ProgramWorld world;
    world.load("Mode=Manual\r\n");
    world.happened();
    world.form.user_released_key(112);
    world.form.user_released_key(113);
    EXPECT_EQ(world.happened(), Log{"rename"});
    world.program.SwitchingSong = true;
    world.form.user_released_key(113);
    EXPECT_EQ(world.happened(), Log());
}

TEST(MainWindowCommands, HideLeavesAWayBack) {
    struct Row {
        std::string settings;
        bool has_tray_host;
        std::string window;
    };
    const std::vector<Row> rows = {
        {"ShowBar=1\r\n", true, "minimised with button"},
        {"ShowBar=0\r\n", true, "hidden"},
        {"ShowBar=0\r\n", false, "minimised with button"},
    };
    for (const Row& row : rows) {
        ProgramWorld world;
        world.has_tray_host = row.has_tray_host;
        world.load("Mode=Alpha\r\n" + row.settings);
        world.form.Command11.click();
        EXPECT_EQ(world.window(), row.window) << row.settings << row.has_tray_host;
        EXPECT_EQ(world.device.Mode(), DeviceMode::playing);
    }
}

TEST(MainWindowCommands, TwoClicksOnTheClockChangeItsMethodThereAndBack) {
    ProgramWorld world;
    world.load("Mode=Alpha\r\n");
    for (Picture* picture : {&world.form.Tens, &world.form.Ones, &world.form.Image1,
                             &world.form.Tenths, &world.form.Hundredths}) {
        picture->click();
        EXPECT_EQ(world.settings().TimeMethod, 1) << picture->name();
        picture->click();
        EXPECT_EQ(world.settings().TimeMethod, 0) << picture->name();
    }
    world.form.Label8.click();
    EXPECT_TRUE(world.form.text2.focused());
}

}  // namespace
}  // namespace zephyne::test
