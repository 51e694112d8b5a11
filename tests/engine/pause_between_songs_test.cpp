#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

class Pause : public testing::Test {
  protected:
    Pause() {
        world.settings().AutoDelay = 1;
        world.settings().AutoReset = 0;
        world.midi.lengths = {{"A.mid", 10'000}, {"B.mid", 10'000}};
    }

    // Runs until the first song is over and the pause has begun. The pause itself runs inside the
    // event loop, so that what the user does meanwhile comes from there.
    void during_the_pause(std::function<void()> act) {
        acted_ = false;
        world.pump.arrive_when([this] { return world.program.DelayActive; },
                               [this, act = std::move(act)] { acted_ = true, act(); });
    }

    World world{"A.mid", "B.mid"};
    bool acted_ = false;
};

TEST_F(Pause, LastsAsLongAsIsSetButAMinuteAtMost) {
    const std::vector<std::pair<double, Milliseconds>> table = {
        {2, 2000},       {2.5, 2500}, {.05, 50}, {60, 60'000}, {90, 60'000},
        {1e300, 60'000}, {0, 0},      {-3, 0},   {-1e300, 0}};
    for (const auto& [seconds, duration] : table) {
        world.settings().AutoDelayTime = seconds;
        world.start(PlayMode::Alpha);
        const Milliseconds begin = world.clock.now();
        world.finish_song();  // and, inside the handler of the song's end, the pause
        EXPECT_EQ(world.clock.now() - begin, duration) << seconds;
        EXPECT_EQ(world.played(), (Log{"A.mid", "B.mid"})) << seconds;
    }
}

TEST_F(Pause, LocksWhateverCouldStartASongAndSaysHowLong) {
    const std::vector<std::pair<double, std::string>> titles = {{5, "Delaying 5 Second(s)..."},
                                                                {90, "Delaying 90 Second(s)..."},
                                                                {2.5, "Delaying 2.5 Second(s)..."},
                                                                {.5, "Delaying .5 Second(s)..."}};
    for (const auto& [seconds, title] : titles) {
        world.settings().AutoDelayTime = seconds;
        world.start(PlayMode::Alpha);
        during_the_pause([&, title = title] {
            EXPECT_EQ(world.form.title(), title);
            EXPECT_EQ(world.form.Command6.caption(), "Cancel Dly");
            EXPECT_FALSE(world.device.is_open());
            for (const Control* control : std::initializer_list<const Control*>{
                     &world.form.Command1, &world.form.Command3, &world.form.Command4,
                     &world.form.Command5, &world.form.Command7, &world.form.Command9,
                     &world.form.Command18, &world.form.Command24, &world.form.Frame2,
                     &world.form.Drive1, &world.form.Dir1, &world.form.File1}) {
                EXPECT_FALSE(control->enabled()) << control->name();
            }
            EXPECT_TRUE(world.form.Command6.enabled());
        });
        world.run_for(75'000);
        EXPECT_TRUE(acted_);
        world.expect_in_one_piece();
    }
}

TEST_F(Pause, EndsAtOnceWithItsCancelKey) {
    world.settings().AutoDelayTime = 30;
    world.start(PlayMode::Alpha);
    during_the_pause([&] { world.form.Command6.click(); });
    world.run_for(12'000);
    EXPECT_EQ(world.played(), (Log{"A.mid", "B.mid"}));
    EXPECT_FALSE(world.form.Timer1.enabled());
    world.expect_in_one_piece();
}

TEST_F(Pause, LeavesTheFileCommandsOfAPlaylistDisabled) {
    const auto commands = {&world.form.Command4, &world.form.Command5, &world.form.Command18,
                           &world.form.Command24};
    for (Button* command : commands) command->set_enabled(false);
    world.start_playlist(PlayMode::Alpha, {"A.mid|/music/", "B.mid|/music/"});
    world.run_for(15'000);
    EXPECT_EQ(world.played(), (Log{"A.mid", "B.mid"}));
    for (Button* command : commands) EXPECT_FALSE(command->enabled()) << command->name();
}

TEST_F(Pause, ComesAlsoBeforeARepeatAndBeforeAManualSongWaits) {
    world.settings().AutoDelayTime = 3;
    world.open_folder();
    world.click("A.mid");
    world.happened();
    during_the_pause([&] { EXPECT_EQ(world.happened(), Log{"close A.mid"}); });
    world.run_for(13'100);
    EXPECT_EQ(world.happened(), (Log{"open A.mid", "pause A.mid"}));
    world.settings().AutoRepeat = 1;
    world.click("A.mid");
    world.run_for(13'100);
    EXPECT_EQ(world.played(), (Log{"A.mid", "A.mid", "A.mid"}));
}

TEST_F(Pause, StaysLockedWhenTheFindBoxIsLeftMeanwhile) {
    world.settings().AutoDelayTime = 10;
    world.start(PlayMode::Alpha);
    during_the_pause([&] {
        world.form.text2.set_focus();
        world.form.text2.type("zzz");
        world.form.set_focused(nullptr);
        EXPECT_FALSE(world.form.File1.enabled());
        EXPECT_FALSE(world.form.Command1.enabled());
    });
    world.run_for(15'000);
    EXPECT_TRUE(acted_);
    world.run_for(10'000);
    world.expect_window_unlocked();
}

}  // namespace
}  // namespace zephyne::test
