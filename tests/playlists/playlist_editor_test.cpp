#include "tests/playlists/playlist_world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

class PlaylistEditorTest : public testing::Test {
  protected:
    // Every act leaves the lists in step.
    void edit(std::function<void(Form9&)> act) {
        world.edit([&](Form9& form) {
            act(form);
            world.expect_in_step(form.List2);
        });
        world.expect_in_step(world.form.File1);
    }
    static void select(ListBox& list, std::initializer_list<const char*> names) {
        ClickWith key = ClickWith::nothing;
        for (const char* name : names) {
            list.click(row_of(list, name), key);
            key = ClickWith::ctrl;
        }
    }
    static void go_to(Form9& form, const std::string& folder) {
        ASSERT_TRUE(form.Dir1.set_path(folder));
    }
    static std::string keys(const Form9& form) {
        std::string enabled;
        for (const auto& [key, letter] :
             {std::pair(TransportKey::play, 'P'), std::pair(TransportKey::pause, 'U'),
              std::pair(TransportKey::stop, 'S')}) {
            enabled += form.MMControl1.key_enabled(key) ? letter : '-';
        }
        return enabled;
    }

    PlaylistWorld world;
};

TEST_F(PlaylistEditorTest, GathersSongsFromFoldersAndHandsThemToTheMainWindow) {
    edit([&](Form9& form) {
        EXPECT_EQ(world.program.CurrentForm, FormNumber::PlaylistEditor);
        EXPECT_EQ(form.Label10.caption(), "4 items in directory.");
        EXPECT_EQ(form.Label11.caption(), "0 items in playlist.");
        form.Command2.click();
        EXPECT_TRUE(form.List2.empty()) << "nothing selected";
        select(form.List1, {"c.rmi", "a.mid"});
        form.Command2.click();
        form.Command2.click();
        EXPECT_EQ(World::names(form.List2), (Log{"a.mid", "c.rmi"})) << "once";
        go_to(form, "/other");
        EXPECT_EQ(World::names(form.List1), (Log{"A.mid", "a.mid", "x.mid"}));
        form.Command7.click();
        EXPECT_EQ(world.lines(),
                  (Log{"A.mid|/other/", "a.mid|/music/", "c.rmi|/music/", "x.mid|/other/"}))
            << "names in another case are other names; the folder that sorts first stays";
        go_to(form, "/music");
        form.List1.click(1);
        form.List1.double_click(1);
        EXPECT_EQ(form.Label11.caption(), "5 items in playlist.");
        EXPECT_EQ(world.happened(), Log{});
    });
    EXPECT_EQ(World::names(world.form.File1), (Log{"A.mid", "a.mid", "b.mid", "c.rmi", "x.mid"}));
    EXPECT_EQ(world.form.Label2.caption(), "5");
    EXPECT_EQ(world.program.CurrentForm, FormNumber::Main);
    EXPECT_EQ(world.happened(), Log{}) << "in Manual mode nothing starts";

    edit([&](Form9& form) {
        EXPECT_EQ(World::names(form.List2), World::names(world.form.File1));
        select(form.List2, {"x.mid", "a.mid", "b.mid"});
        form.Command3.click();
        EXPECT_EQ(World::names(form.List2), (Log{"A.mid", "c.rmi"})) << "exactly those";
        form.Command3.click();
        EXPECT_EQ(form.List2.count(), 2U) << "nothing is selected any more";
    });
}

TEST_F(PlaylistEditorTest, StopsTheMainPlayerAndPlaysTheListWhenItCloses) {
    world.settings().Mode = PlayMode::Alpha;
    world.load("Zephyne Playlist\na.mid|/music/");
    EXPECT_EQ(world.played(), Log{"a.mid"});
    edit([&](Form9& form) {
        EXPECT_FALSE(world.device.is_open());
        form.Command7.click();
        form.request_unload(CloseReason::user);
    });
    EXPECT_EQ(world.played(), Log{"a.mid"});
    EXPECT_EQ(world.form.Label2.caption(), "4");
    EXPECT_EQ(world.form.Label4.caption(), "3");
    world.expect_in_one_piece();
}

TEST_F(PlaylistEditorTest, TakesSongsFromTheSearchAndAsksBeforeThePlaylistIsCleared) {
    const std::string question =
        "message: \r\nAre you sure you want to clear the playlist?  You won't be able to recover "
        "from this operation. [Important...]";
    world.playlist_editor.show_drive_search = [](EditedPlaylist& playlist) {
        playlist.playlistdisable();
        playlist.add({"x.mid|/other/", "a.mid|/a/"});
        playlist.Killdupes();
        playlist.playlistenable();
    };
    edit([&](Form9& form) {
        form.Command6.click();
        EXPECT_EQ(world.happened(), Log{}) << "there is nothing to clear";
        form.Command7.click();
        form.Command8.click();
        EXPECT_EQ(world.lines().front(), "a.mid|/a/");
        EXPECT_EQ(form.Label11.caption(), "5 items in playlist.");
        for (const auto& [answer, left] : {std::pair(Answer::no, 5), std::pair(Answer::yes, 0)}) {
            world.messages.answer = answer;
            form.Command6.click();
            EXPECT_EQ(world.happened(), Log{question});
            EXPECT_EQ(form.Label11.caption(), std::to_string(left) + " items in playlist.");
        }
    });
    EXPECT_TRUE(world.form.File1.empty());
}

