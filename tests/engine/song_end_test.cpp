// How a song ends in each mode, and what is remembered of it.
#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

const std::string kGone = "message: File was apparently deleted or moved. [Error]";

class End : public testing::Test {
  protected:
    End() { world.settings().AllowWav = 1; }

    World world{"A.mid", "B.mid", "C.wav"};
};

TEST_F(End, InManualModeAFinishedSongWaitsAtItsStart) {
    world.open_folder();
    world.click("A.mid");
    world.happened();
    world.finish_song();
    EXPECT_EQ(world.happened(), (Log{"close A.mid", "open gm_reset.aut", "play gm_reset.aut",
                                     "close gm_reset.aut", "open A.mid", "pause A.mid"}));
    EXPECT_EQ(world.form.title(), "Zephyne");
    EXPECT_EQ(world.form.Label6.caption() + world.form.Label13.caption(), "");
    EXPECT_EQ(world.form.Slider1.value(), 0);
    EXPECT_EQ(World::shown(world.tray.mnuPause), "Pause (off)");
    EXPECT_EQ(World::shown(world.tray.mnuStop), "Play");
    world.run_for(500'000);
    EXPECT_EQ(world.happened(), Log{});
    world.form.MMControl1.press(TransportKey::play);
    EXPECT_EQ(world.happened(), Log{"play A.mid"});
    world.finish_song();
    EXPECT_EQ(world.happened().back(), "pause A.mid") << "it ends as before";

    world.click("C.wav");
    world.happened();
    world.finish_song();
    EXPECT_EQ(world.happened(),
              (Log{"wave: close C.wav", "wave: open C.wav", "wave: pause C.wav"}));
}

TEST_F(End, ASongDeletedWhileItPlayedIsReportedAtItsEnd) {
    world.open_folder();
    world.click("A.mid");
    world.files.remove(world.path("A.mid"));
    world.happened();
    world.finish_song();
    EXPECT_EQ(world.happened().back(), kGone);
    EXPECT_EQ(world.program.CurrentSongPath, "");
    world.expect_in_one_piece();
    world.form.MMControl1.press(TransportKey::stop);
    EXPECT_EQ(world.happened(), Log{});
}

TEST_F(End, WithRepeatTheSameSongStartsAgainInEveryMode) {
    world.settings().AutoRepeat = 1;
    for (const std::int32_t mode : {PlayMode::Alpha, PlayMode::Manual, PlayMode::Preview}) {
        world.start(mode);
        world.click("B.mid");
        world.happened();
        world.finish_song();
        EXPECT_EQ(world.happened(), (Log{"close B.mid", "open B.mid", "play B.mid"}));
        EXPECT_EQ(world.form.title(), "Zephyne - Playing B.mid");
    }
}

TEST_F(End, ASongThatBreaksWhileItPlaysMakesTheSystemBeep) {
    world.start(PlayMode::Alpha);
    world.happened();
    world.midi.fail();
    world.run_for(10'000);
    EXPECT_EQ(world.happened(), Log{"beep"});
}

TEST_F(End, TheQueueIsServedWhenItsSongEnds) {
    world.settings().AutoReset = 0;
    world.start_queue("A.mid");
    world.happened();
    world.finish_song();
    EXPECT_EQ(world.happened(), (Log{"close A.mid", "open A.mid", "pause A.mid"}));
    EXPECT_EQ(world.form.title(), "Zephyne");

    for (const char* song : {"gone.mid", "C.wav", "B.mid"}) {
        world.form.List2.add({world.path(song), {}});
    }
    world.form.MMControl1.press(TransportKey::play);
    world.finish_song();
    EXPECT_EQ(world.happened(), (Log{"play A.mid", "close A.mid", "open A.mid", "pause A.mid",
                                     "close A.mid", "wave: open C.wav", "wave: play C.wav"}));
    EXPECT_EQ(world.form.title(), "Zephyne - Playing /music/C.wav");
    EXPECT_EQ(World::names(world.form.List2), Log{"/music/B.mid"});
    EXPECT_EQ(world.program.RecentCount, 0);

    world.form.Command19.click();
    EXPECT_EQ(world.played(), (Log{"A.mid", "A.mid", "C.wav", "B.mid"}));
    world.form.Command19.click();
    EXPECT_EQ(world.played(), Log{}) << "the queue is empty";
    world.files.remove(world.path("B.mid"));
    world.form.List2.add({world.path("C.wav"), {}});
    world.finish_song();
    EXPECT_EQ(world.happened().back(), kGone);
    EXPECT_EQ(world.form.List2.count(), 1U) << "not served this time";
}

TEST_F(End, NextInTheQueueDuringTheResetSkipsNothing) {
    world.start_queue("A.mid", {"C.wav", "B.mid"});
    world.pump.on_pump = [&] {
        if (world.program.SwitchingSong) world.form.Command19.click();
    };
    world.finish_song();
    EXPECT_EQ(world.played(), (Log{"A.mid", "C.wav"}));
    EXPECT_EQ(world.form.List2.count(), 1U);
}

TEST_F(End, ASongStartedFromElsewhereDuringTheResetPlaysOn) {
    for (const std::int32_t mode : {PlayMode::Manual, PlayMode::Queue}) {
        world.open_folder();
        world.click("A.mid");
        world.settings().Mode = mode;
        world.pump.arrive_in(4, [&] { world.engine->player.restart(); });  // the reset's last
        world.finish_song();
        EXPECT_EQ(world.device.Mode(), DeviceMode::playing);
        world.expect_title_tells_the_truth();
    }
}

TEST_F(End, TheFiveLastSongsAreKeptAndShownNewestFirst) {
    World many{"A.mid", "B.mid", "C.mid", "D.mid", "E.mid", "F.mid", "G.mid"};
    many.start(PlayMode::Alpha);
    for (int song = 0; song < 3; ++song) many.run_for(180'500);
    many.program.CurrentSongPath = "/MUSIC/c.mid";
    many.form.Command9.click();
    EXPECT_EQ(many.program.RecentCount, 3) << "the same file in other letters is known";
    EXPECT_EQ(many.tray.mnuSong(5).caption, "A.mid");
    EXPECT_TRUE(many.tray.sep1.visible);
    EXPECT_FALSE(many.tray.mnuSong(2).visible);
    many.form.Command9.click();
    many.program.SkipRecentOnce = true;
    many.form.Command9.click();
    EXPECT_FALSE(many.program.SkipRecentOnce);
    for (int song = 0; song < 5; ++song) many.run_for(180'500);
    Log shown;
    for (int item = 1; item <= 5; ++item) shown.push_back(many.tray.mnuSong(item).caption);
    EXPECT_EQ(shown, (Log{"D.mid", "G.mid", "E.mid", "C.mid", "B.mid"}));
    EXPECT_EQ(many.program.RecentSongs[4].folder, "/music/");
}

}  // namespace
}  // namespace zephyne::test
