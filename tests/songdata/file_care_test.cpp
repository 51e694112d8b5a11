#include "songdata/file_commands.h"
#include "songdata/move_file.h"
#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

// Renaming, deleting and moving songs, and the file manager.
class FileCareTest : public testing::TestWithParam<PathStyle> {
  protected:
    FileCareTest() {
        world.settings().Lowercase = 0;
        world.settings().MoveToDir = elsewhere;
        world.files.add_folder(elsewhere);
        windows.on_modal = [this](Form& form) {
            auto& shown = dynamic_cast<Form6&>(form);
            EXPECT_EQ(world.program.CurrentForm, FormNumber::MoveFile);
            if (while_moving) while_moving(shown);
            if (shown.loaded()) shown.Command2.click();
        };
    }

    // In the mode, with that song chosen by hand.
    void choose(const std::string& song, std::int32_t mode = PlayMode::Manual) {
        world.open_folder();
        world.settings().Mode = mode;
        if (mode != PlayMode::Manual) world.engine->order.refill();
        world.click(song);
        world.said();
        world.played();
    }
    void rename(const std::string& answer) {
        questions.answer = answer;
        world.form.Command18.click();
    }
    void move_to(const std::string& destination) {
        while_moving = [=](Form6& form) {
            form.Text1.set_text(destination);
            form.Command1.click();
        };
        world.form.Command5.click();
        while_moving = nullptr;
    }
    void play_from_queue(const std::string& path) {
        world.settings().Mode = PlayMode::Queue;
        world.program.CurrentSongName = world.program.CurrentSongPath = path;
        if (!path.empty()) world.engine->player.restart();
        world.happened();
    }
    std::string in(const std::string& folder, const std::string& name) const {
        return joined(folder, name, world.files.path_style());
    }

    World world{{"a.mid", "b.mid", "SONG.RMI"}, GetParam()};
    std::string elsewhere = GetParam() == PathStyle::posix ? "/attic" : "C:\\attic";
    FakeWindows windows;
    ScriptedQuestions questions{world.log};
    LoggedFileManager manager{world.log};
    FileCommands commands{world.stage, *world.engine, questions, manager};
    MoveFile move{world.stage, *world.engine, windows};
    std::function<void(Form6&)> while_moving;
};

INSTANTIATE_TEST_SUITE_P(BothPathStyles, FileCareTest,
                         testing::Values(PathStyle::posix, PathStyle::windows),
                         [](const auto& style) {
                             return style.param == PathStyle::posix ? "Posix" : "Windows";
                         });

TEST(FileCare, NamesOfTextsAndFoldersOfSongs) {
    EXPECT_EQ(name_from_text("My Song: Final?"), "My Song Final");
    EXPECT_EQ(name_from_text("one\r\n\ttwo"), "one two");
    EXPECT_EQ(name_from_text("a <b>|c/\\\"*.mid"), "a bc*.mid");
    EXPECT_EQ(name_from_text("?<>"), "");
    EXPECT_EQ(folder_of_song("C:\\MIDI\\SONG.MID", PathStyle::windows), "C:\\MIDI");
    EXPECT_EQ(folder_of_song("C:\\SONG.MID", PathStyle::windows), "C:");
    EXPECT_EQ(folder_of_song("/midi/song.mid", PathStyle::posix), "/midi");
    EXPECT_EQ(folder_of_song("/song.mid", PathStyle::posix), "/");
    EXPECT_EQ(folder_of_song("song.mid", PathStyle::posix), "");
}

TEST_P(FileCareTest, ProposalIsMadeOfTheMarkedText) {
    choose("SONG.RMI");
    rename("");
    world.form.Text1.user_selected("My Song: Final?");
    rename("");
    world.form.Text1.user_selected("::\"");
    rename("");
    EXPECT_EQ(world.said(), (Log{"ask: Rename File To: [Rename File] SONG.RMI",
                                 "ask: Rename File To: [Rename File] My Song Final.mid",
                                 "ask: Rename File To: [Rename File] SONG.RMI"}));
    EXPECT_TRUE(world.files.exists(world.path("SONG.RMI")));
}

