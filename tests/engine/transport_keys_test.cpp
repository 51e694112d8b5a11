#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

class Keys : public testing::Test {
  protected:
    Keys() {
        world.settings().AutoReset = 0;
        world.settings().AllowWav = 1;
        world.open_folder();
        world.click("A.mid");
        world.run_for(60'200);
        world.happened();
    }
    void press(TransportKey key) { world.form.MMControl1.press(key); }
    // What the window and the tray's menu say: title, Pause entry, Stop entry.
    std::string shown() const {
        return world.form.title() + ", " + World::shown(world.tray.mnuPause) + ", " +
               World::shown(world.tray.mnuStop);
    }

    World world{"A.mid", "B.wav", "C.avi"};
};

TEST_F(Keys, PauseHoldsTheSongAndPauseGoesOnInTheSamePlace) {
    EXPECT_EQ(shown(), "Zephyne - Playing A.mid, Pause, Stop");
    press(TransportKey::pause);
    EXPECT_EQ(shown(), "Zephyne - Paused, Play, Stop (off)");
    EXPECT_EQ(world.form.MMControl1.light(), TransportLight::pause);
    EXPECT_TRUE(world.program.PausedByUser);
    world.run_for(3'600'000);
    EXPECT_EQ(world.device.Position(), 60'200);

    press(TransportKey::pause);
    EXPECT_EQ(shown(), "Zephyne - Playing A.mid, Pause, Stop");
    EXPECT_TRUE(world.program.PausedByUser) << "resuming does not clear it";
    EXPECT_FALSE(world.form.Timer3.enabled());
    world.run_for(1000);
    EXPECT_EQ(world.device.Position(), 61'200);
    EXPECT_EQ(world.happened(), (Log{"pause A.mid", "play A.mid"}));
    world.run_for(120'000);
    EXPECT_FALSE(world.program.PausedByUser) << "but the end of the song does";
}

TEST_F(Keys, PlayGoesOnAfterAPauseToo) {
    press(TransportKey::pause);
    world.form.Label6.set_caption("");
    press(TransportKey::play);
    EXPECT_EQ(shown(), "Zephyne - Playing A.mid, Pause, Stop");
    EXPECT_EQ(world.form.Label6.caption(), "03:00");
    EXPECT_FALSE(world.form.Timer3.enabled());
    EXPECT_EQ(world.happened(), (Log{"pause A.mid", "play A.mid"}));
}

TEST_F(Keys, StopReloadsTheSongWhichThenPlaysFromItsStart) {
    press(TransportKey::stop);
    EXPECT_EQ(world.happened(), (Log{"close A.mid", "open A.mid", "pause A.mid"}));
    EXPECT_EQ(world.device.Mode(), DeviceMode::stopped) << "the device has followed the key";
    EXPECT_EQ(shown(), "Zephyne, Pause (off), Play");
    EXPECT_EQ(world.form.Label6.caption() + world.form.Label13.caption(), "");
    EXPECT_EQ(world.form.Slider1.value(), 0);

    press(TransportKey::play);
    EXPECT_EQ(shown(), "Zephyne - Playing A.mid, Pause, Stop");
    EXPECT_EQ(world.device.Position(), 0);
    world.run_for(180'000);
    EXPECT_EQ(world.happened(), (Log{"play A.mid", "close A.mid", "open A.mid", "pause A.mid"}))
        << "it ends like any other";
}

TEST_F(Keys, StopBeepsForAWaveSong) {
    world.click("B.wav");
    world.happened();
    press(TransportKey::stop);
    EXPECT_EQ(world.happened(), (Log{"beep", "wave: close B.wav", "wave: open B.wav"}));
    press(TransportKey::play);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing B.wav");
    world.click("C.avi");
    world.happened();
    press(TransportKey::stop);
    EXPECT_EQ(world.happened(), (Log{"video: close C.avi", "video: open C.avi"}));
}

TEST_F(Keys, StopReportsASongThatHasGone) {
    world.files.remove(world.path("A.mid"));
    press(TransportKey::stop);
    EXPECT_EQ(world.happened(),
              (Log{"close A.mid", "message: File was apparently deleted or moved. [Error]"}));
    EXPECT_EQ(world.program.CurrentSongName, "");
    world.expect_in_one_piece();
}

TEST_F(Keys, PlayWithoutAPlayableFileSaysSo) {
    world.midi.mute = {"A.mid"};
    press(TransportKey::stop);
    world.happened();
    press(TransportKey::play);
    EXPECT_EQ(world.happened(),
              (Log{"play A.mid", "message: Error - MCI Device may be in use. [Error]"}));
    EXPECT_EQ(shown(), "Zephyne, Pause (off), Play") << "nothing else changes";
}

TEST_F(Keys, WithNothingOpenPauseAndStopDoNothing) {
    World fresh{"A.mid"};
    fresh.open_folder();
    fresh.form.MMControl1.press(TransportKey::pause);
    fresh.form.MMControl1.press(TransportKey::stop);
    EXPECT_EQ(fresh.happened(), Log{});
    EXPECT_EQ(fresh.form.title(), "Zephyne");
    EXPECT_FALSE(fresh.form.Timer3.enabled());
}

TEST_F(Keys, EachUnlocksAListThatTheFindBoxHasLocked) {
    for (const TransportKey key : {TransportKey::pause, TransportKey::pause, TransportKey::stop}) {
        world.form.text2.type("b");
        EXPECT_FALSE(world.form.File1.enabled());
        press(key);
        world.expect_window_unlocked();
        EXPECT_EQ(world.form.File1.selected(), 0U) << "the song that plays";
        EXPECT_EQ(world.form.text2.text(), "");
    }
}

TEST_F(Keys, AreDeadWhileTheSynthesizerIsReset) {
    world.settings().AutoReset = 1;
    world.pump.on_pump = [&] {
        if (!world.program.SwitchingSong) return;
        for (const TransportKey key : {TransportKey::play, TransportKey::pause, TransportKey::stop})
            press(key);
    };
    world.finish_song();
    EXPECT_EQ(world.happened(), (Log{"close A.mid", "open gm_reset.aut", "play gm_reset.aut",
                                     "close gm_reset.aut", "open A.mid", "pause A.mid"}));
}

}  // namespace
}  // namespace zephyne::test
