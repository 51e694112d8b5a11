// The road of one song, from its start to the start of the next, with its side doors.
#include "tests/support/world.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace zephyne::test {
namespace {

const std::string kDoesNotPlay =
    "message: Error - MCI Device may be in use or file may be corrupt or have been deleted. "
    "[Error]";
const std::string kGone = "message: File was apparently deleted or moved. [Error]";

class Road : public testing::Test {
  protected:
    Road() {
        world.settings().AllowWav = 1;
        world.settings().ResetType = 2;
    }

    // The services of the rooms above, which write down when they are called.
    void watch_services() {
        SongServices& services = world.stage.services;
        services.release_presets = [this] { world.log.push_back("presets"); };
        services.show_note = [this](const std::string& song) {
            world.log.push_back("note of " + song);
        };
        services.apply_remembered_volume = [this](const std::string& song) {
            world.log.push_back("volume of " + song);
        };
        services.getsonginfo = [this] { world.log.push_back("summary"); };
    }
    void finish_song() {
        world.midi.finish();
        world.pump.pump();
    }
    std::string image_of_pause_item() const {
        const MenuItem& item = world.tray.mnuPause;
        return item.caption + (item.enabled ? "" : " (off)");
    }
    std::string image_of_stop_item() const {
        const MenuItem& item = world.tray.mnuStop;
        return item.caption + (item.enabled ? "" : " (off)");
    }

