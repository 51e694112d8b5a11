// Time that passes only when a test says so.
#pragma once

#include "core/scheduler.h"

namespace zephyne::test {

class VirtualClock final : public Clock {
  public:
    Milliseconds now() const override { return now_; }
    void advance_to(Milliseconds moment) { now_ = std::max(now_, moment); }

  private:
    Milliseconds now_ = 1'000'000;
};

// An event loop over virtual time: pump() handles what is due now, wait() jumps to the next event.
class VirtualPump final : public EventPump {
  public:
    VirtualPump(VirtualClock& clock, Scheduler& scheduler) : clock_(clock), scheduler_(scheduler) {}

    void pump() override {
        ++depth_;
        deepest_ = std::max(deepest_, depth_);
        if (on_pump) on_pump();
        scheduler_.dispatch_due();
        --depth_;
    }

    void show() override { scheduler_.dispatch_due(EventKind::display); }

    // Gives up with a failure when nothing will ever happen.
    void wait() override;

    // Lets that much time pass, event by event. Time that handlers spend by themselves (waiting
    // for a device) counts.
    void run_for(Milliseconds duration);

    int deepest() const { return deepest_; }

    // What arrives in the middle of the next pumps: a click, a song handed over.
    std::function<void()> on_pump;

    // The same once: in the first pump in which `when` holds, or in that of the next pumps,
    // counted from 1.
    void arrive_when(std::function<bool()> when, std::function<void()> act);
    void arrive_in(int pump, std::function<void()> act);

  private:
    VirtualClock& clock_;
    Scheduler& scheduler_;
    int depth_ = 0;
    int deepest_ = 0;
};

}  // namespace zephyne::test