TEST_P(FileCareTest, RenamedSongTakesItsNoteAlongAndGoesOnPlaying) {
    world.files.add_file(world.path("SONG.nte"), "note");
    world.files.add_file(world.path("SONG.vol"), "volume");
    choose("SONG.RMI");
    rename("newname");
    EXPECT_EQ(World::names(world.form.File1), (Log{"a.mid", "b.mid", "newname.rmi"}));
    EXPECT_EQ(world.files.contents(world.path("newname.nte")), "note");
    EXPECT_TRUE(world.files.exists(world.path("SONG.vol")));
    EXPECT_EQ(world.program.CurrentSongPath, world.path("newname.rmi"));
    EXPECT_EQ(world.form.File1.selected(), 2U);
    EXPECT_EQ(world.form.title(), "Zephyne - Playing newname.rmi");
    EXPECT_TRUE(world.played().empty());
    rename("NEWNAME.RMI");
    EXPECT_TRUE(world.files.exists(world.path("NEWNAME.RMI"))) << "a new case alone";
    world.expect_flags_at_rest();
}

TEST_P(FileCareTest, RenamedSongHasItsNewPlaceInTheCycleOrNone) {
    world.settings().Continuous = 1;
    choose("a.mid", PlayMode::Alpha);
    rename("c.mid");
    EXPECT_EQ(World::names(world.form.List1), (Log{"b.mid", "c.mid", "SONG.RMI"}));
    rename("aa.mid");
    EXPECT_EQ(World::names(world.form.List1), (Log{"aa.mid", "b.mid", "SONG.RMI"}));
    world.midi.finish();
    world.run_for(1000);
    EXPECT_EQ(world.played(), Log{"b.mid"}) << "which would have been next";

    choose("aa.mid");
    rename("aa.wav");
    EXPECT_EQ(World::names(world.form.File1), (Log{"b.mid", "SONG.RMI"}));
    EXPECT_EQ(world.open_song(), "") << "it is not listed any more";
    world.expect_flags_at_rest();
}

TEST_P(FileCareTest, FailedRenameSaysWhyAndChangesNothing) {
    world.files.add_file(world.path("a.nte"), "note");
    choose("a.mid");
    rename("b.mid");
    world.files.hold_open(world.path("a.mid"));
    rename("c.mid");
    world.program.SwitchingSong = true;
    rename("d.mid");
    world.program.SwitchingSong = false;
    const std::string ask = "ask: Rename File To: [Rename File] a.mid";
    EXPECT_EQ(
        world.said(),
        (Log{ask, "message: Error Renaming File - File already exists. [Error on Rename]", ask,
             "message: Error Renaming File - File already open.  If Auto-Info is active, "
             "allow it to finish reading the current file, then try again. "
             "[Error on Rename]"}));
    EXPECT_TRUE(world.files.exists(world.path("a.nte")));
    EXPECT_EQ(world.program.CurrentSongName, "a.mid");
}

TEST_P(FileCareTest, DeletedSongIsGoneWithItsNoteAndTheNextOnePlays) {
    world.files.add_file(world.path("a.nte"), "note");
    world.files.add_file(world.path("a.vol"), "volume");
    world.settings().Continuous = 1;
    choose("a.mid", PlayMode::Alpha);
    const std::string question =
        "message: Are you sure you want to delete a.mid? [Please Verify Delete...]";
    world.files.deny_writing(world.path("a.mid"));
    world.form.Command4.click();
    EXPECT_EQ(world.said(),
              (Log{question, "message: Error on Delete - Permission denied. [Error on Delete]"}));
    EXPECT_EQ(world.open_song(), "a.mid");
    EXPECT_TRUE(world.files.exists(world.path("a.nte")));

    world.files.allow(world.path("a.mid"));
    world.form.Command4.click();
    EXPECT_EQ(world.said(), Log{question});
    EXPECT_FALSE(world.files.exists(world.path("a.mid")));
    EXPECT_FALSE(world.files.exists(world.path("a.nte")));
    EXPECT_TRUE(world.files.exists(world.path("a.vol")));
    EXPECT_EQ(World::names(world.form.List1), (Log{"b.mid", "SONG.RMI"}));
    EXPECT_EQ(world.played(), Log{"b.mid"});
    world.expect_flags_at_rest();
}

