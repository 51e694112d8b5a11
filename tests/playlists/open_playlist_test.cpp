#include "tests/playlists/playlist_world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

const std::string kHeader = "Zephyne Playlist\r\n";

TEST(OpeningAPlaylist, SortsItsEntriesShowsTheirNumberAndPlaysByTheOrder) {
    PlaylistWorld world;
    world.load(kHeader + "b.mid|/music\r\na.mid.mid|/music/\r\na.mid|/other/\r\na.mid|/music/\r\n");
    EXPECT_EQ(world.lines(),
              (Log{"a.mid|/music/", "a.mid|/other/", "a.mid.mid|/music/", "b.mid|/music"}))
        << "no duplicate is removed";
    world.expect_in_step(world.form.File1);
    EXPECT_EQ(world.form.Label2.caption(), "4");
    EXPECT_EQ(world.happened(), Log{"dialog: open .lst"}) << "in Manual mode nothing starts";
    world.click("b.mid");
    EXPECT_EQ(world.program.CurrentSongPath, "/music/b.mid");

    world.settings().Mode = PlayMode::Alpha;
    world.played();
    world.load(kHeader + "x.mid|/other/\r\nA.mid|/other/");
    EXPECT_EQ(world.played(), Log{"A.mid"});
    EXPECT_EQ(world.program.CurrentSongPath, "/other/A.mid");
    EXPECT_EQ(world.form.Label4.caption(), "1");
    world.expect_title_tells_the_truth();

    world.load(kHeader);
    EXPECT_EQ(world.form.Label2.caption(), "0");
    EXPECT_EQ(world.device.Mode(), DeviceMode::not_open) << "a cycle of no songs";
}

TEST(OpeningAPlaylist, TellsWhatIsWrongAndKeepsWhatItMay) {
    PlaylistWorld world;
    world.load(kHeader + "a.mid|/music/\r\n");
    world.settings().Mode = PlayMode::Alpha;
    world.happened();
    const auto expect_failure = [&](const std::string& message, const Log& lines) {
        EXPECT_EQ(world.happened(), (Log{"dialog: open .lst", "message: " + message + " [Error]"}));
        EXPECT_EQ(world.lines(), lines);
        EXPECT_EQ(world.form.Label2.caption(), "1");
        world.expect_in_step(world.form.File1);
    };
    const Log before = {"a.mid|/music/"};
    world.load("zephyne playlist\r\n");
    expect_failure("Invalid Playlist", before);
    world.load("");
    expect_failure("Error Loading Playlist", before);
    world.dialogs.answers = {"/music/gone.lst"};
    world.form.Command20.click();
    expect_failure("Error Loading Playlist", before);
    world.dialogs.answers = {""};
    world.form.Command20.click();
    expect_failure("Please Provide a Filename to Load.", before);
    world.form.Command20.click();
    EXPECT_EQ(world.happened(), Log{"dialog: open .lst"}) << "cancelled";
    world.load(kHeader + "x.mid|/other/\r\nb.mid|/music/\r\nbarless\r\nc.rmi|/music/\r\n");
    expect_failure("Error Loading Playlist", {"b.mid|/music/", "x.mid|/other/"});
}

TEST(OpeningAPlaylist, WorksOnDrivesWithoutAsking) {
    PlaylistWorld world(PathStyle::windows);
    world.load(kHeader + "a.mid|C:\\music\r\nb.mid|D:\\gone\\\r\n");
    EXPECT_EQ(world.happened(), Log{"dialog: open .lst"});
    world.click("a.mid");
    EXPECT_EQ(world.open_song(), "a.mid");
}

TEST(APlaylistFromTheOldPlatform, IsFoundBelowTheFolderThatTheUserPointsAt) {
    PlaylistWorld world;
    world.files.add_file("/old/Midi/Rags/maple.mid");
    world.files.add_file("/more/extra/e.mid");
    const std::string list = kHeader +
                             "MAPLE.MID|C:\\MIDI\\RAGS\\\r\na.mid|c:\\gone\\\r\n"
                             "a.mid|/music/\r\ne.mid|D:\\Extra";
    world.files.add_file("/music/list.lst", list);
    const auto load = [&](std::deque<std::string> answers) {
        answers.push_front("/music/list.lst");
        world.dialogs.answers = std::move(answers);
        world.form.Command20.click();
        world.expect_in_step(world.form.File1);
        return world.happened();
    };
    EXPECT_EQ(load({}), (Log{"dialog: open .lst", "dialog: Where are drives C:, D:?"}));
    EXPECT_EQ(world.lines(), (Log{"a.mid|/music/", "a.mid|c:\\gone\\", "e.mid|D:\\Extra",
                                  "MAPLE.MID|C:\\MIDI\\RAGS\\"}))
        << "cancelled: as they are";

    load({"/old"});
    EXPECT_EQ(world.lines().back(), "MAPLE.MID|/old/Midi/Rags/");
    world.click("MAPLE.MID");
    EXPECT_EQ(world.open_song(), "maple.mid");

    world.happened();
    EXPECT_EQ(load({"/more"}),
              (Log{"dialog: open .lst", "dialog: Where is drive D: of this playlist?"}));
    EXPECT_EQ(world.lines(), (Log{"a.mid|/music/", "a.mid|c:\\gone\\", "e.mid|/more/extra/",
                                  "MAPLE.MID|/old/Midi/Rags/"}));
    EXPECT_EQ(load({}), Log{"dialog: open .lst"}) << "both places are known by now";
}

