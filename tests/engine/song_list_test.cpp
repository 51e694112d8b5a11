#include "tests/support/world.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zephyne::test {
namespace {

constexpr char32_t kEnter = 13;

// In both styles of paths: a folder with songs, and one inside it.
class SongLists : public testing::TestWithParam<PathStyle> {
  protected:
    SongLists() {
        add("live/Encore.mid");
        world.form.Dir1.refresh();
    }

    std::string path(std::string name) const {
        if (GetParam() == PathStyle::windows) std::replace(name.begin(), name.end(), '/', '\\');
        return world.path(name);
    }
    void add(const std::string& name) { world.files.add_file(path(name)); }

    Log listed() const { return World::names(world.form.File1); }

    World world{{"Waltz.mid", "Aria.mid", "Polka.mid"}, GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Of, SongLists, testing::Values(PathStyle::posix, PathStyle::windows),
                         style_name);

TEST_P(SongLists, ShowThePlayableFilesInOrderWithoutRegardToCase) {
    for (const char* name :
         {"INTRO.WAV", "film.avi", "SONG.MID", "readme.txt", "old.midi", "b.RMI"})
        add(name);
    world.files.add_file(path("hidden.mid"), "", FileKind::ordinary, Visibility::hidden);
    world.files.add_file(path("pipe.mid"), "", FileKind::pipe);
    world.open_folder();
    EXPECT_EQ(listed(), (Log{"Aria.mid", "B.rmi", "Polka.mid", "Song.mid", "Waltz.mid"}));
    world.settings().AllowWav = 1;
    world.settings().Lowercase = 0;
    world.engine->songs.refreshfiles();
    EXPECT_EQ(listed(), (Log{"Aria.mid", "b.RMI", "film.avi", "INTRO.WAV", "Polka.mid", "SONG.MID",
                             "Waltz.mid"}));
}

TEST_P(SongLists, FilesThatDifferOnlyInCaseBothPlay) {
    add("WALTZ.MID");
    world.start(PlayMode::Alpha);
    EXPECT_EQ(listed(), (Log{"Aria.mid", "Polka.mid", "Waltz.mid", "Waltz.mid"}));
    for (int i = 0; i < 3; ++i) world.form.Command9.click();
    EXPECT_EQ(world.played(), (Log{"Aria.mid", "Polka.mid", "Waltz.mid", "WALTZ.MID"}));
    EXPECT_EQ(world.form.File1.selected(), 3U);
    world.form.File1.click(2);
    world.form.File1.click(3);
    EXPECT_EQ(world.played(), (Log{"Waltz.mid", "WALTZ.MID"}));

    world.form.text2.type("ar");
    world.form.text2.type("");
    EXPECT_EQ(world.form.File1.selected(), 3U) << "the one that plays is selected again";
}

TEST_P(SongLists, AClickPlaysTheSongAndLeavesTheCycleAsItIs) {
    world.start(PlayMode::Alpha);
    world.form.MMControl1.press(TransportKey::pause);
    world.click("Waltz.mid");
    EXPECT_EQ(world.program.CurrentSongPath, path("Waltz.mid"));
    EXPECT_EQ(world.form.title(), "Zephyne - Playing Waltz.mid");
    EXPECT_FALSE(world.program.PausedByUser);
    EXPECT_EQ(world.program.RecentSongs[0].name, "Aria.mid");
    EXPECT_EQ(World::names(world.form.List1), (Log{"Polka.mid", "Waltz.mid"}));
    world.click("Waltz.mid");
    EXPECT_EQ(world.played(), (Log{"Aria.mid", "Waltz.mid", "Waltz.mid"})) << "also once more";
}

TEST_P(SongLists, OfSeveralClicksDuringTheResetTheLastOneCounts) {
    for (const bool playlist : {false, true}) {
        world.open_folder();
        const std::string folder = with_separator(world.folder, GetParam());
        if (playlist) world.open_playlist({"Aria.mid|" + folder, "Polka.mid|" + folder});
        world.pump.arrive_in(2, [&] { world.click("Polka.mid"); });
        world.click("Aria.mid");
        EXPECT_EQ(world.played(), Log{"Polka.mid"});
        world.expect_in_one_piece();
    }
}

TEST_P(SongLists, AnotherFolderStartsPlayingAtOnce) {
    world.start(PlayMode::Alpha);
    world.open_row("live");
    EXPECT_EQ(listed(), Log{"Encore.mid"});
    EXPECT_EQ(world.played(), (Log{"Aria.mid", "Encore.mid"}));
    EXPECT_EQ(world.program.CurrentSongPath, path("live/Encore.mid"));
    EXPECT_EQ(world.program.RecentSongs[0].name, "Aria.mid");
    EXPECT_EQ(world.counts(), "1, 0");
}

TEST_P(SongLists, AnotherFolderInManualModeStopsAndWaits) {
    world.open_folder();
    world.click("Aria.mid");
    world.form.Text1.set_text("summary");
    world.open_row("live");
    EXPECT_EQ(world.played(), Log{"Aria.mid"});
    EXPECT_FALSE(world.device.is_open());
    EXPECT_EQ(world.form.title(), "Zephyne");
    EXPECT_EQ(world.form.Text1.text(), "");
    EXPECT_EQ(world.counts(), "1, N/A");
    EXPECT_EQ(world.program.CurrentSongName, "Aria.mid");
    EXPECT_EQ(world.program.RecentSongs[0].name, "Aria.mid");
}

TEST_P(SongLists, AFolderWithoutSongsLeavesNoCurrentSong) {
    world.files.remove(path("live/Encore.mid"));
    for (const std::int32_t mode : {PlayMode::Manual, PlayMode::Alpha}) {
        (void)world.form.Dir1.set_path(world.folder);
        world.start(mode);
        world.click("Aria.mid");
        world.open_row("live");
        EXPECT_EQ(world.program.CurrentSongPath + world.program.CurrentSongName, "");
        EXPECT_FALSE(world.device.is_open());
    }
}

TEST_P(SongLists, WhileThePlayerStartsAFolderChangeOnlyFillsTheList) {
    world.open_folder();
    world.settings().Mode = PlayMode::Alpha;
    world.program.StartingUp = true;
    world.open_row("live");
    world.click("Encore.mid");
    EXPECT_EQ(listed(), Log{"Encore.mid"});
    EXPECT_EQ(world.played(), Log{});
}

TEST_P(SongLists, ADriveThatCannotBeReadGivesWayToTheOneOfTheStart) {
    const std::string first = GetParam() == PathStyle::posix ? "/" : "C:\\";
    const std::string second = GetParam() == PathStyle::posix ? "/disk" : "D:\\";
    world.files.add_volume(first, "first");
    world.files.add_volume(second, "second");
    world.files.add_file(joined(second, "Tango.mid", GetParam()));
    world.form.Drive1.refresh();
    world.start(PlayMode::Alpha);
    world.form.Drive1.choose(1);
    EXPECT_EQ(world.played(), (Log{"Aria.mid", "Tango.mid"}));
    world.form.Drive1.choose(0);
    EXPECT_EQ(world.form.Dir1.path(), first);

    world.happened();
    for (const std::string& denied : {second, first}) {
        world.files.deny(denied);
        world.form.Drive1.choose(1);
        EXPECT_EQ(world.happened(),
                  Log{"message: Error - Drive May Be Unavailable. [Drive Error]"});
        EXPECT_EQ(world.form.Drive1.drive().root, first) << "the one whose folder is shown";
        EXPECT_EQ(world.form.Dir1.path(), first);
    }
    world.files.allow(first);
    world.messages.while_open = [&] {
        world.hand_over(world.path("Aria.mid"));
        world.form.Timer5.on_tick();
    };
    world.form.Drive1.choose(1);
    EXPECT_EQ(world.form.Dir1.path(), world.folder) << "to where a song has been handed over";
    EXPECT_EQ(world.open_song(), "Aria.mid");
    EXPECT_EQ(world.form.Drive1.drive().root, first);
}

TEST_P(SongLists, APlaylistPlaysEachSongFromItsOwnFolder) {
    const std::string folder = with_separator(path("live"), GetParam());
    world.open_playlist(
        {"Encore.mid|" + path("live"), "Aria.mid|" + folder + "..", "Missing.mid|" + folder});
    EXPECT_EQ(listed(), (Log{"Aria.mid", "Encore.mid", "Missing.mid"}));
    world.click("Encore.mid");
    EXPECT_EQ(world.program.CurrentSongPath, folder + "Encore.mid");
    world.click("Aria.mid");
    EXPECT_EQ(world.played(), (Log{"Encore.mid", "Aria.mid"}));
    world.engine->songs.refreshfiles();
    EXPECT_EQ(world.form.File1.count(), 3U) << "a playlist is no folder";
    world.expect_flags_at_rest();
}

class Find : public testing::Test {
  protected:
    Find() {
        world.settings().Lowercase = 0;
        world.start(PlayMode::Alpha);
        world.played();
    }
    void type(const std::string& text) { world.form.text2.type(text); }
    std::string selected() const {
        const auto row = world.form.File1.selected();
        return std::string(row ? world.form.File1.item(*row).text : "");
    }

