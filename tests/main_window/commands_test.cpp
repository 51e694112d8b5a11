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
    for (const int key : {112, 113}) world.form.user_released_key(key);
    EXPECT_EQ(world.happened(), Log{"rename"}) << "by F2";
    world.program.SwitchingSong = true;
    world.form.user_released_key(113);
    EXPECT_EQ(world.happened(), Log());
}

}  // namespace
}  // namespace zephyne::test