TEST_F(PlaylistEditorTest, LocksItsKeysWhileThePlaylistChanges) {
    world.load("Zephyne Playlist\r\nno bar");
    world.happened();
    edit([&](Form9& form) {
        world.dialogs.answers = {world.path("list.lst")};
        world.messages.while_open = [&] {
            for (const Control* control : std::initializer_list<const Control*>{
                     &form.Command2, &form.Command3, &form.Command4, &form.Command5, &form.Command6,
                     &form.Command7, &form.Drive1, &form.Dir1, &form.List1}) {
                EXPECT_FALSE(control->enabled()) << control->name();
            }
            EXPECT_TRUE(form.List2.enabled() && form.Command1.enabled());
        };
        form.Command5.set_focus();
        form.Command5.click();
        EXPECT_EQ(world.happened().back(), "message: Error Loading Playlist [Error]");
        EXPECT_TRUE(form.Command5.enabled() && form.List1.enabled());
        EXPECT_TRUE(form.Command5.focused());
    });
}

TEST_F(PlaylistEditorTest, ListsWhatTheSettingsAllowAndSkipsWhatNoLineCanHold) {
    world.settings().Lowercase = 1;
    world.settings().AllowWav = 0;
    world.files.add_file("/odd/MYSONG.MID");
    world.files.add_file("/odd/two\nlines.mid");
    world.files.add_file("/odd/a|b.mid");
    world.files.add_file("/odd/z.wav");
    edit([&](Form9& form) {
        go_to(form, "/odd");
        EXPECT_EQ(World::names(form.List1), (Log{"A|b.mid", "Mysong.mid", "Two\nlines.mid"}));
        form.Command7.click();
        EXPECT_EQ(world.happened(), Log{"beep"});
        EXPECT_EQ(world.lines(), (Log{"A|b.mid|/odd/", "Mysong.mid|/odd/"}));
    });
    world.click("Mysong.mid");
    EXPECT_EQ(world.open_song(), "MYSONG.MID");
}

TEST_F(PlaylistEditorTest, FilesThatLookAlikeInTheFolderAreBothAddedAndBothPlay) {
    world.settings().Lowercase = 1;
    world.settings().Mode = PlayMode::Alpha;
    for (const char* song : {"RAG.MID", "rag.mid", "Z.MID"}) {
        world.files.add_file("/odd/" + std::string(song));
    }
    edit([&](Form9& form) {
        go_to(form, "/odd");
        EXPECT_EQ(World::names(form.List1), (Log{"Rag.mid", "Rag.mid", "Z.mid"}));
        form.List1.click(1);
        form.Command2.click();
        EXPECT_EQ(world.lines(), Log{"rag.mid|/odd/"}) << "alone it needs its real name, too";
        form.Command7.click();
        EXPECT_EQ(world.lines(), (Log{"RAG.MID|/odd/", "rag.mid|/odd/", "Z.mid|/odd/"}));
    });
    EXPECT_EQ(world.open_song(), "RAG.MID");
    world.form.Command9.click();
    EXPECT_EQ(world.open_song(), "rag.mid");
    world.form.Command9.click();
    EXPECT_EQ(world.open_song(), "Z.MID");
}

TEST_F(PlaylistEditorTest, NextBehindTheEditorPlaysNothingButWhatItsRowSays) {
    world.load("Zephyne Playlist\na.mid|/music/\nb.mid|/music/\nx.mid|/other/");
    edit([&](Form9& form) {
        form.List2.click(0);
        form.Command3.click();
        world.form.Command9.click();
        EXPECT_EQ(world.open_song(), "") << "the row of a.mid has become that of b.mid";
    });
}

TEST_F(PlaylistEditorTest, BeginsWhereItWasLeftInTheSameRunWithTooltipsWhereTheyAreWanted) {
    edit([&](Form9& form) {
        EXPECT_EQ(form.List2.tooltip(), "Contents of Playlist");
        EXPECT_EQ(form.Dir1.path(), "/music");
        go_to(form, "/other");
        form.user_moved(300, 450);
    });
    world.settings().ShowTips = 0;
    edit([&](Form9& form) {
        EXPECT_EQ(form.List2.tooltip(), "");
        EXPECT_EQ(form.Dir1.path(), "/other");
        EXPECT_EQ(form.place().left, 300);
        EXPECT_EQ(form.place().top, 450);
    });
    world.files.remove("/other");
    edit([&](Form9& form) { EXPECT_EQ(form.Dir1.path(), "/music") << "the other is gone"; });
}

