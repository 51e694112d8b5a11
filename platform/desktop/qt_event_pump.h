// Joins the scheduler to Qt's event loop, in both directions.
//
// The scheduler's next event becomes one Qt timer, so that any loop of Qt's (the main one, a modal
// window's, a nested pump) also runs the program's timers and queues. And pump() and wait() let
// the logic run Qt's events in the middle of a step; nothing else in the program may do that.
#pragma once

#include "core/scheduler.h"

#include <QTimer>
#include <optional>

namespace zephyne {

class QtEventPump final : public EventPump {
  public:
    // Needs a QCoreApplication, and takes the scheduler's wake-up until it is destroyed. The
    // scheduler outlives it.
    explicit QtEventPump(Scheduler& scheduler);
    ~QtEventPump() override;

    void pump() override;
    void wait() override;
    void show() override;

  private:
    void arm();
    void dispatch();

    Scheduler& scheduler_;
    EventKind handled_ = EventKind::any;
    QTimer timer_;
    std::optional<Milliseconds> armed_for_;  // the moment at which timer_ will fire
};

}  // namespace zephyne
