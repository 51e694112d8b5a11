#include "tests/support/program_world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

TEST(SecondCopy, BringsTheFirstForwardHandsOverAndEnds) {
    for (const char* line : {"", "/music/a.mid", "whatever it says"}) {
        ProgramWorld world;
        world.hand_over.taken = true;
        const int opened = world.files.open_count();
        EXPECT_EQ(world.load("Mode=Alpha\r\n", line), Started::ended);
        Log sent = {"come forward"};
        if (*line != '\0') sent.push_back("poke " + std::string(line));
        EXPECT_EQ(world.hand_over.sent, sent);
        EXPECT_EQ(world.log, Log());
        EXPECT_EQ(world.files.open_count(), opened) << "nothing is read or written";
        EXPECT_FALSE(world.form.loaded());
        EXPECT_EQ(world.pump.deepest(), 0);
    }
}

TEST(FirstCopy, ComesForwardFromWhereverItIs) {
    ProgramWorld world;
    world.load("Mode=Manual\r\nAutoHide=1\r\n");
    ASSERT_EQ(world.window(), "hidden");
    world.hand_over.on_bring_forward();
    EXPECT_EQ(world.window(), "shown");
    world.form.user_changed_state(WindowState::minimized);
    EXPECT_EQ(world.window(), "hidden");
    world.hand_over.on_bring_forward();
    EXPECT_EQ(world.window(), "shown");
    EXPECT_EQ(world.windows.raised, (Log{"Form1", "Form1"}));
    EXPECT_EQ(world.hand_over.sent, Log());
}

TEST(FirstCopy, ComesForwardWithTheWindowThatWaitsForAnAnswer) {
    ProgramWorld world;
    world.load("Mode=Manual\r\n");
    Form message({.name = "dlgbox"});
    message.set_state(WindowState::minimized);
    world.windows.modal = &message;
    world.hand_over.on_bring_forward();
    EXPECT_EQ(world.windows.raised, (Log{"Form1", "dlgbox"}));
    EXPECT_EQ(message.state(), WindowState::normal);
}

TEST(FirstCopy, PlaysASongHandedOverWithinASecondAndAHalf) {
    ProgramWorld world({"a.mid", "b.mid"});
    world.load("Mode=Manual\r\n");
    world.hand_over.on_poke("/music/b.mid");
    EXPECT_EQ(world.played(), Log()) << "nothing happens at once";
    world.run_for(1500);
    EXPECT_EQ(world.played(), Log{"b.mid"});
}

TEST(QueuePlayer, PlaysTheSongOfTheCommandLineInACompactWindow) {
    ProgramWorld world;
    EXPECT_EQ(world.load("Mode=Preview\r\nLeft=7\r\nTop=8\r\n", "/music/a.mid"), Started::queue);
    EXPECT_EQ(world.happened(),
              (Log{"open gm_reset.aut", "play gm_reset.aut", "close gm_reset.aut", "open a.mid",
                   "play a.mid", "window shown", "window hidden", "window shown with button"}))
        << "no tray icon, no tip";
    EXPECT_EQ(world.form.place(), (Place{(19200 - 2740) / 2, (12000 - 4140) / 2, 2740, 4140}));
    EXPECT_EQ(world.settings().Mode, PlayMode::Queue);
    EXPECT_EQ(world.settings().ShowBar, 1);
    EXPECT_EQ(world.settings().ShowTray, 0);
    EXPECT_EQ(world.program.CurrentSongName, "/music/a.mid");
    EXPECT_EQ(world.form.Timer5.interval(), 1000);
    EXPECT_TRUE(world.form.Command19.visible());
    EXPECT_TRUE(world.program.StartingUp) << "for the whole run";
    EXPECT_FALSE(world.program.AutoStarting);
    EXPECT_TRUE(world.form.File1.empty());
}

TEST(QueuePlayer, IsShownEvenIfTheProgramStartsHidden) {
    ProgramWorld world;
    world.load("AutoHide=1\r\n", "/music/a.mid");
    EXPECT_EQ(world.window(), "shown with button");
    world.form.user_changed_state(WindowState::minimized);
    EXPECT_EQ(world.window(), "minimised with button");
}

