#include "songdata/song_notes.h"

#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

class SongNotesTest : public testing::Test {
  protected:
    SongNotesTest() {
        world.settings().Lowercase = 0;
        world.program.TaskbarExStyle = kAppWindowStyle;
        world.open_folder();
    }

    // The window, as long as it is open.
    Form4* window() const {
        const auto found = windows.open.find("Form4");
        return found == windows.open.end() ? nullptr : dynamic_cast<Form4*>(found->second);
    }
    void open(const std::string& song) {
        world.click(song);
        world.form.Command7.click();
        ASSERT_NE(window(), nullptr);
    }
    std::optional<std::string> note(const std::string& name) const {
        return world.files.contents(world.path(name));
    }

    World world{"SONG.MID", "long.midi", "waltz.mid"};
    FakeWindows windows;
    SongNotes notes{world.stage, windows};
};

TEST_F(SongNotesTest, ButtonNeedsASelectedSong) {
    world.settings().ShowBar = 0;
    world.form.Command7.click();
    EXPECT_EQ(window(), nullptr);
    open("SONG.MID");
    EXPECT_EQ(window()->Label2.caption(), "SONG.MID ");
    EXPECT_TRUE(window()->visible());
    EXPECT_EQ(windows.styles["Form4"], 0);
    window()->user_activated();
    EXPECT_EQ(world.program.CurrentForm, FormNumber::Notes);
    world.settings().ShowBar = 1;
    open("SONG.MID");
    EXPECT_EQ(windows.styles["Form4"], kAppWindowStyle) << "as the main window";
}

TEST_F(SongNotesTest, EachWayOutOfTheWindowDoesWhatItSays) {
    constexpr Button Form4::*close_box = nullptr;
    const std::vector<std::tuple<Button Form4::*, std::string, std::optional<std::string>>> ways{
        {&Form4::Command1, "new", "new\r\n"}, {&Form4::Command1, "", "old"},
        {&Form4::Command2, "new", "old"},     {&Form4::Command3, "new", std::nullopt},
        {close_box, "new", "new\r\n"},        {close_box, "", "old"},
    };
    int number = 0;
    for (const auto& [way, typed, expected] : ways) {
        world.files.add_file(world.path("SONG.nte"), "old");
        open("SONG.MID");
        EXPECT_EQ(window()->Text1.text(), "old");
        window()->Text1.set_text(typed);
        window()->move_to(700, 800);
        if (way == close_box) {
            window()->request_unload(CloseReason::user);
        } else {
            (window()->*way).click();
        }
        EXPECT_EQ(window(), nullptr);
        EXPECT_EQ(note("SONG.nte"), expected) << "way " << ++number;
        EXPECT_EQ(world.program.CurrentForm, FormNumber::Main);
        EXPECT_EQ(world.settings().F4Left, 700);
        EXPECT_EQ(world.settings().F4Top, 800);
    }
}

TEST_F(SongNotesTest, SavingWritesBesideTheSongAndReadsOldCharacters) {
    world.files.add_file(world.path("SONG.nte"), "caf\xE9\r\n");
    open("SONG.MID");
    EXPECT_EQ(window()->Text1.text(), "caf\xC3\xA9\r\n");
    world.files.add_folder("/elsewhere");
    ASSERT_TRUE(world.form.Dir1.set_path("/elsewhere"));  // where the folder list stands by now
    window()->Command1.click();
    EXPECT_EQ(note("SONG.nte"), "caf\xC3\xA9\r\n\r\n") << "without editing, a line is added";

    ASSERT_TRUE(world.form.Dir1.set_path(world.folder));
    open("SONG.MID");
    window()->Text1.set_text("a much longer text");
    world.files.fail_write_number(1);
    world.happened();
    window()->Command1.click();
    EXPECT_EQ(note("SONG.nte"), "caf\xC3\xA9\r\n\r\n") << "it cannot be saved, without a message";
    EXPECT_EQ(window(), nullptr);
    EXPECT_TRUE(world.happened().empty());
}

TEST_F(SongNotesTest, AutoNotesOpensForSongsThatHaveANote) {
    world.settings().AutoNotes = 1;
    world.files.add_file(world.path("waltz.nte"), "slow");
    world.click("SONG.MID");
    EXPECT_EQ(window(), nullptr);
    world.click("waltz.mid");
    ASSERT_NE(window(), nullptr);
    window()->Text1.set_text("slow and sad");
    world.click("SONG.MID");
    EXPECT_EQ(window()->Label2.caption(), "waltz.mid ") << "an open window stays";
    world.click("waltz.mid");
    EXPECT_EQ(note("waltz.nte"), "slow and sad\r\n") << "opening anew closes, and so saves";
    EXPECT_EQ(window()->Text1.text(), "slow and sad\r\n");
    notes.unload();
    world.program.ResumePosition = 1000;
    world.engine->player.restart();
    EXPECT_EQ(window(), nullptr) << "a resumed song has shown its note";
}

TEST_F(SongNotesTest, OpenNoteFollowsItsSong) {
    open("SONG.MID");
    window()->Text1.set_text("kept");
    world.stage.services.song_renamed(world.path("waltz.mid"), world.path("other.mid"));
    world.stage.services.song_renamed(world.path("SONG.MID"), world.path("New.mid"));
    EXPECT_EQ(window()->Label2.caption(), "New.mid ");
    window()->Command1.click();
    EXPECT_EQ(note("New.nte"), "kept\r\n");
    open("waltz.mid");
    window()->Text1.set_text("lost with the song");
    world.stage.services.song_deleted(world.path("waltz.mid"));
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(note("waltz.nte"), std::nullopt);
}

// SONG.nte may be the other song's.
TEST_F(SongNotesTest, SongsThatDifferInCaseHaveNotesOfTheirOwn) {
    world.files.add_file(world.path("SONG.nte"), "loud");
    world.files.add_file(world.path("song.mid"));
    world.engine->songs.refreshfiles();
    open("song.mid");
    EXPECT_EQ(window()->Text1.text(), "");
    window()->Text1.set_text("soft");
    window()->Command1.click();
    EXPECT_EQ(note("SONG.nte"), "loud");
    EXPECT_EQ(note("song.nte"), "soft\r\n");
    open("song.mid");
    window()->Command3.click();
    EXPECT_EQ(note("SONG.nte"), "loud");
    EXPECT_EQ(note("song.nte"), std::nullopt);
}

}  // namespace
}  // namespace zephyne::test
