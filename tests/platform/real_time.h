// An event loop in real time.
#pragma once

#include "core/scheduler.h"
#include "platform/desktop/qt_event_pump.h"
#include "platform/desktop/steady_clock.h"

namespace zephyne::test {

// Longer than anything here takes; only a fault lets it pass.
constexpr Milliseconds kTooLong = 3000;

class RealTime {
  public:
    void run_for(Milliseconds time) {
        RepeatingTimer alarm(scheduler_, time);
        bool over = false;
        alarm.on_tick = [&] { over = true; };
        alarm.set_enabled(true);
        while (!over) pump_.wait();
    }

    // Until it is so, or for too long.
    template <class Condition>
    void run_until(Condition is_so) {
        const Milliseconds deadline = clock_.now() + kTooLong;
        while (!is_so() && clock_.now() < deadline) run_for(5);
    }

    SteadyClock clock_;
    Scheduler scheduler_{clock_};
    QtEventPump pump_{scheduler_};
};

}  // namespace zephyne::test