// The player lets events run in the middle of its steps, and the two keys may be pressed then.
TEST(ANewPlaylist, LeavesThePlayerWholeWheneverItComes) {
    using Act = std::function<void(PlaylistWorld&)>;
    const std::vector<Act> acts = {
        [](PlaylistWorld& world) { world.click("b.mid"); },
        [](PlaylistWorld& world) { world.form.Command9.click(); },
        [](PlaylistWorld& world) { world.engine->order.RefillAndPlayNext(); },
        [](PlaylistWorld& world) { world.form.MMControl1.press(TransportKey::stop); },
    };
    const std::vector<Act> intruders = {
        [](PlaylistWorld& world) { world.load(kHeader + "x.mid|/other/"); },
        [](PlaylistWorld& world) { world.edit([](Form9& form) { form.Command7.click(); }); },
        [](PlaylistWorld& world) { world.load(kHeader); },
    };
    for (const std::int32_t mode : {PlayMode::Alpha, PlayMode::Manual}) {
        for (std::size_t act = 0; act < acts.size(); ++act) {
            for (std::size_t intruder = 0; intruder < intruders.size(); ++intruder) {
                for (int at = 1; at <= 8; ++at) {
                    SCOPED_TRACE("act " + std::to_string(act) + ", intruder " +
                                 std::to_string(intruder) + " at pump " + std::to_string(at));
                    PlaylistWorld world;
                    world.settings().AutoReset = 1;
                    world.load(kHeader + "a.mid|/music/\nb.mid|/music/\nc.rmi|/music/\n");
                    world.settings().Mode = mode;
                    world.click("a.mid");
                    int pumps = 0;
                    world.pump.on_pump = [&] {
                        if (++pumps == at) intruders[intruder](world);
                    };
                    acts[act](world);
                    world.run_for(1000);
                    world.expect_in_step(world.form.File1);
                    world.expect_in_one_piece();
                }
            }
        }
    }
}

class SavingAPlaylist : public testing::Test {
  protected:
    SavingAPlaylist() {
        world.load(kHeader + "x.mid|/other/\na.mid|/music/\n");
        world.files.remove("/music/list.lst");
        world.happened();
    }
    Log save(const std::string& path) {
        world.dialogs.answers = {path};
        world.edit([](Form9& form) { form.Command4.click(); });
        return world.happened();
    }
    std::string saved() { return world.files.contents("/music/list.lst").value_or("nothing"); }

    PlaylistWorld world;
    const std::string whole = kHeader + "a.mid|/music/\r\nx.mid|/other/\r\n";
    const std::string asked = "message: File Exists - Overwrite it? [Verify Save]";
    const std::string failed = "message: Error Saving Playlist [Error]";
    const std::string done = "message: Playlist Saved Successfully! [Save Complete]";
};

TEST_F(SavingAPlaylist, WritesTheSortedEntriesAndAsksBeforeAFileIsLost) {
    EXPECT_EQ(save("/music/list.lst"), (Log{"dialog: save .lst", done}));
    EXPECT_EQ(saved(), whole);
    world.files.add_file("/music/list.lst", "mine");
    world.messages.answer = Answer::no;
    EXPECT_EQ(save("/music/list.lst"), (Log{"dialog: save .lst", asked}));
    EXPECT_EQ(saved(), "mine");
    world.messages.answer = Answer::yes;
    EXPECT_EQ(save("/music/LIST.LST"), (Log{"dialog: save .lst", asked, done}));
    EXPECT_EQ(saved(), whole);
    EXPECT_EQ(save(""), Log{"dialog: save .lst"});
}

TEST_F(SavingAPlaylist, ThatFailsOrIsEmptyLeavesTheOldOne) {
    world.files.add_file("/music/list.lst", "mine");
    world.files.fail_write_number(1);
    EXPECT_EQ(save("/music/list.lst"), (Log{"dialog: save .lst", asked, failed}));
    EXPECT_EQ(saved(), "mine");
    EXPECT_EQ(save("/nowhere/list.lst"), (Log{"dialog: save .lst", failed}));
    world.edit([](Form9& form) { form.Command6.click(); });
    world.happened();
    EXPECT_EQ(save("/music/list.lst"), Log{"beep"});
}

}  // namespace
}  // namespace zephyne::test
