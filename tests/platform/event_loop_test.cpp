#include "platform/desktop/mersenne_random.h"
#include "platform/desktop/signal_watcher.h"
#include "real_time.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <csignal>
#include <vector>

namespace zephyne::test {
namespace {

class EventLoop : public testing::Test, public RealTime {
  protected:
    // Runs a loop of Qt's own, as a modal window does, until quit() or for too long.
    void run_nested_loop() {
        QEventLoop loop;
        QTimer::singleShot(kTooLong, &loop, [&] {
            ADD_FAILURE() << "nothing ended the loop";
            loop.quit();
        });
        loops_.push_back(&loop);
        loop.exec();
        loops_.pop_back();
    }
    void quit() { loops_.back()->quit(); }

    std::vector<QEventLoop*> loops_;
};

// A source that counts how often the scheduler looks at it, which tells a resting loop from one
// that spins.
class WatchedSource final : public EventSource {
  public:
    explicit WatchedSource(Scheduler& scheduler) : EventSource(scheduler) {}
    mutable int looks = 0;

  private:
    std::optional<Milliseconds> due() const override {
        ++looks;
        return std::nullopt;
    }
    void fire() override {}
};

TEST_F(EventLoop, WaitingSleepsUntilATimerTicksAndHandlesIt) {
    RepeatingTimer timer(scheduler_, 20);
    int ticks = 0;
    timer.on_tick = [&] { ++ticks; };
    timer.set_enabled(true);

    const Milliseconds start = clock_.now();
    WatchedSource watched(scheduler_);
    while (ticks == 0 && clock_.now() < start + kTooLong) pump_.wait();
    EXPECT_EQ(ticks, 1);
    EXPECT_GE(clock_.now(), start + 20);
    EXPECT_LT(watched.looks, 50) << "the wait was spent looking instead of sleeping";
}

TEST_F(EventLoop, WaitingReturnsAtOnceWhenAnEventIsThereAndPumpingAlways) {
    RepeatingTimer timer(scheduler_, 1'000'000);
    timer.set_enabled(true);
    pump_.pump();  // would hang here
    EventQueue queue(scheduler_);
    std::string log;
    queue.post([&] { log += "first "; });
    queue.post([&] { log += "second "; });
    pump_.wait();
    EXPECT_EQ(log, "first second ");
}

TEST_F(EventLoop, NestedLoopInAHandlerLetsOtherTimersGoOnButNotTheSameOne) {
    RepeatingTimer outer(scheduler_, 5);
    RepeatingTimer inner(scheduler_, 5);
    int depth = 0;
    int deepest = 0;
    int inner_ticks = 0;
    int outer_ticks = 0;
    inner.on_tick = [&] {
        if (depth > 0 && ++inner_ticks == 5) quit();
    };
    outer.on_tick = [&] {
        deepest = std::max(deepest, ++depth);
        if (++outer_ticks == 1) run_nested_loop();
        --depth;
        if (outer_ticks == 2) quit();
    };
    outer.set_enabled(true);
    inner.set_enabled(true);
    run_nested_loop();
    EXPECT_EQ(inner_ticks, 5);
    EXPECT_EQ(outer_ticks, 2) << "the ticks it missed come as one, right after";
    EXPECT_EQ(deepest, 1);
}

TEST_F(EventLoop, LoopRestsWhileTheOnlyDueSourceIsOnTheStack) {
    RepeatingTimer timer(scheduler_, 1);
    WatchedSource watched(scheduler_);
    timer.on_tick = [&] {
        timer.set_enabled(false);
        timer.set_enabled(true);  // due again long before the nested loop ends
        watched.looks = 0;
        QTimer::singleShot(50, [&] { quit(); });
        run_nested_loop();
        EXPECT_LT(watched.looks, 10);
        timer.set_enabled(false);
        quit();
    };
    timer.set_enabled(true);
    run_nested_loop();
}

TEST_F(EventLoop, SignalsReachTheEventLoopOneByOneUnlessTheyAreIgnoredFromTheStart) {
    for (const auto& [hang_up, expected] : {std::pair(SIG_DFL, 3), std::pair(SIG_IGN, 2)}) {
        std::signal(SIGHUP, hang_up);
        int calls = 0;
        const SignalWatcher watcher([&, most = expected] {
            if (++calls == most) quit();
        });
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) std::raise(signal);
        EXPECT_EQ(calls, 0) << "nothing may run inside the signal itself";
        run_nested_loop();
        QCoreApplication::processEvents();
        EXPECT_EQ(calls, expected);
    }
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
    EXPECT_EQ(std::signal(SIGTERM, SIG_DFL), SIG_DFL) << "restored at the end";
}

TEST(MersenneRandom, NumbersAreBelowOneAndFillTheirRange) {
    MersenneRandom random(7);
    std::vector<int> tenths(10);
    for (int i = 0; i < 10000; ++i) {
        const double number = random.next();
        ASSERT_GE(number, 0.0);
        ASSERT_LT(number, 1.0);
        ++tenths[static_cast<std::size_t>(number * 10)];
    }
    for (const int count : tenths) EXPECT_NEAR(count, 1000, 150);
}

}  // namespace
}  // namespace zephyne::test