    World world{"Aria.mid", "BALLAD.MID", "Bach.mid", "barcarole.mid", "Étude.mid"};
};

TEST_F(Find, TypingSelectsTheFirstSongThatBeginsSoWithoutPlayingIt) {
    const std::vector<std::pair<std::string, std::string>> table = {
        {"b", "Bach.mid"},
        {"bal", "BALLAD.MID"},
        {"étu", "Étude.mid"},
        {"BARCAROLE.MID", "barcarole.mid"}};
    for (const auto& [text, song] : table) {
        type(text);
        EXPECT_EQ(selected(), song) << text;
        EXPECT_FALSE(world.form.File1.enabled());
        EXPECT_FALSE(world.form.Command1.enabled());
    }
    type("zz");
    EXPECT_EQ(selected(), "barcarole.mid") << "what was found last";
    EXPECT_EQ(world.played(), Log{});
    EXPECT_EQ(world.form.title(), "Zephyne - Playing Aria.mid");
}

TEST_F(Find, EnterPlaysWhatWasFound) {
    type("x");  // no song begins with it
    EXPECT_EQ(selected(), "Aria.mid");
    world.form.text2.press_key(kEnter);
    EXPECT_EQ(world.played(), Log{});
    world.expect_window_unlocked();
    type("bar");
    EXPECT_FALSE(world.form.text2.press_key(kEnter)) << "the key itself is swallowed";
    EXPECT_EQ(world.played(), Log{"barcarole.mid"});
    EXPECT_EQ(world.form.text2.text(), "");
    world.expect_in_one_piece();
    EXPECT_TRUE(world.form.text2.press_key('x'));
}

TEST_F(Find, LeavingOrEmptyingTheBoxGoesBackToTheSongThatPlays) {
    world.form.Label8.click();
    EXPECT_TRUE(world.form.text2.focused());
    type("bar");
    type("");
    EXPECT_EQ(selected(), "Aria.mid");
    world.expect_window_unlocked();
    type("bar");
    world.form.set_focused(nullptr);
    EXPECT_EQ(world.form.text2.text(), "");
    EXPECT_EQ(selected(), "Aria.mid");
    world.expect_window_unlocked();
    EXPECT_EQ(world.played(), Log{});
}

TEST_F(Find, EnterDuringThePauseBetweenSongsEndsThePauseAndPlays) {
    world.settings().AutoDelay = 1;
    world.settings().AutoDelayTime = 30;
    world.midi.lengths["barcarole.mid"] = 10'000;
    world.pump.arrive_when([&] { return world.program.DelayActive; },
                           [&] {
                               type("bar");
                               world.form.text2.press_key(kEnter);
                           });
    const Milliseconds begin = world.clock.now();
    world.finish_song();
    EXPECT_LT(world.clock.now() - begin, 2000);
    EXPECT_EQ(world.played(), Log{"barcarole.mid"});
    world.expect_in_one_piece();
    world.run_for(10'000);
    EXPECT_GE(world.clock.now() - begin, 40'000) << "the next pause is a whole one";
}

}  // namespace
}  // namespace zephyne::test
