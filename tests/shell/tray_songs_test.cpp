#include "shell/tray_songs.h"

#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

class RecentSongsInTheTray : public testing::Test {
  protected:
    RecentSongsInTheTray() {
        world.settings().AutoReset = 0;
        world.settings().ShowTray = 1;
        world.files.add_file("/other/X.mid");
        world.files.add_file("/other/Y.mid");
    }

    // A song that has been finished; the first one is the menu's last entry.
    void remember(const std::string& folder, const std::string& name) {
        auto& slot =
            world.program.RecentSongs[static_cast<std::size_t>(world.program.RecentCount++)];
        slot = {folder, name};
        MenuItem& entry = world.tray.mnuSong(6 - world.program.RecentCount);
        entry.caption = name;
        entry.visible = true;
    }
    void start(std::int32_t mode) {
        world.start(mode);
        world.run_for(500);
        world.happened();
    }

    World world{"A.mid", "B.mid", "C.mid"};
    TraySongs songs{world.stage, *world.engine};
};

TEST_F(RecentSongsInTheTray, ASongOfThisFolderPlaysAndTheRoundGoesOn) {
    start(PlayMode::Alpha);
    world.run_for(180'000);
    world.happened();
    EXPECT_EQ(world.open_song(), "B.mid");
    EXPECT_EQ(World::shown(world.tray.mnuSong(5)), "A.mid");
    world.tray.mnuSong(5).click();
    EXPECT_EQ(world.happened(), (Log{"close B.mid", "open A.mid", "play A.mid"}));
    EXPECT_EQ(world.program.RecentCount, 1) << "the song that made room is not recorded";
    EXPECT_EQ(world.form.Label2.caption() + " " + world.form.Label4.caption(), "3 1");
    world.run_for(180'000);
    EXPECT_EQ(world.open_song(), "C.mid");
    EXPECT_EQ(world.program.RecentCount, 1) << "A is in the menu already";
    world.expect_in_one_piece();
}

TEST_F(RecentSongsInTheTray, ASongOfAnotherFolderBeginsARoundThere) {
    remember("/other/", "Y.mid");
    start(PlayMode::Alpha);
    world.tray.mnuSong(5).click();
    EXPECT_EQ(world.form.Dir1.path(), "/other");
    EXPECT_EQ(world.open_song(), "Y.mid");
    EXPECT_EQ(World::names(world.form.List1), Log{"X.mid"});
    world.run_for(180'000);
    EXPECT_EQ(world.open_song(), "X.mid");

    world.settings().Continuous = 1;
    world.settings().Reverse = 1;
    remember("/music/", "B.mid");
    world.tray.mnuSong(4).click();
    EXPECT_EQ(world.form.List1.count(), 3U);
    EXPECT_EQ(world.program.OrderIndex, 2);
    EXPECT_EQ(world.form.Label4.caption(), "Continuous");
    world.expect_title_tells_the_truth();
}

TEST_F(RecentSongsInTheTray, ASongThatIsGoneIsPassedOverWithoutAWord) {
    remember("/music/", "Gone.mid");
    remember("/nowhere/", "A.mid");
    start(PlayMode::Alpha);
    world.tray.mnuSong(5).click();
    world.tray.mnuSong(4).click();
    world.files.deny_listing("/other");
    remember("/other/", "X.mid");
    world.tray.mnuSong(3).click();
    EXPECT_EQ(world.happened(), Log{});
    EXPECT_EQ(world.open_song(), "A.mid");
    world.expect_in_one_piece();
}

TEST_F(RecentSongsInTheTray, ASongThatIsNotListedIsAnUnknownError) {
    world.files.add_file("/other/noise.wav");
    remember("/other/", "noise.wav");
    start(PlayMode::Alpha);
    world.tray.mnuSong(5).click();
    EXPECT_EQ(world.happened(), Log{"message: Unknown Error [Error]"});
    EXPECT_EQ(world.open_song(), "A.mid");
    world.expect_in_one_piece();

    world.settings().AutoDelay = 1;
    world.messages.while_open = [&] { world.run_for(190'000); };
    world.tray.mnuSong(5).click();
    world.expect_window_unlocked();  // after a pause that began behind the message
}

TEST_F(RecentSongsInTheTray, NothingHappensWhileAnotherSongIsOnItsWay) {
    remember("/music/", "B.mid");
    start(PlayMode::Alpha);
    for (bool* flag : {&world.program.SwitchingSong, &world.program.StartingUp}) {
        *flag = true;
        world.tray.mnuSong(5).click();
        *flag = false;
    }
    world.settings().Mode = PlayMode::Queue;
    world.tray.mnuSong(5).click();
    world.settings().Mode = PlayMode::Alpha;
    world.tray.mnuSong(5).caption = "";
    world.tray.mnuSong(5).click();
    EXPECT_EQ(world.happened(), Log{});
}

TEST_F(RecentSongsInTheTray, FilesThatDifferOnlyInCaseAreTwoSongs) {
    world.settings().Lowercase = 1;
    world.files.add_file("/music/b.MID");
    remember("/music/", "b.MID");
    remember("/music/", "B.mid");
    start(PlayMode::Manual);
    world.tray.mnuSong(5).click();
    EXPECT_EQ(world.open_song(), "b.MID");
    world.tray.mnuSong(4).click();
    EXPECT_EQ(world.open_song(), "B.mid");
    EXPECT_EQ(world.program.CurrentSongName, "B.mid");

    world.open_playlist({"B.mid|/music/", "b.MID|/music/"});
    world.tray.mnuSong(5).click();
    EXPECT_EQ(world.form.File1.selected(), 1U);
    EXPECT_EQ(world.open_song(), "b.MID");
}

TEST_F(RecentSongsInTheTray, OfEqualNamesInAPlaylistTheOneOfTheFolderIsSelected) {
    world.files.add_file("/other/B.mid");
    world.open_playlist({"A.mid|/music/", "B.mid|/music/", "B.mid|/other/"});
    world.settings().Mode = PlayMode::Alpha;
    remember("/other/", "B.mid");
    world.tray.mnuSong(5).click();
    EXPECT_EQ(world.form.File1.selected(), 2U);
    EXPECT_EQ(world.program.CurrentSongPath, "/other/B.mid");
    EXPECT_EQ(World::names(world.form.List1), (Log{"A.mid|/music/", "B.mid|/music/"}));
}

// In the editor the entry lines change while the window behind it still shows the old list.
TEST_F(RecentSongsInTheTray, ASongPlaysWhileItsPlaylistIsBeingEdited) {
    world.open_playlist({"X.mid|/other/", "Y.mid|/other/"});
    world.form.List3.clear();
    remember("/other/", "Y.mid");
    world.tray.mnuSong(5).click();
    EXPECT_EQ(world.open_song(), "Y.mid");
    EXPECT_TRUE(world.form.List1.empty());
}

TEST_F(RecentSongsInTheTray, ASongHandedOverMeanwhileWaitsItsTurn) {
    remember("/other/", "Y.mid");
    start(PlayMode::Alpha);
    world.pump.on_pump = [&] { world.hand_over("/music/C.mid"); };
    world.tray.mnuSong(5).click();
    world.pump.on_pump = nullptr;
    EXPECT_EQ(world.open_song(), "Y.mid");
    world.run_for(2000);
    EXPECT_EQ(world.open_song(), "C.mid");
    world.expect_in_one_piece();
}

}  // namespace
}  // namespace zephyne::test
