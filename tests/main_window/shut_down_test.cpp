#include "tests/support/program_world.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zephyne::test {
namespace {

const std::string kQuestion = "message: Are you sure you want to quit Zephyne? [Confirm Exit]";

// A program in the middle of its first song, which tells how it is put away.
struct Running : ProgramWorld {
    explicit Running(const std::string& settings = {}) {
        shut_down.close_notes = [this] { log.push_back("notes closed"); };
        shut_down.unload_tray = [this] {
            log.push_back("tray icon removed, " + std::to_string(timers_on()) + " timers, " +
                          (written() ? "settings written" : "settings not written"));
        };
        shut_down.close_help = [this] {
            log.push_back("help closed, " + std::to_string(timers_on()) + " timers");
        };
        load("Mode=Alpha\r\n" + settings);
        run_for(2000);
        happened();
    }

    bool written() const {
        return files.contents(settings_path())->find("[Options]") != std::string::npos;
    }
    int timers_on() const {
        int on = 0;
        for (const RepeatingTimer* timer :
             {&form.Timer1, &form.Timer2, &form.Timer3, &form.Timer4, &form.Timer5, &form.Timer6}) {
            on += timer->enabled() ? 1 : 0;
        }
        return on;
    }
};

TEST(ShutDown, PutsEverythingAwayInThisOrder) {
    Running world("ConfirmExit=0\r\n");
    world.pump.on_pump = [&] { world.log.push_back("pending events"); };
    world.form.Command2.click();
    EXPECT_EQ(world.happened(),
              (Log{"notes closed", "close a.mid", "tray icon removed, 3 timers, settings written",
                   "pending events", "help closed, 0 timers", "end", "window hidden"}));
    EXPECT_EQ(world.form.title(), "Zephyne");
    world.pump.on_pump = nullptr;
    world.run_for(600'000);
    EXPECT_EQ(world.happened(), Log()) << "nothing moves any more";
}

TEST(ShutDown, AsksFirstAndGoesOnAfterANo) {
    Running world;
    world.messages.answer = Answer::no;
    world.form.Command2.click();
    EXPECT_EQ(world.happened(), Log{kQuestion});
    EXPECT_EQ(world.device.Mode(), DeviceMode::playing);
    EXPECT_FALSE(world.written());

    world.messages.answer = Answer::yes;
    EXPECT_TRUE(world.form.request_unload(CloseReason::user));
    EXPECT_EQ(world.log.back(), "window hidden");
    EXPECT_TRUE(world.written());
}

TEST(ShutDown, TheEndOfTheSessionAsksNobodyAndOverridesAnOpenQuestion) {
    Running session;
    session.form.request_unload(CloseReason::session_end);
    EXPECT_EQ(session.happened().front(), "notes closed");
    EXPECT_TRUE(session.written());
    EXPECT_TRUE(session.program.SessionEnded) << "nor does what goes wrong on the way out";
    for (const Answer answer : {Answer::yes, Answer::no}) {
        Running world;
        world.messages.answer = answer;
        world.messages.while_open = [&] {
            EXPECT_FALSE(world.form.request_unload(CloseReason::user)) << "one question is enough";
            EXPECT_TRUE(world.form.request_unload(CloseReason::session_end));
        };
        world.form.Command2.click();
        EXPECT_EQ(world.happened(), (Log{kQuestion, "notes closed", "close a.mid",
                                         "tray icon removed, 3 timers, settings written",
                                         "help closed, 0 timers", "end", "window hidden"}))
            << "and all of it once";
    }
}

TEST(ShutDown, GoesOnWithoutATrayIconAndWhereTheSettingsCannotBeWritten) {
    Running bare("ShowTray=0\r\nConfirmExit=0\r\n");
    bare.form.Command2.click();
    EXPECT_EQ(bare.happened(), (Log{"notes closed", "close a.mid", "help closed, 0 timers", "end",
                                    "window hidden"}));

    Running world("ConfirmExit=0\r\n");
    world.files.deny_writing(world.settings_path());
    world.form.Command2.click();
    EXPECT_EQ(world.happened(), (Log{"notes closed", "close a.mid",
                                     "message: Error writing ZEPHYNE.INI file! [Error]",
                                     "tray icon removed, 3 timers, settings not written",
                                     "help closed, 0 timers", "end", "window hidden"}));
}

TEST(ShutDown, WorksDuringThePauseBetweenSongs) {
    Running world("AutoDelay=1\r\nAutoDelayTime=30\r\nConfirmExit=0\r\n");
    world.midi.lengths["a.mid"] = 180'000;
    world.pump.arrive_when([&] { return world.program.DelayActive; },
                           [&] { world.form.Command2.click(); });
    world.run_for(180'000);
    const Log log = world.happened();
    EXPECT_EQ(std::count(log.begin(), log.end(), "end"), 1);
    EXPECT_EQ(std::count(log.begin(), log.end(), "play a.mid"), 0) << "no song starts any more";
    EXPECT_TRUE(world.written());
    EXPECT_FALSE(world.program.DelayActive);
}

TEST(ShutDown, WorksWhileAMessageIsOpen) {
    Running world("Mode=Manual\r\n");
    world.files.add_file("/music/broken.mid");
    world.midi.broken.insert("broken.mid");
    world.engine->songs.refreshfiles();
    world.messages.while_open = [&] { world.form.request_unload(CloseReason::session_end); };
    world.click("broken.mid");
    const Log log = world.happened();
    EXPECT_EQ(log.at(log.size() - 2), "end");
    EXPECT_EQ(log.back(), "window hidden");
    EXPECT_FALSE(world.device.is_open());
    world.run_for(10'000);
    EXPECT_EQ(world.happened(), Log());
}

}  // namespace
}  // namespace zephyne::test
