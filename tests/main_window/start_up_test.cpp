#include "core/window_placing.h"
#include "tests/support/program_world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace zephyne::test {
namespace {

TEST(StartUp, GoesFromTheTrayIconToTheFirstSongInThisOrder) {
    ProgramWorld world({"b.mid", "a.mid"});
    EXPECT_EQ(world.load("Mode=Alpha\r\n"), Started::normal);
    EXPECT_EQ(world.happened(),
              (Log{"tray icon", "window shown", "tip of the day", "open gm_reset.aut",
                   "play gm_reset.aut", "close gm_reset.aut", "open a.mid", "play a.mid"}));
    EXPECT_EQ(world.form.title(), "Zephyne - Playing A.mid");
    EXPECT_TRUE(world.form.loaded());
    EXPECT_TRUE(world.form.Timer4.enabled());
    EXPECT_TRUE(world.form.Timer5.enabled());
    EXPECT_EQ(world.form.Timer5.interval(), 1500);
    EXPECT_TRUE(world.form.Timer6.enabled());
    EXPECT_EQ(world.program.StartFolder, "/music");
    EXPECT_EQ(world.program.HelpFile, "/zephyne/zephyne.hlp");
    EXPECT_EQ(world.program.NormalExStyle, 0x100);
    EXPECT_EQ(world.program.TaskbarExStyle, 0x40100);
    world.expect_flags_at_rest();
}

TEST(StartUp, OnlyAFolderInRandomAlphaOrPreviewModePlaysByItself) {
    const std::vector<std::tuple<std::string, Log, std::size_t>> table = {
        {"Mode=Random", {"a.mid"}, 2},        {"Mode=Alpha\r\nReverse=1", {"b.mid"}, 2},
        {"Mode=Preview", {"a.mid"}, 2},       {"Mode=Manual", {}, 2},
        {"Mode=Random\r\nPlaylist=1", {}, 0}, {"Mode=Manual\r\nPlaylist=1", {}, 0}};
    for (const auto& [settings, played, listed] : table) {
        ProgramWorld world({"a.mid", "b.mid"});
        world.load(settings);
        EXPECT_EQ(world.played(), played) << settings;
        EXPECT_EQ(world.form.File1.count(), listed) << settings;
        world.expect_flags_at_rest();
    }
}

TEST(StartUp, APlaylistStartsWithItsOwnLayoutAndWithoutTrayCommands) {
    ProgramWorld world;
    world.load("Playlist=1\r\nExtended=0\r\n");
    EXPECT_FALSE(world.form.Dir1.visible());
    EXPECT_TRUE(world.form.Label14.visible());
    EXPECT_EQ(world.form.place().width, 6500);
    EXPECT_FALSE(world.tray.mnuNext.enabled);

    ProgramWorld folder;
    folder.load("Playlist=0\r\n");
    EXPECT_TRUE(folder.tray.mnuNext.enabled);
}

TEST(StartUp, TheWindowIsNeverLostWhateverIsHidden) {
    const std::vector<std::tuple<std::string, bool, std::string>> table = {
        {"AutoHide=0\r\nShowBar=0\r\nShowTray=1", true, "shown"},
        {"AutoHide=0\r\nShowBar=0\r\nShowTray=1", false, "shown with button"},
        {"AutoHide=0\r\nShowBar=0\r\nShowTray=0", true, "shown with button"},
        {"AutoHide=0\r\nShowBar=1\r\nShowTray=1", true, "shown with button"},
        {"AutoHide=1\r\nShowBar=0\r\nShowTray=1", true, "hidden"},
        {"AutoHide=1\r\nShowBar=0\r\nShowTray=1", false, "minimised with button"},
        {"AutoHide=1\r\nShowBar=0\r\nShowTray=0", true, "minimised with button"},
        {"AutoHide=1\r\nShowBar=1\r\nShowTray=1", true, "shown with button"},
        {"AutoHide=1\r\nShowBar=1\r\nShowTray=0", false, "shown with button"}};
    for (const auto& [settings, tray_host, window] : table) {
        ProgramWorld world;
        world.has_tray_host = tray_host;
        world.load(settings);
        EXPECT_EQ(world.window(), window) << settings << " " << tray_host;
        const bool tip = std::count(world.log.begin(), world.log.end(), "tip of the day") == 1;
        EXPECT_EQ(tip, settings.starts_with("AutoHide=0")) << settings;
    }
}

TEST(StartUp, TheWindowComesBackToItsPlaceOrToTheMiddle) {
    const std::vector<std::pair<std::string, Place>> table = {
        {"Left=-300\r\nTop=450", {-300, 450, 9000, 6510}},
        {"Left=300\r\nTop=-450", {300, 0, 9000, 6510}},  // its title bar can be reached
        {"Left=0\r\nTop=450", {5100, 2745, 9000, 6510}},
        {"Left=300\r\nTop=0", {5100, 2745, 9000, 6510}},
        {"Extended=0", {6350, 2745, 6500, 6510}},
        {"Left=300\r\nTop=450\r\nExtended=0\r\nShowBar=1", {300, 450, 6500, 6510}}};
    for (const auto& [settings, place] : table) {
        ProgramWorld world;
        world.load(settings + "\r\n");
        EXPECT_EQ(world.form.place(), place) << settings;
    }
}

TEST(StartUp, TheSettingsAreShownInTheWindow) {
    ProgramWorld world;
    world.load("Mode=Manual\r\nDisplay=2\r\nShowTips=0\r\nVolLocked=1\r\n");
    EXPECT_EQ(world.form.Label10.colour(), 0xFF0000U);
    EXPECT_EQ(world.form.Command2.tooltip(), "");
    EXPECT_EQ(world.form.Check1.value(), 1);
    EXPECT_EQ(world.form.Tens.image(), digit_image(2, 0));
}

TEST(StartUp, TheFolderShownLastIsShownAgainAndOneThatHasGoneIsPassedOverInSilence) {
    ProgramWorld world({"a.mid"});
    world.files.add_volume("/", "System");
    world.files.add_volume("/stick", "Stick");
    world.files.add_file("/stick/rags/maple.mid");
    world.load("LastDir=/stick/rags\r\n");
    EXPECT_EQ(world.form.Drive1.drive().name, "Stick");
    EXPECT_EQ(world.played(), Log{"maple.mid"}) << "and only that";
    EXPECT_EQ(world.program.StartFolder, "/music");

    for (const char* gone : {"/stick/rags", "/music/gone"}) {
        ProgramWorld other({"a.mid"});
        other.files.add_volume("/", "System");
        other.files.add_volume("/stick", "Stick");
        other.files.deny("/stick");
        other.load("LastDir=" + std::string(gone));
        EXPECT_EQ(other.form.Drive1.drive().name, "System") << gone;
        EXPECT_EQ(other.form.Dir1.path(), "/music") << gone;
        EXPECT_EQ(other.happened().front(), "tray icon") << "no message before the window";
    }
}

TEST(StartUp, LooksForTheResetSequenceOfTheChosenType) {
    for (const bool present : {true, false}) {
        ProgramWorld world;
        if (!present) world.files.remove("/zephyne/gs_reset.aut");
        world.load("ResetType=2\r\nMode=Manual\r\n");
        EXPECT_EQ(world.program.ResetFilePresent, present);
        world.click("a.mid");
        EXPECT_EQ(world.happened().at(3), present ? "open gs_reset.aut" : "open a.mid");
    }
}

TEST(StartUp, FilesThatComeWithTheProgramMayLieWhereItIsInstalled) {
    ProgramWorld world;
    world.program.folders.installed = "/share";
    world.files.add_file("/share/zephyne.hlp");
    world.files.remove("/zephyne/gm_reset.aut");
    world.files.add_file("/share/gm_reset.aut");
    world.load("Mode=Manual\r\n");
    EXPECT_EQ(world.program.HelpFile, "/share/zephyne.hlp");
    EXPECT_TRUE(world.program.ResetFilePresent);
}

TEST(FirstStart, PlaysTheDemoSongsWhereTheFolderHasNone) {
    for (const char* home : {"/zephyne", "/share"}) {
        ProgramWorld world({"readme.txt", "noise.wav"});
        world.program.folders.installed = "/share";
        world.files.add_file(std::string(home) + "/songs/demo.mid");
        world.load_without_settings();
        EXPECT_EQ(world.form.Dir1.path(), std::string(home) + "/songs");
        EXPECT_EQ(world.played(), Log{"demo.mid"}) << "once";
        EXPECT_EQ(world.form.Label10.caption(), "Random Playback");
        world.expect_flags_at_rest();
    }
}

TEST(FirstStart, StaysInAFolderThatHasSongsAndWhereNoDemoSongsAre) {
    ProgramWorld world({"own.mid"});
    world.files.add_file("/zephyne/songs/demo.mid");
    world.load_without_settings();
    EXPECT_EQ(world.played(), Log{"own.mid"});

    ProgramWorld bare({});
    bare.load_without_settings();
    EXPECT_EQ(bare.form.Dir1.path(), "/music") << "no demo songs are installed";
    EXPECT_EQ(bare.form.title(), "Zephyne");

    ProgramWorld unreadable({});
    unreadable.files.add_file("/zephyne/songs/demo.mid");
    unreadable.files.add_file(unreadable.settings_path());
    unreadable.files.deny(unreadable.settings_path());
    unreadable.load_without_settings();
    EXPECT_EQ(unreadable.form.Dir1.path(), "/music") << "it is not the first start";
}

TEST(Activation, KeepsTheWindowsPlaceExceptInTheQueuePlayer) {
    ProgramWorld world;
    world.load("Mode=Manual\r\n");
    world.form.user_moved(120, 345);
    EXPECT_EQ(world.settings().Left, 0) << "not before it is active again";
    world.form.user_activated();
    EXPECT_EQ((Corner{world.settings().Left, world.settings().Top}), (Corner{120, 345}));

    ProgramWorld queue;
    queue.load("Left=7\r\nTop=8\r\n", "/music/a.mid");
    queue.form.user_moved(120, 345);
    queue.form.user_activated();
    EXPECT_EQ((Corner{queue.settings().Left, queue.settings().Top}), (Corner{7, 8}));
}

}  // namespace
}  // namespace zephyne::test
