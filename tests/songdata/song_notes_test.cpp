#include "songdata/song_notes.h"

#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne {
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

    test::World world{"SONG.MID", "long.midi", "waltz.mid"};
    test::FakeWindows windows;
    SongNotes notes{world.stage, windows};
};

TEST_F(SongNotesTest, ButtonNeedsASelectedSong) {
    world.form.Command7.click();
    EXPECT_EQ(window(), nullptr);
    open("SONG.MID");
    EXPECT_EQ(window()->Label2.caption(), "SONG.MID ");
    EXPECT_TRUE(window()->visible());
    window()->user_activated();
    EXPECT_EQ(world.program.CurrentForm, FormNumber::Notes);
}

TEST_F(SongNotesTest, EachWayOutOfTheWindowDoesWhatItSays) {
    enum class Way { save, cancel, remove, close_box };
    const std::vector<std::tuple<Way, std::string, std::optional<std::string>>> ways{
        {Way::save, "new", "new\r\n"},      {Way::save, "", "old"},
        {Way::cancel, "new", "old"},        {Way::remove, "new", std::nullopt},
        {Way::close_box, "new", "new\r\n"}, {Way::close_box, "", "old"},
    };
    for (const auto& [way, typed, expected] : ways) {
        world.files.add_file(world.path("SONG.nte"), "old");
        open("SONG.MID");
        EXPECT_EQ(window()->Text1.text(), "old");
        window()->Text1.set_text(typed);
        window()->move_to(700, 800);
        switch (way) {
            case Way::save:
                window()->Command1.click();
                break;
            case Way::cancel:
                window()->Command2.click();
                break;
            case Way::remove:
                window()->Command3.click();
                break;
            case Way::close_box:
                window()->request_unload(CloseReason::user);
                break;
        }
        EXPECT_EQ(window(), nullptr);
        EXPECT_EQ(note("SONG.nte"), expected) << static_cast<int>(way) << typed;
        EXPECT_EQ(world.program.CurrentForm, FormNumber::Main);
        EXPECT_EQ(world.settings().F4Left, 700);
        EXPECT_EQ(world.settings().F4Top, 800);
    }
}

TEST_F(SongNotesTest, SavingWithoutEditingAddsALineAndReadsOldCharacters) {
    world.files.add_file(world.path("SONG.nte"), "caf\xE9\r\n");
    open("SONG.MID");
    EXPECT_EQ(window()->Text1.text(), "caf\xC3\xA9\r\n");
    window()->Command1.click();
    EXPECT_EQ(note("SONG.nte"), "caf\xC3\xA9\r\n\r\n");
}

TEST_F(SongNotesTest, NoteThatCannotBeSavedLeavesTheOldOneWithoutAMessage) {
    world.files.add_file(world.path("SONG.nte"), "old");
    open("SONG.MID");
    window()->Text1.set_text("a much longer text");
    world.happened();
    world.files.fail_write_number(1);
    window()->Command1.click();
    EXPECT_EQ(note("SONG.nte"), "old");
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

// The folder list may stand elsewhere by then.
TEST_F(SongNotesTest, NoteBelongsToTheSongsOwnFolder) {
    open("SONG.MID");
    world.files.add_folder("/elsewhere");
    ASSERT_TRUE(world.form.Dir1.set_path("/elsewhere"));
    window()->Text1.set_text("here");
    window()->Command1.click();
    EXPECT_EQ(note("SONG.nte"), "here\r\n");
}

TEST_F(SongNotesTest, TaskbarButtonIsAsTheMainWindows) {
    for (const std::int16_t bar : {0, 1}) {
        world.settings().ShowBar = bar;
        open("SONG.MID");
        EXPECT_EQ(windows.styles["Form4"], bar == 1 ? kAppWindowStyle : 0);
    }
}

}  // namespace
}  // namespace zephyne