TEST_P(FileCareTest, DeleteInManualModeLeavesNothingSelectedAndInTheEndNoInformation) {
    choose("a.mid");
    world.messages.answer = Answer::no;
    world.form.Command4.click();
    EXPECT_EQ(world.open_song(), "a.mid");
    world.messages.answer = Answer::yes;
    world.form.Command4.click();
    EXPECT_EQ(World::names(world.form.File1), (Log{"b.mid", "SONG.RMI"}));
    EXPECT_FALSE(world.form.File1.selected());
    EXPECT_EQ(world.open_song(), "");
    EXPECT_TRUE(world.played().empty());
    for (const char* song : {"b.mid", "SONG.RMI"}) {
        choose(song, PlayMode::Random);
        world.form.Text1.set_text("facts");
        world.form.Command4.click();
    }
    EXPECT_TRUE(world.form.File1.empty());
    EXPECT_EQ(world.form.Text1.text(), "");
    EXPECT_EQ(world.open_song(), "");
}

TEST_P(FileCareTest, QueueModeDeletesAndMovesWhatPlays) {
    play_from_queue("");
    world.form.Command4.click();
    world.form.Command5.click();
    EXPECT_EQ(world.said(),
              (Log{"message: No file to delete! [Error]", "message: No file to move! [Error]"}));

    play_from_queue(world.path("a.mid"));
    move_to(in(elsewhere, "a.mid"));
    EXPECT_EQ(world.said(),
              Log{"message: File was moved to directory " + elsewhere + " [Move Successful.]"});
    EXPECT_EQ(world.program.CurrentSongPath, in(elsewhere, "a.mid"));

    world.form.List2.add({world.path("b.mid"), {}});
    world.form.Command4.click();
    EXPECT_EQ(world.played().back(), "b.mid");
    world.form.Command4.click();
    EXPECT_EQ(world.program.CurrentSongPath, "");
    EXPECT_FALSE(world.files.exists(world.path("b.mid")));
}

TEST_P(FileCareTest, MoveWindowShowsWhereFromAndWhereTo) {
    world.files.add_file(in(elsewhere, "old.mid"));
    world.files.add_folder(in(elsewhere, "deep"));
    world.settings().F6Left = 50;
    choose("a.mid");
    while_moving = [&](Form6& form) {
        EXPECT_EQ(form.place().left, 50);
        EXPECT_EQ(form.Label1.caption(), world.path("a.mid"));
        EXPECT_EQ(form.Text1.text(), in(elsewhere, "a.mid"));
        EXPECT_EQ(World::names(form.File1), Log{"old.mid"});
        ASSERT_TRUE(form.Dir1.set_path(in(elsewhere, "deep")));
        EXPECT_EQ(form.Text1.text(), in(in(elsewhere, "deep"), "a.mid"));
        form.Text1.set_text("");
        form.Command1.click();
        EXPECT_TRUE(form.loaded()) << "there is nowhere to move it to";
        form.move_to(60, 70);
    };
    world.form.Command5.click();
    EXPECT_EQ(world.settings().F6Left, 60);
    EXPECT_EQ(world.settings().F6Top, 70);
    EXPECT_EQ(world.program.CurrentForm, FormNumber::Main);
    EXPECT_TRUE(world.files.exists(world.path("a.mid")));
}

TEST_P(FileCareTest, MovedSongLeavesTheCycleAndTheNextOnePlays) {
    world.files.add_file(world.path("a.nte"), "note");
    world.settings().Continuous = 1;
    choose("a.mid", PlayMode::Alpha);
    move_to(in(elsewhere, "A.mid"));
    EXPECT_TRUE(world.files.exists(in(elsewhere, "A.mid")));
    EXPECT_FALSE(world.files.exists(world.path("a.mid")));
    EXPECT_TRUE(world.files.exists(world.path("a.nte"))) << "notes stay where they are";
    EXPECT_EQ(world.played(), Log{"b.mid"});
    EXPECT_EQ(world.settings().MoveToDir, elsewhere);
    world.expect_flags_at_rest();
}

TEST_P(FileCareTest, MoveWithNothingLeftToPlayStopsAndClearsTheCounters) {
    world.settings().ShowTray = 1;
    for (const char* song : {"a.mid", "b.mid", "SONG.RMI"}) {
        choose(song);
        world.form.Label2.set_caption("3");
        move_to(in(elsewhere, song));
        EXPECT_EQ(world.open_song(), "");
        EXPECT_EQ(world.form.Label2.caption(), "");
        EXPECT_EQ(World::shown(world.tray.mnuNext),
                  world.form.File1.empty() ? "Next Song (off)" : "Next Song");
    }
    EXPECT_TRUE(world.played().empty());
}