TEST(QueuePlayer, CollectsWhatLaterCopiesHandOver) {
    ProgramWorld world({"a.mid", "b.mid", "c.mid"});
    world.load("AutoReset=0\r\n", "/music/a.mid");
    world.run_for(1000);
    EXPECT_FALSE(world.form.Command19.enabled()) << "nothing waits";
    for (const char* song : {"/music/c.mid", "/music/gone.mid", "/music/b.mid"}) {
        world.hand_over.on_poke(song);
        world.run_for(1000);
    }
    world.run_for(1000);
    EXPECT_EQ(World::names(world.form.List2),
              (Log{"/music/c.mid", "/music/gone.mid", "/music/b.mid"}));
    EXPECT_TRUE(world.form.Command19.enabled());
    world.form.Command19.click();
    world.form.Command19.click();
    EXPECT_EQ(world.played(), (Log{"a.mid", "c.mid", "b.mid"}));
}

// As when a file manager opens a whole selection, with one copy of the program for each song.
TEST(FirstCopy, OfSongsThatComeTogetherTheQueuePlayerCollectsAllAndAnyOtherPlaysTheLast) {
    const auto hand_over_two = [](ProgramWorld& world) {
        world.hand_over.on_poke("/music/b.mid");
        world.hand_over.on_poke("/music/c.mid");
        world.run_for(1500);
    };
    ProgramWorld queue({"a.mid", "b.mid", "c.mid"});
    queue.load("AutoReset=0\r\n", "/music/a.mid");
    hand_over_two(queue);
    EXPECT_EQ(World::names(queue.form.List2),
              (std::vector<std::string>{"/music/b.mid", "/music/c.mid"}));

    ProgramWorld normal({"a.mid", "b.mid", "c.mid"});
    normal.load("AutoReset=0\r\nMode=Manual\r\n");
    hand_over_two(normal);
    EXPECT_EQ(normal.played(), std::vector<std::string>{"c.mid"});
}

TEST(QueuePlayer, DoesNotStartWithASongThatCannotBeRead) {
    const std::vector<std::pair<std::string, std::string>> table = {
        {"/music/none.mid", "File not found"},
        {"\"/music/a.mid\"", "Path not found"},
        {"/music/secret.mid", "Permission denied"},
        {"/music/a.mid /music/a.mid", "Path not found"}};
    for (const auto& [line, why] : table) {
        ProgramWorld world({"a.mid", "secret.mid"});
        world.files.deny("/music/secret.mid");
        EXPECT_EQ(world.load("Mode=Manual\r\n", line), Started::ended);
        EXPECT_EQ(world.log, Log{"message: Error on Command Line - " + why + ". [Error!]"});
        EXPECT_EQ(world.files.contents(world.settings_path()), "Mode=Manual\r\n");
        EXPECT_EQ(world.window(), "hidden");
        EXPECT_EQ(world.settings().Mode, PlayMode::Manual) << "it never was a queue";
    }
}

TEST(QueuePlayer, CanBeQuitWhileItsFirstSongStartsAndLeavesTheSettingsItFound) {
    ProgramWorld world;
    world.midi.broken.insert("a.mid");
    world.messages.while_open = [&] { world.form.request_unload(CloseReason::session_end); };
    const std::string found = "ShowBar=0\r\nShowTray=1\r\n";
    EXPECT_EQ(world.load("Mode=Preview\r\n" + found, "/music/a.mid"), Started::queue);
    EXPECT_TRUE(world.program.Ending);
    EXPECT_EQ(world.window(), "hidden");
    const std::string written = world.files.contents(world.settings_path()).value();
    EXPECT_NE(written.find("\r\nMode=Preview\r\n"), std::string::npos);
    EXPECT_NE(written.find("\r\n" + found), std::string::npos);
}

}  // namespace
}  // namespace zephyne::test