TEST_F(PlaylistEditorTest, AnUnreadableDriveIsReportedAndTheFolderStays) {
    world.files.add_volume("/", "System");
    world.files.add_volume("/stick", "Stick");
    world.files.deny_listing("/stick");
    edit([&](Form9& form) {
        form.Drive1.refresh();
        form.Drive1.choose(1);
        EXPECT_EQ(world.happened(),
                  Log{"message: Error - Drive May Be Unavailable. [Drive Error]"});
        EXPECT_EQ(form.Dir1.path(), "/music");
        EXPECT_EQ(form.Drive1.drive().name, "System");
    });
}

TEST_F(PlaylistEditorTest, AuditionsASongOnADeviceOfItsOwn) {
    world.settings().AutoReset = 1;
    edit([&](Form9& form) {
        EXPECT_EQ(keys(form), "---");
        form.List1.click(0);
        EXPECT_EQ(keys(form), "P--");
        form.MMControl1.press(TransportKey::play);
        EXPECT_EQ(world.happened(),
                  (Log{"open gm_reset.aut", "play gm_reset.aut", "close gm_reset.aut",
                       "audition: open a.mid", "audition: play a.mid"}));
        EXPECT_EQ(keys(form), "PUS");
        EXPECT_EQ(form.title(), "Edit Playlist");
        EXPECT_EQ(world.form.title(), "Zephyne");
        EXPECT_EQ(world.program.CurrentSongPath, "");
        EXPECT_FALSE(world.device.is_open());

        form.MMControl1.press(TransportKey::pause);
        form.MMControl1.press(TransportKey::pause);
        EXPECT_EQ(world.happened(), (Log{"audition: pause a.mid", "audition: play a.mid"}));
        form.MMControl1.press(TransportKey::stop);
        EXPECT_EQ(keys(form), "P--");
        world.settings().AutoReset = 0;
        form.MMControl1.press(TransportKey::play);
        world.happened();
        world.audition.finish();
        world.pump.pump();
        EXPECT_EQ(world.happened(), Log{"audition: close a.mid"});
        EXPECT_EQ(keys(form), "P--");

        form.List1.click(3);
        form.MMControl1.press(TransportKey::play);
        go_to(form, "/other");
        EXPECT_EQ(world.happened(), (Log{"audition wave: open d.wav", "audition wave: play d.wav",
                                         "audition wave: close d.wav"}));
        EXPECT_EQ(keys(form), "---");
        world.audition.broken = {"A.mid"};
        form.List1.click(0);
        form.MMControl1.press(TransportKey::play);
        EXPECT_EQ(world.happened(), (Log{"audition: cannot open A.mid", "beep"}));
        EXPECT_EQ(keys(form), "P--");
        form.List1.click(1);
        form.MMControl1.press(TransportKey::play);
    });
    EXPECT_EQ(world.happened().back(), "audition: close a.mid") << "closing the window ends it";
    world.expect_flags_at_rest();
}

// The reset before a song lets events run; whatever arrives then, nothing plays that nobody wants.
TEST_F(PlaylistEditorTest, AnAuditionIsGivenUpWhenTheUserActsWhileTheSynthesizerIsReset) {
    for (const auto& act : std::initializer_list<std::function<void(Form9&)>>{
             [](Form9& form) { form.List1.click(1); }, [](Form9& form) { go_to(form, "/other"); },
             [](Form9& form) { form.MMControl1.press(TransportKey::play); },
             [](Form9& form) { form.Command1.click(); }}) {
        for (int at = 1; at <= 3; ++at) {
            PlaylistWorld fresh;
            fresh.settings().AutoReset = 1;
            fresh.settings().Mode = PlayMode::Alpha;
            int pumps = 0;
            fresh.edit([&](Form9& form) {
                form.Command7.click();
                form.List1.click(0);
                fresh.pump.on_pump = [&] {
                    if (++pumps == at) act(form);
                };
                form.MMControl1.press(TransportKey::play);
                fresh.pump.on_pump = nullptr;
                EXPECT_EQ(form.title(), "Edit Playlist");
            });
            EXPECT_EQ(fresh.audition.open_song(), "");
            EXPECT_EQ(fresh.played(), Log{"a.mid"}) << "the playlist, after the editor";
            fresh.expect_in_one_piece();
        }
    }
}

TEST_F(PlaylistEditorTest, EndingTheProgramWhileItIsOpenStartsNothing) {
    world.settings().AutoReset = 1;
    world.settings().Mode = PlayMode::Alpha;
    world.windows.on_modal = [&](Form& form) {
        auto& editor = dynamic_cast<Form9&>(form);
        editor.Command7.click();
        editor.List1.click(0);
        world.pump.on_pump = [&] { world.program.Ending = true; };
        editor.MMControl1.press(TransportKey::play);
        EXPECT_EQ(world.audition.open_song(), "") << "the synthesizer was being reset";
    };
    world.form.Command13.click();
    EXPECT_EQ(world.played(), Log{});
    EXPECT_TRUE(world.form.File1.empty());
}

}  // namespace
}  // namespace zephyne::test
