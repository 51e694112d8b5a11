#include "tests/support/world.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace zephyne::test {
namespace {

const std::string kNotFound = "message: Error - File not found! [Error]";
const std::string kUnknown = "message: Unknown Error [Error]";

// Another copy of the program hands over a song, in both styles of paths.
class HandedOver : public testing::TestWithParam<PathStyle> {
  protected:
    HandedOver() {
        world.settings().AutoReset = 0;
        world.settings().Lowercase = 0;
        other = world.path("other");
        world.files.add_file(in_other("x.mid"));
        world.files.add_file(in_other("y.mid"));
    }
    std::string in_other(const std::string& name) const { return joined(other, name, GetParam()); }

    void start(std::int32_t mode) {
        world.start(mode);
        world.happened();
    }
    void hand_over(const std::string& path) {
        world.hand_over(path);
        world.run_for(1500);
        EXPECT_EQ(world.form.Label15.caption(), "");
        world.expect_title_tells_the_truth();
        world.expect_window_unlocked();
        world.expect_flags_at_rest();
    }
    Log remaining() const { return World::names(world.form.List1); }

    World world{{"a.mid", "b.mid", "c.mid", "notes.txt"}, GetParam()};
    std::string other;
};

INSTANTIATE_TEST_SUITE_P(Of, HandedOver, testing::Values(PathStyle::posix, PathStyle::windows),
                         [](const auto& tested) {
                             return tested.param == PathStyle::posix ? "Posix" : "Windows";
                         });

TEST_P(HandedOver, ASongOfTheShownFolderPlaysAndAllOthersRemain) {
    world.random.numbers = {0.99};
    start(PlayMode::Random);
    hand_over(world.path("b.mid"));
    EXPECT_EQ(world.happened(), (Log{"close c.mid", "open b.mid", "play b.mid"}));
    EXPECT_EQ(world.form.File1.selected(), 1U);
    EXPECT_EQ(remaining(), (Log{"a.mid", "c.mid"}));
    EXPECT_EQ(world.form.Label2.caption(), "3");
    EXPECT_EQ(world.form.Label4.caption(), "2");
    EXPECT_EQ(world.program.RecentSongs[0].name, "c.mid");
}

TEST_P(HandedOver, ASongOfAnotherFolderBringsItsFolder) {
    start(PlayMode::Alpha);
    world.form.MMControl1.press(TransportKey::pause);
    hand_over(in_other("x.mid"));
    EXPECT_EQ(world.form.Dir1.path(), other);
    EXPECT_EQ(World::names(world.form.File1), (Log{"x.mid", "y.mid"}));
    EXPECT_EQ(world.form.title(), "Zephyne - Playing x.mid");
    EXPECT_EQ(remaining(), Log{"y.mid"});
    EXPECT_FALSE(world.program.PausedByUser);
    world.run_for(180'000);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing y.mid");
}

TEST_P(HandedOver, ASongOnAnotherDriveBringsItsDrive) {
    const std::string first = GetParam() == PathStyle::posix ? "/" : "C:\\";
    const std::string second = GetParam() == PathStyle::posix ? "/disk" : "D:\\";
    start(PlayMode::Alpha);
    world.files.add_volume(first, "first");
    world.files.add_volume(second, "second");
    world.files.add_file(joined(joined(second, "songs", GetParam()), "z.mid", GetParam()));
    hand_over(joined(joined(second, "songs", GetParam()), "z.mid", GetParam()));
    EXPECT_EQ(world.form.Drive1.drive().root, second);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing z.mid");
}

TEST_P(HandedOver, TheNewCycleRunsBackwardsWhereTheOrderDoes) {
    world.settings().Reverse = 1;
    start(PlayMode::Alpha);
    hand_over(world.path("b.mid"));
    world.run_for(180'000);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing c.mid");
    world.run_for(180'000);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing a.mid");
}

TEST_P(HandedOver, ContinuousPlayKeepsAllSongs) {
    world.settings().Continuous = 1;
    start(PlayMode::Alpha);
    hand_over(world.path("b.mid"));
    EXPECT_EQ(remaining(), (Log{"a.mid", "b.mid", "c.mid"}));
    EXPECT_EQ(world.form.Label4.caption(), "Continuous");
}

TEST_P(HandedOver, InManualModeTheCounterOfSongsToPlayIsLeftAlone) {
    start(PlayMode::Manual);
    world.form.Label4.set_caption("N/A");
    hand_over(world.path("b.mid"));
    EXPECT_EQ(world.form.Label4.caption(), "N/A");
    EXPECT_EQ(world.form.title(), "Zephyne - Playing b.mid");
}

TEST_P(HandedOver, ANameInOtherLettersFindsItsSong) {
    start(PlayMode::Alpha);
    hand_over(world.path("B.MID"));
    EXPECT_EQ(world.happened(), (Log{"close a.mid", "open b.mid", "play b.mid"}));
    EXPECT_EQ(world.form.File1.selected(), 1U);
    EXPECT_EQ(remaining(), (Log{"a.mid", "c.mid"}));
}

TEST_P(HandedOver, ANameWithoutAFolderIsTakenFromTheShownFolder) {
    start(PlayMode::Alpha);
    hand_over("b.mid");
    EXPECT_EQ(world.program.CurrentSongPath, world.path("b.mid"));

    (void)world.form.Dir1.set_path(other);
    world.happened();
    hand_over("b.mid");
    EXPECT_EQ(world.happened().back(),
              "message: Error - Path is unspecified for the current file.  Can't locate file! "
              "[Error]");
    EXPECT_EQ(world.form.title(), "Zephyne - Playing x.mid");
}

TEST_P(HandedOver, WhatIsNoSongOrIsNotThereIsReported) {
    start(PlayMode::Alpha);
    hand_over(world.path("missing.mid"));
    EXPECT_EQ(world.happened(), Log{kNotFound});
    hand_over(world.path("notes.txt"));
    EXPECT_EQ(world.happened(), Log{kUnknown});
    EXPECT_EQ(world.form.title(), "Zephyne - Playing a.mid");
    EXPECT_EQ(world.form.File1.selected(), 0U) << "what plays is still selected";
    world.run_for(180'000);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing b.mid") << "the order goes on";
}

TEST_P(HandedOver, WhatIsNoSongOfAnotherFolderStillBringsItsFolder) {
    world.files.add_file(in_other("notes.txt"));
    start(PlayMode::Alpha);
    hand_over(in_other("notes.txt"));
    EXPECT_EQ(world.happened(), Log{kUnknown});
    EXPECT_EQ(World::names(world.form.File1), (Log{"x.mid", "y.mid"}));
    world.run_for(180'000);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing x.mid");
}

TEST_P(HandedOver, WhileAMessageIsOpenASongPlaysAndStays) {
    const std::string folder = with_separator(world.folder, GetParam());
    const auto broken_in_playlist = [&](World& w) {
        w.open_playlist({"a.mid|" + folder, "b.mid|" + folder});
        w.midi.broken = {"a.mid"};
        w.click("a.mid");
    };
    const auto deleted_while_it_played = [&](World& w) {
        w.open_folder();
        w.click("a.mid");
        w.files.remove(w.path("a.mid"));
        w.midi.finish();
        w.pump.pump();
    };
    const auto deleted_before_stop = [&](World& w) {
        w.open_folder();
        w.click("a.mid");
        w.files.remove(w.path("a.mid"));
        w.form.MMControl1.press(TransportKey::stop);
    };
    for (const std::function<void(World&)>& act :
         {std::function<void(World&)>(broken_in_playlist),
          std::function<void(World&)>(deleted_while_it_played),
          std::function<void(World&)>(deleted_before_stop)}) {
        World fresh({"a.mid", "b.mid"}, GetParam());
        fresh.settings().AutoReset = 0;
        fresh.messages.while_open = [&] {
            fresh.hand_over(fresh.path("b.mid"));
            fresh.run_for(1500);
        };
        act(fresh);
        EXPECT_EQ(fresh.open_song(), "b.mid");
        EXPECT_EQ(fresh.device.Mode(), DeviceMode::playing);
        fresh.expect_title_tells_the_truth();
        fresh.expect_window_unlocked();
        fresh.expect_flags_at_rest();
    }
}

TEST_P(HandedOver, AFolderThatCannotBeShownIsReportedAndTheSongGoesOn) {
    start(PlayMode::Alpha);
    world.files.deny_listing(other);
    world.messages.while_open = [&] { world.run_for(200'000); };
    hand_over(in_other("x.mid"));
    EXPECT_EQ(world.happened().front(), "message: Error - Permission denied [Error]");
    EXPECT_EQ(world.form.Dir1.path(), world.folder);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing b.mid") << "also while the message is open";
}

TEST_P(HandedOver, BesideAPlaylistTheSongPlaysAndTheListStays) {
    world.open_playlist({"a.mid|" + with_separator(world.folder, GetParam()),
                         "c.mid|" + with_separator(world.folder, GetParam())});
    world.settings().Mode = PlayMode::Alpha;
    world.engine->order.RefillAndPlayNext();
    const Log before = remaining();
    hand_over(in_other("x.mid"));
    EXPECT_EQ(world.form.title(), "Zephyne - Playing " + in_other("x.mid"));
    EXPECT_EQ(world.form.File1.selected(), std::nullopt);
    EXPECT_EQ(world.form.File1.count(), 2U);
    EXPECT_EQ(remaining(), before);
    world.run_for(180'000);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing c.mid") << "then the list goes on";
}

TEST_P(HandedOver, InQueueModeSongsWaitInTheOrderOfTheirArrival) {
    world.settings().Mode = PlayMode::Queue;
    world.form.Timer5.set_enabled(true);
    world.run_for(1000);
    EXPECT_FALSE(world.form.Command19.enabled());
    for (const char* song : {"c.mid", "a.mid", "b.mid"}) hand_over(world.path(song));
    world.run_for(1000);
    EXPECT_EQ(World::names(world.form.List2),
              (Log{world.path("c.mid"), world.path("a.mid"), world.path("b.mid")}));
    EXPECT_TRUE(world.form.Command19.enabled());
    EXPECT_EQ(world.played(), Log{});
}

TEST_P(HandedOver, DuringThePauseBetweenSongsItWaitsForTheNextSong) {
    world.settings().AutoDelay = 1;
    world.settings().AutoDelayTime = 5;
    start(PlayMode::Alpha);
    world.run_for(179'000);
    world.pump.on_pump = [&] {
        if (world.program.DelayActive) world.hand_over(world.path("c.mid"));
    };
    world.run_for(1000);
    world.pump.on_pump = nullptr;
    EXPECT_EQ(world.form.title(), "Zephyne - Playing b.mid");
    world.run_for(1000);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing c.mid");
    EXPECT_EQ(remaining(), (Log{"a.mid", "b.mid"}));
}

}  // namespace
}  // namespace zephyne::test
