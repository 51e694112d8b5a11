#include "core/scheduler.h"

#include "tests/support/virtual_time.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace zephyne::test {
namespace {

using Log = std::vector<std::string>;

struct Stand {
    VirtualClock clock;
    Scheduler scheduler{clock};
    VirtualPump pump{clock, scheduler};
    Log log;
    const Milliseconds begin = clock.now();

    void note(const std::string& what) {
        log.push_back(what + " at " + std::to_string(clock.now() - begin));
    }
    std::unique_ptr<RepeatingTimer> timer(const std::string& name, Milliseconds interval) {
        auto made = std::make_unique<RepeatingTimer>(scheduler, interval);
        made->on_tick = [this, name] { note(name); };
        made->set_enabled(true);
        return made;
    }
    // How long from now until something can be handled; -1: never.
    Milliseconds next() const {
        const auto due = scheduler.next_due();
        return due ? *due - clock.now() : -1;
    }
};

TEST(Scheduler, HandlesTheEarliestFirstAndEqualsInTheOrderTheyWereMade) {
    Stand stand;
    const auto slow = stand.timer("slow", 300);
    const auto quick = stand.timer("quick", 100);
    const auto also = stand.timer("also", 300);
    stand.pump.run_for(300);
    EXPECT_EQ(stand.log,
              (Log{"quick at 100", "quick at 200", "slow at 300", "quick at 300", "also at 300"}));
}

TEST(Scheduler, EventsComeOneAtATimeInTheOrderTheyWerePosted) {
    Stand stand;
    EventQueue queue(stand.scheduler);
    queue.post([&] {
        stand.log.push_back("first begins");
        queue.post([&] { stand.log.push_back("third"); });
        stand.pump.pump();  // the queue's own events wait
        stand.log.push_back("first ends");
    });
    queue.post([&] { stand.log.push_back("second"); });
    stand.pump.pump();
    EXPECT_EQ(stand.log, (Log{"first begins", "first ends", "second", "third"}));
    EXPECT_TRUE(queue.empty());

    queue.post([&] { stand.log.push_back("never"); });
    queue.clear();
    stand.pump.pump();
    EXPECT_EQ(stand.log.back(), "third");
}

TEST(Scheduler, AHandlerThatPumpsIsNotEnteredAgainWhileTheOthersGoOn) {
    Stand stand;
    const auto other = stand.timer("other", 100);
    const auto patient = stand.timer("patient", 150);
    patient->on_tick = [&] {
        stand.note("patient begins");
        stand.pump.run_for(400);
        stand.note("patient ends");
        patient->on_tick = [&] { stand.note("patient again"); };
    };
    stand.pump.run_for(600);
    EXPECT_EQ(stand.log, (Log{"other at 100", "patient begins at 150", "other at 200",
                              "other at 300", "other at 400", "other at 500", "patient ends at 550",
                              "patient again at 550", "other at 600"}));
}

TEST(Scheduler, AMissedTickComesOnceAndLate) {
    Stand stand;
    const auto timer = stand.timer("tick", 100);
    stand.clock.advance_to(stand.begin + 350);
    stand.pump.pump();
    EXPECT_EQ(stand.log, Log{"tick at 350"});
    EXPECT_EQ(stand.next(), 100) << "a new rhythm";
    stand.clock.advance_to(stand.begin + 460);
    stand.pump.pump();
    EXPECT_EQ(stand.next(), 90) << "a small delay does not break the rhythm";
}

TEST(Scheduler, TheNextEventIsOneThatCanBeHandledNow) {
    Stand stand;
    EXPECT_EQ(stand.next(), -1);
    const auto running = stand.timer("running", 100);
    running->on_tick = [&] {
        EXPECT_EQ(stand.next(), -1) << "nobody else waits";
        const auto other = stand.timer("other", 30);
        EXPECT_EQ(stand.next(), 30);
        stand.pump.run_for(500);
        EXPECT_EQ(stand.next(), 10);
    };
    stand.pump.run_for(100);
    EXPECT_LT(stand.next(), 0) << "what the handler has missed";
    EXPECT_EQ(stand.log.size(), 16U);
}

TEST(Scheduler, SourcesMayEndInsideHandlers) {
    Stand stand;
    auto suicidal = stand.timer("suicidal", 100);
    suicidal->on_tick = [&] {
        stand.note("suicidal");
        suicidal.reset();
        stand.pump.run_for(50);  // others still run on top of it
        stand.note("after its end");
    };
    auto victim = stand.timer("victim", 100);
    auto killer = std::make_unique<EventQueue>(stand.scheduler);
    killer->post([&] {
        victim.reset();
        killer.reset();
    });
    const auto bystander = stand.timer("bystander", 120);
    stand.pump.run_for(240);
    EXPECT_EQ(stand.log, (Log{"suicidal at 100", "bystander at 120", "after its end at 150",
                              "bystander at 240"}));
}

TEST(Scheduler, ATimerCanBeStoppedAndChangedByItsOwnHandler) {
    Stand stand;
    const auto timer = stand.timer("", 100);
    timer->on_tick = [&] {
        stand.note("tick");
        if (stand.log.size() == 1) timer->set_interval(30);
        if (stand.log.size() == 2) timer->set_enabled(false);
    };
    stand.pump.run_for(1000);
    EXPECT_EQ(stand.log, (Log{"tick at 100", "tick at 130"}));

    timer->set_enabled(true);
    stand.pump.run_for(20);
    timer->set_enabled(true);  // it is on already: no new interval
    EXPECT_EQ(stand.next(), 10);
    timer->set_interval(0);
    EXPECT_EQ(stand.next(), -1) << "an interval of 0 never ticks";
}

TEST(Scheduler, TheWakeUpIsArmedWhenSomethingBecomesDueOrFree) {
    Stand stand;
    std::vector<Milliseconds> armed;
    stand.scheduler.set_wake_up([&] { armed.push_back(stand.next()); });
    const auto timer = stand.timer("tick", 100);
    EventQueue queue(stand.scheduler);
    queue.post([] {});
    stand.scheduler.dispatch_due();
    EXPECT_EQ(armed, (std::vector<Milliseconds>{100, 0, 100}));

    // Back from a handler: what it has missed can be handled again.
    timer->on_tick = [&] { stand.clock.advance_to(stand.clock.now() + 250); };
    stand.clock.advance_to(stand.begin + 100);
    stand.scheduler.dispatch_due();
    EXPECT_EQ(armed.back(), -150);
}

TEST(Scheduler, WhileOnlyTheDisplayGoesOnAllElseWaitsItsTurn) {
    Stand stand;
    const auto animation = stand.timer("animation", 10);
    const auto worker = stand.timer("worker", 5);
    EventQueue queue(stand.scheduler);
    animation->set_kind(EventKind::display);
    stand.clock.advance_to(stand.begin + 10);
    queue.post([&] { stand.note("event"); });
    stand.pump.show();
    EXPECT_EQ(stand.log, (Log{"animation at 10"}));
    stand.pump.pump();
    EXPECT_EQ(stand.log, (Log{"animation at 10", "worker at 10", "event at 10"}));
}

}  // namespace
}  // namespace zephyne::test