    World world{"A.mid", "B.mid", "C.wav"};
};

TEST_F(Road, AMidiSongFollowsTheResetAndAWaveSongDoesNot) {
    world.start(PlayMode::Alpha);
    EXPECT_EQ(world.happened(), (Log{"open gs_reset.aut", "play gs_reset.aut", "close gs_reset.aut",
                                     "open A.mid", "play A.mid"}));
    world.form.Command9.click();
    world.form.Command9.click();
    EXPECT_EQ(world.happened(), (Log{"close A.mid", "open gs_reset.aut", "play gs_reset.aut",
                                     "close gs_reset.aut", "open B.mid", "play B.mid",
                                     "close B.mid", "wave: open C.wav", "wave: play C.wav"}));
}

TEST_F(Road, WithoutAResetOrItsFileTheSongsStillStart) {
    world.settings().AutoReset = 0;
    world.start(PlayMode::Alpha);
    EXPECT_EQ(world.happened(), (Log{"open A.mid", "play A.mid"}));
    world.settings().AutoReset = 1;
    world.program.ResetFilePresent = false;
    world.form.Command9.click();
    EXPECT_EQ(world.happened(), (Log{"close A.mid", "open B.mid", "play B.mid"}));
    world.program.ResetFilePresent = true;
    world.midi.broken = {"gs_reset.aut"};
    world.form.Command6.click();
    EXPECT_EQ(world.happened(),
              (Log{"close B.mid", "cannot open gs_reset.aut", "open A.mid", "play A.mid"}));
}

TEST_F(Road, EachResetTypeHasItsFile) {
    const std::vector<std::pair<std::int32_t, std::string>> table = {
        {0, "gm"}, {1, "xg"}, {2, "gs"}, {7, "gm"}};
    world.open_folder();
    for (const auto& [type, name] : table) {
        world.settings().ResetType = type;
        world.happened();
        world.engine->between.ResetSynth();
        EXPECT_EQ(world.happened().front(), "open " + name + "_reset.aut");
        EXPECT_EQ(world.form.title(), "Resetting MCI Sequencer...");
        EXPECT_EQ(world.form.Ones.image(), reset_image(0));
        world.expect_flags_at_rest();
    }
}

TEST_F(Road, ASongStartsWithItsNoteItsVolumeAndItsSummary) {
    watch_services();
    world.settings().AutoReset = 0;
    world.settings().AutoNotes = 1;
    world.files.add_file(world.path("A.nte"));
    world.start(PlayMode::Alpha);
    EXPECT_EQ(world.happened(), (Log{"presets", "note of /music/A.mid", "volume of /music/A.mid",
                                     "open A.mid", "play A.mid", "summary"}));
    world.settings().Extended = 0;
    world.form.Command9.click();
    EXPECT_EQ(world.happened(),
              (Log{"close A.mid", "presets", "volume of /music/B.mid", "open B.mid", "play B.mid"}))
        << "no note, and a small window";
    world.settings().AutoNotes = 0;
    world.click("A.mid");
    EXPECT_EQ(world.happened(), (Log{"close B.mid", "presets", "volume of /music/A.mid",
                                     "open A.mid", "play A.mid"}));
}

TEST_F(Road, AResumedSongGoesOnInItsPlaceWithoutTheExtrasOfAStart) {
    world.settings().AutoNotes = 1;
    world.files.add_file(world.path("A.nte"));
    world.start(PlayMode::Alpha);
    world.run_for(90'200);
    watch_services();
    world.happened();
    world.form.SSCommand1.click();
    EXPECT_EQ(world.happened(),
              (Log{"pause A.mid", "close A.mid", "open gs_reset.aut", "play gs_reset.aut",
                   "close gs_reset.aut", "volume of /music/A.mid", "open A.mid",
                   "play A.mid from 90200"}));
    EXPECT_EQ(world.form.title(), "Zephyne - Playing A.mid");
    EXPECT_EQ(world.form.Slider1.value(), 50);
    EXPECT_EQ(world.program.ResumePosition, 0);
    world.expect_flags_at_rest();
}

TEST_F(Road, TheResetKeyResetsEvenWhereSongsAreNot) {
    world.settings().AutoReset = 0;
    world.open_folder();
    world.form.SSCommand1.click();
    EXPECT_EQ(world.happened(),
              (Log{"open gs_reset.aut", "play gs_reset.aut", "close gs_reset.aut"}));
    EXPECT_EQ(world.form.title(), "Zephyne");
    EXPECT_EQ(world.settings().AutoReset, 0);
    world.program.ResetFilePresent = false;
    world.form.SSCommand1.click();
    EXPECT_EQ(world.happened(), Log{});
}

TEST_F(Road, ASongThatDoesNotPlayIsReportedAndNothingElseIsTried) {
    const auto vanish = [&] { world.files.vanish(world.path("B.mid")); };
    const auto damage = [&] { world.midi.broken = {"B.mid"}; };
    const auto never_start = [&] { world.midi.mute = {"B.mid"}; };
    for (const std::function<void()>& spoil :
         {std::function<void()>(never_start), std::function<void()>(damage),
          std::function<void()>(vanish)}) {
        spoil();
        world.start(PlayMode::Alpha);
        world.happened();
        world.form.Command9.click();
        EXPECT_EQ(world.happened().back(), kDoesNotPlay);
        EXPECT_EQ(world.form.title(), "Zephyne");
        world.run_for(1'000'000);
        EXPECT_EQ(world.happened(), Log{});
        world.expect_window_unlocked();
        world.expect_flags_at_rest();
    }
}

TEST_F(Road, AFileThatIsNoSongIsPassedOver) {
    world.open_folder();
    world.form.File1.add({"x.mp3", {}});
    world.click("x.mp3");
    EXPECT_EQ(world.happened(), Log{});
    world.expect_window_unlocked();
    world.expect_flags_at_rest();
}

TEST_F(Road, AVanishedNameOfAnUnplayableKindLeavesNoPlaceToResume) {
    world.open_folder();
    world.program.CurrentSongName = world.program.CurrentSongPath = world.path("x.txt");
    world.program.ResumePosition = 5000;
    world.engine->player.PlayFile();
    world.click("A.mid");
    EXPECT_EQ(world.played(), Log{"A.mid"}) << "from its start";
}

TEST_F(Road, AShortSongThatIsOverBeforeItsStartIsDoneHasPlayed) {
    world.midi.lengths = {{"A.mid", 25}, {"B.mid", 25}};
    world.settings().AutoReset = 0;
    int pumps = 0;
    world.pump.on_pump = [&] {
        if (++pumps < 12) world.clock.advance_to(world.clock.now() + 30);
    };
    world.start(PlayMode::Alpha);
    world.run_for(1000);
    for (const std::string& line : world.happened()) EXPECT_NE(line, kDoesNotPlay);
    EXPECT_EQ(world.open_song(), "C.wav");
}

TEST_F(Road, InManualModeAFinishedSongWaitsAtItsStart) {
    world.open_folder();
    world.click("A.mid");
    world.happened();
    finish_song();
    EXPECT_EQ(world.happened(), (Log{"close A.mid", "open gs_reset.aut", "play gs_reset.aut",
                                     "close gs_reset.aut", "open A.mid", "pause A.mid"}));
    EXPECT_EQ(world.form.title(), "Zephyne");
    EXPECT_EQ(world.form.Label6.caption(), "");
    EXPECT_EQ(world.form.Label13.caption(), "");
    EXPECT_EQ(world.form.Slider1.value(), 0);
    EXPECT_EQ(image_of_pause_item(), "Pause (off)");
    EXPECT_EQ(image_of_stop_item(), "Play");
    world.run_for(500'000);
    EXPECT_EQ(world.happened(), Log{});
    world.form.MMControl1.press(TransportKey::play);
    EXPECT_EQ(world.happened(), Log{"play A.mid"});
    finish_song();
    EXPECT_EQ(world.happened().back(), "pause A.mid") << "it ends as before";
}

TEST_F(Road, AWaveSongThatHasEndedWaitsToo) {
    world.open_folder();
    world.click("C.wav");
    world.happened();
    world.wave.finish();
    world.pump.pump();
    EXPECT_EQ(world.happened(),
              (Log{"wave: close C.wav", "wave: open C.wav", "wave: pause C.wav"}));
}

TEST_F(Road, ASongDeletedWhileItPlayedIsReportedAtItsEnd) {
    world.open_folder();
    world.click("A.mid");
    world.files.remove(world.path("A.mid"));
    world.happened();
    finish_song();
    EXPECT_EQ(world.happened().back(), kGone);
    EXPECT_EQ(world.program.CurrentSongPath, "");
    EXPECT_FALSE(world.device.is_open());
    world.expect_window_unlocked();
    world.form.MMControl1.press(TransportKey::stop);
    EXPECT_EQ(world.happened(), Log{});
}

TEST_F(Road, WithRepeatTheSameSongStartsAgainInEveryMode) {
    world.settings().AutoRepeat = 1;
    for (const std::int32_t mode : {PlayMode::Alpha, PlayMode::Manual, PlayMode::Preview}) {
        world.start(mode);
        world.click("B.mid");
        world.happened();
        finish_song();
        EXPECT_EQ(world.happened(), (Log{"close B.mid", "open B.mid", "play B.mid"}));
        EXPECT_EQ(world.form.title(), "Zephyne - Playing B.mid");
    }
}

TEST_F(Road, ASongThatBreaksWhileItPlaysMakesTheSystemBeep) {
    world.start(PlayMode::Alpha);
    world.happened();
    world.midi.fail();
    world.run_for(10'000);
    EXPECT_EQ(world.happened(), Log{"beep"});
}

TEST_F(Road, TheQueueIsServedWhenItsSongEnds) {
    world.settings().Mode = PlayMode::Queue;
    world.form.Command19.set_visible(true);
    world.settings().AutoReset = 0;
    world.program.CurrentSongName = world.program.CurrentSongPath = world.path("A.mid");
    world.engine->player.PlayFile();
    world.happened();
    finish_song();
    EXPECT_EQ(world.happened(), (Log{"close A.mid", "open A.mid", "pause A.mid"}));
    EXPECT_EQ(world.form.title(), "Zephyne");

    for (const char* song : {"gone.mid", "C.wav", "B.mid"}) {
        world.form.List2.add({world.path(song), {}});
    }
    world.form.MMControl1.press(TransportKey::play);
    finish_song();
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
    finish_song();
    EXPECT_EQ(world.happened().back(), kGone);
    EXPECT_EQ(world.form.List2.count(), 1U) << "not served this time";
}

TEST_F(Road, TheFiveLastSongsAreKeptAndShownNewestFirst) {
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
