// How a song starts: the reset before it, what comes with it, and what happens when it cannot.
#include "tests/support/world.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zephyne::test {
namespace {

const std::string kDoesNotPlay =
    "message: Error - MCI Device may be in use or file may be corrupt or have been deleted. "
    "[Error]";

class Start : public testing::Test {
  protected:
    Start() {
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

    World world{"A.mid", "B.mid", "C.wav"};
};

TEST_F(Start, AMidiSongFollowsTheResetAndAWaveSongDoesNot) {
    world.start(PlayMode::Alpha);
    EXPECT_EQ(world.happened(), (Log{"open gs_reset.aut", "play gs_reset.aut", "close gs_reset.aut",
                                     "open A.mid", "play A.mid"}));
    world.form.Command9.click();
    world.form.Command9.click();
    EXPECT_EQ(world.happened(), (Log{"close A.mid", "open gs_reset.aut", "play gs_reset.aut",
                                     "close gs_reset.aut", "open B.mid", "play B.mid",
                                     "close B.mid", "wave: open C.wav", "wave: play C.wav"}));
}

TEST_F(Start, WithoutAResetOrItsFileTheSongsStillStart) {
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

TEST_F(Start, EachResetTypeHasItsFile) {
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

TEST_F(Start, ASongStartsWithItsNoteItsVolumeAndItsSummary) {
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

TEST_F(Start, AResumedSongGoesOnInItsPlaceWithoutTheExtrasOfAStart) {
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

TEST_F(Start, TheResetKeyResetsEvenWhereSongsAreNot) {
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

TEST_F(Start, WhatTheUserTouchesDuringTheResetNeitherSkipsNorRepeatsASong) {
    const Log usual = {"open gs_reset.aut", "play gs_reset.aut", "close gs_reset.aut", "open A.mid",
                       "play A.mid"};
    const std::vector<std::function<void()>> touches = {
        [this] { world.form.text2.type(world.form.text2.text() == "b" ? "a" : "b"); },
        [this] { world.form.SSCommand1.click(); },
        [this] { world.form.Command9.click(); },
        [this] { world.form.Command6.click(); },
    };
    for (const auto& touch : touches) {
        world.device.StopAndClose();
        world.happened();
        world.pump.on_pump = [&] {
            if (world.program.SwitchingSong) touch();
        };
        world.start(PlayMode::Alpha);
        world.pump.on_pump = nullptr;
        EXPECT_EQ(world.happened(), usual);
    }
}

TEST_F(Start, ASongStartedFromElsewhereDuringTheResetIsNotStartedTwice) {
    world.pump.arrive_in(4, [&] { world.engine->player.PlayFile(); });  // the last of the reset
    world.start(PlayMode::Alpha);
    EXPECT_EQ(world.played(), Log{"A.mid"});
    EXPECT_EQ(world.form.title(), "Zephyne - Playing A.mid");
}

TEST_F(Start, ASongCalledForDuringTheResetOfAnotherBeginsAtItsStartAndStays) {
    const std::vector<std::pair<std::string, std::function<void()>>> resets = {
        {"reset key", [this] { world.form.SSCommand1.click(); }},
        {"stop key", [this] { world.form.MMControl1.press(TransportKey::stop); }},
    };
    for (const auto& [name, reset] : resets) {
        for (int at = 1; at <= 3; ++at) {
            SCOPED_TRACE(name + ", pump " + std::to_string(at));
            world.start(PlayMode::Alpha);
            world.run_for(90'200);
            world.happened();
            world.pump.arrive_in(at, [&] { world.engine->order.PlayNextSong(); });
            reset();
            const Log log = world.happened();
            EXPECT_EQ(std::count(log.begin(), log.end(), "play B.mid"), 1);
            EXPECT_EQ(log.back(), "play B.mid");
            world.expect_title_tells_the_truth();
            world.expect_flags_at_rest();
        }
    }
}

TEST_F(Start, NextInManualModeIsNotHalfHeardDuringTheReset) {
    world.open_folder();
    world.click("A.mid");
    world.pump.on_pump = [&] {
        if (world.program.SwitchingSong) world.form.Command9.click();
    };
    world.form.MMControl1.press(TransportKey::stop);
    world.pump.on_pump = nullptr;
    EXPECT_EQ(world.form.File1.item(*world.form.File1.selected()).text,
              world.program.CurrentSongName);
}

TEST_F(Start, ASongThatDoesNotPlayIsReportedAndNothingElseIsTried) {
    const std::vector<std::function<void()>> faults = {
        [&] { world.midi.mute = {"B.mid"}; }, [&] { world.midi.broken = {"B.mid"}; },
        [&] { world.files.vanish(world.path("B.mid")); }};
    for (const auto& spoil : faults) {
        spoil();
        world.start(PlayMode::Alpha);
        world.happened();
        world.form.Command9.click();
        EXPECT_EQ(world.happened().back(), kDoesNotPlay);
        world.run_for(1'000'000);
        EXPECT_EQ(world.happened(), Log{});
        world.expect_in_one_piece();
    }
}

TEST_F(Start, AFileThatIsNoSongIsPassedOverAndLeavesNoPlaceToResume) {
    world.open_folder();
    world.form.File1.add({"x.mp3", {}});
    world.program.ResumePosition = 5000;
    world.click("x.mp3");
    EXPECT_EQ(world.happened(), Log{});
    world.expect_in_one_piece();
    world.click("A.mid");
    EXPECT_EQ(world.played(), Log{"A.mid"}) << "from its start";
}

TEST_F(Start, AShortSongThatIsOverBeforeItsStartIsDoneHasPlayed) {
    world.midi.lengths = {{"A.mid", 25}, {"B.mid", 25}};
    world.settings().AutoReset = 0;
    int pumps = 0;
    world.pump.on_pump = [&] {
        if (++pumps < 12) world.clock.advance_to(world.clock.now() + 30);
    };
    world.start(PlayMode::Alpha);
    world.run_for(1000);
    EXPECT_EQ(world.played(), (Log{"A.mid", "B.mid", "C.wav"}));
    for (const std::string& line : world.happened()) EXPECT_NE(line, kDoesNotPlay);
}

}  // namespace
}  // namespace zephyne::test
