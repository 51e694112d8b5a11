#include "tests/support/world.h"

#include <gtest/gtest.h>

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
        world.expect_in_one_piece();
    }
    Log remaining() const { return World::names(world.form.List1); }

    World world{{"a.mid", "b.mid", "c.mid", "notes.txt"}, GetParam()};
    std::string other;
};

INSTANTIATE_TEST_SUITE_P(Of, HandedOver, testing::Values(PathStyle::posix, PathStyle::windows),
                         style_name);

TEST_P(HandedOver, ASongOfTheShownFolderPlaysAndAllOthersRemain) {
    for (const std::string& line :
         {world.path("b.mid"), world.path("B.MID"), std::string("b.mid")}) {
        start(PlayMode::Alpha);
        hand_over(line);
        EXPECT_EQ(world.happened(), (Log{"close a.mid", "open b.mid", "play b.mid"})) << line;
        EXPECT_EQ(world.form.File1.selected(), 1U);
        EXPECT_EQ(remaining(), (Log{"a.mid", "c.mid"}));
        EXPECT_EQ(world.counts(), "3, 2");
        EXPECT_EQ(world.program.RecentSongs[0].name, "a.mid");
    }
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
    world.finish_song();
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
    world.finish_song();
    EXPECT_EQ(world.form.title(), "Zephyne - Playing c.mid");
    world.finish_song();
    EXPECT_EQ(world.form.title(), "Zephyne - Playing a.mid");
}

TEST_P(HandedOver, ContinuousPlayKeepsAllSongsAndManualModeItsCounter) {
    world.settings().Continuous = 1;
    start(PlayMode::Alpha);
    hand_over(world.path("b.mid"));
    EXPECT_EQ(remaining(), (Log{"a.mid", "b.mid", "c.mid"}));
    EXPECT_EQ(world.form.Label4.caption(), "Continuous");

    start(PlayMode::Manual);
    world.form.Label4.set_caption("N/A");
    hand_over(world.path("b.mid"));
    EXPECT_EQ(world.form.Label4.caption(), "N/A");
    EXPECT_EQ(world.form.title(), "Zephyne - Playing b.mid");
}

TEST_P(HandedOver, ANameWithoutAFolderMustBeInTheShownOne) {
    (void)world.form.Dir1.set_path(other);
    start(PlayMode::Alpha);
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
    world.finish_song();
    EXPECT_EQ(world.form.title(), "Zephyne - Playing b.mid") << "the order goes on";

    world.files.add_file(in_other("notes.txt"));
    world.happened();
    hand_over(in_other("notes.txt"));
    EXPECT_EQ(world.happened(), Log{kUnknown});
    EXPECT_EQ(World::names(world.form.File1), (Log{"x.mid", "y.mid"})) << "its folder comes";
    world.finish_song();
    EXPECT_EQ(world.form.title(), "Zephyne - Playing x.mid");
}

TEST_P(HandedOver, WhileAMessageIsOpenASongPlaysAndStays) {
    const std::string folder = with_separator(world.folder, GetParam());
    const auto broken_in_playlist = [&](World& w) {
        w.open_playlist({"a.mid|" + folder, "b.mid|" + folder});
        w.midi.broken = {"a.mid"};
        w.click("a.mid");
    };
    const auto deleted_before = [](std::function<void(World&)> end) {
        return [end = std::move(end)](World& w) {
            w.open_folder();
            w.click("a.mid");
            w.files.remove(w.path("a.mid"));
            end(w);
        };
    };
    const std::vector<std::function<void(World&)>> acts = {
        broken_in_playlist, deleted_before([](World& w) { w.finish_song(); }),
        deleted_before([](World& w) { w.form.MMControl1.press(TransportKey::stop); })};
    for (const auto& act : acts) {
        World fresh({"a.mid", "b.mid"}, GetParam());
        fresh.settings().AutoReset = 0;
        fresh.messages.while_open = [&] {
            fresh.hand_over(fresh.path("b.mid"));
            fresh.run_for(1500);
        };
        act(fresh);
        EXPECT_EQ(fresh.open_song(), "b.mid");
        EXPECT_EQ(fresh.device.Mode(), DeviceMode::playing);
        fresh.expect_in_one_piece();
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
    const std::string folder = with_separator(world.folder, GetParam());
    world.start_playlist(PlayMode::Alpha, {"a.mid|" + folder, "c.mid|" + folder});
    const Log before = remaining();
    hand_over(in_other("x.mid"));
    EXPECT_EQ(world.form.title(), "Zephyne - Playing " + in_other("x.mid"));
    EXPECT_EQ(world.form.File1.selected(), std::nullopt);
    EXPECT_EQ(world.form.File1.count(), 2U);
    EXPECT_EQ(remaining(), before);
    world.finish_song();
    EXPECT_EQ(world.form.title(), "Zephyne - Playing c.mid") << "then the list goes on";
}

TEST_P(HandedOver, DuringThePauseBetweenSongsItWaitsForTheNextSong) {
    world.settings().AutoDelay = 1;
    start(PlayMode::Alpha);
    world.run_for(179'000);
    world.pump.arrive_when([&] { return world.program.DelayActive; },
                           [&] { world.hand_over(world.path("c.mid")); });
    world.run_for(1000);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing b.mid");
    world.run_for(1000);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing c.mid");
    EXPECT_EQ(remaining(), (Log{"a.mid", "b.mid"}));
}

}  // namespace
}  // namespace zephyne::test