TEST_P(FileCareTest, FailedMoveSaysWhyAndKeepsTheSong) {
    const std::string stick = GetParam() == PathStyle::posix ? "/media/stick" : "D:\\";
    world.files.add_volume(GetParam() == PathStyle::posix ? "/" : "C:\\", "System");
    world.files.add_volume(stick, "Stick");
    world.files.add_file(in(elsewhere, "taken.mid"), "other");
    choose("a.mid");
    while_moving = [&](Form6& form) {
        world.files.fail_write_number(1);
        for (const std::string& target :
             {in(elsewhere, "taken.mid"), world.path("a.mid"), in(stick, "a.mid")}) {
            form.Text1.set_text(target);
            form.Command1.click();
            EXPECT_TRUE(form.loaded());
        }
    };
    world.form.Command5.click();
    EXPECT_EQ(world.said(), (Log{"message: Error on Move - File already exists. [Error on Move]",
                                 "message: Error on Move - Permission denied.  You may have tried "
                                 "to move the file to its current directory. [Error on Move]",
                                 "message: Error on Move - Disk full. [Error on Move]"}));
    EXPECT_EQ(world.files.contents(in(elsewhere, "taken.mid")), "other");
    EXPECT_EQ(world.open_song(), "a.mid");
    EXPECT_TRUE(world.files.exists(world.path("a.mid")));
    move_to(in(stick, "a.mid"));
    EXPECT_TRUE(world.files.exists(in(stick, "a.mid")));
}

// A song may be handed over, from another folder, while a box is open.
TEST_P(FileCareTest, AnswersAreAboutTheSongOfTheQuestion) {
    world.files.add_file(in(elsewhere, "a.mid"), "the other one");
    const auto hand_over = [this] {
        const FlagGuard switching(world.program.SwitchingSong);
        ASSERT_TRUE(world.form.Dir1.set_path(elsewhere));
        world.engine->songs.refreshfiles();
        world.program.CurrentSongName = "a.mid";
        world.program.CurrentSongPath = in(elsewhere, "a.mid");
        world.engine->player.restart();
    };
    choose("a.mid");
    questions.while_open = hand_over;
    rename("c.mid");
    EXPECT_TRUE(world.files.exists(world.path("c.mid")));
    EXPECT_EQ(world.program.CurrentSongPath, in(elsewhere, "a.mid"));

    ASSERT_TRUE(world.form.Dir1.set_path(world.folder));
    choose("b.mid");
    world.messages.while_open = hand_over;
    world.form.Command4.click();
    world.messages.while_open = nullptr;
    EXPECT_FALSE(world.files.exists(world.path("b.mid")));
    EXPECT_EQ(world.open_song(), "a.mid") << "what plays now goes on";

    ASSERT_TRUE(world.form.Dir1.set_path(world.folder));
    choose("c.mid");
    while_moving = [&](Form6& form) {
        hand_over();
        form.Text1.set_text(in(elsewhere, "c.mid"));
        form.Command1.click();
    };
    world.form.Command5.click();
    EXPECT_TRUE(world.files.exists(in(elsewhere, "c.mid")));
    EXPECT_EQ(world.open_song(), "a.mid");
    EXPECT_EQ(world.files.contents(in(elsewhere, "a.mid")), "the other one");
    world.expect_flags_at_rest();
}

TEST_P(FileCareTest, FileManagerOpensWhereTheSongIsOrWhereTheProgramStands) {
    world.form.Command22.set_visible(true);  // as in the layout of the queue
    world.form.Command23.set_visible(true);
    choose("a.mid");
    world.form.Command22.click();
    EXPECT_EQ(world.happened(), Log{"open " + world.folder});
    ASSERT_TRUE(world.form.Dir1.set_path(elsewhere));
    world.happened();
    world.form.Command24.click();
    EXPECT_EQ(world.files.current_folder(), elsewhere);
    EXPECT_EQ(world.happened(), Log{"open " + elsewhere});
    world.program.CurrentSongPath = world.path("a.mid");
    world.form.Command23.click();
    EXPECT_EQ(world.happened(), Log{"open " + world.folder});
    EXPECT_EQ(world.files.current_folder(), world.folder);
    world.program.CurrentSongPath.clear();
    world.form.Command23.click();
    EXPECT_EQ(world.happened(),
              (Log{"message: No file playing - using current directory. [No File]",
                   "open " + world.folder}));
}

}  // namespace
}  // namespace zephyne::test
