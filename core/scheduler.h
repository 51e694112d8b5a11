// Everything that happens by itself: timers, and events queued by devices and other programs.
//
// One scheduler serves the whole program, on the user-interface thread. The platform's event loop
// gives it one wake-up (set_wake_up) and calls dispatch_due() when that comes, having armed it anew
// first, because a handler may run an event loop of its own; tests do the same with a clock of
// their own, so that hours pass in microseconds.
//
// Re-entrancy is settled here, once. A handler may let pending events run (EventPump), and so may
// the handlers that run then. Meanwhile any other source may fire, but a source whose handler is
// still on the stack is never entered again: what it has to say waits and comes right after.
#pragma once

#include "core/time.h"

#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace zephyne {

class Scheduler;

// What an event may touch: anything, or only what moves on the screen.
enum class EventKind { any, display };

// Anything that the scheduler can call: a timer or a queue. Not copied, and must not outlive the
// scheduler. Destroying a source while its handler is on the stack is allowed: nothing of it is
// touched afterwards.
class EventSource {
  public:
    EventSource(const EventSource&) = delete;
    EventSource& operator=(const EventSource&) = delete;

    // A source that only moves what is shown goes on while a long step shuts everything else out.
    void set_kind(EventKind kind) { kind_ = kind; }

  protected:
    explicit EventSource(Scheduler& scheduler);
    virtual ~EventSource();

    void due_changed();  // to be called whenever the answer of due() has changed
    Milliseconds now() const;

  private:
    friend class Scheduler;

    // The moment at which the source wants to be called, or nothing.
    virtual std::optional<Milliseconds> due() const = 0;

    // Takes one event out of the source and handles it. The source may be gone afterwards.
    virtual void fire() = 0;

    Scheduler& scheduler_;
    EventKind kind_ = EventKind::any;
    bool running_ = false;
    bool* destroyed_ = nullptr;  // points into the running dispatch, if any
};

class Scheduler {
  public:
    explicit Scheduler(const Clock& clock) : clock_(clock) {}
    Scheduler(const Scheduler&) = delete;
    Scheduler& operator=(const Scheduler&) = delete;

    // Handles all that is due now, earliest first, and returns; what the handlers make due at a
    // later moment waits for its own wake-up. May be called from inside a handler. With
    // EventKind::display all other sources are left waiting.
    void dispatch_due(EventKind which = EventKind::any);

    // The moment of the next event that can be handled now, or nothing when none is waiting.
    // Sources whose handler is on the stack do not count.
    std::optional<Milliseconds> next_due() const;

    // Called whenever next_due() may have become earlier, or available again. One wake-up only.
    void set_wake_up(std::function<void()> wake_up) { wake_up_ = std::move(wake_up); }

    Milliseconds now() const { return clock_.now(); }

  private:
    friend class EventSource;
    void source_changed();
    EventSource* earliest_due_by(Milliseconds moment, EventKind which) const;

    const Clock& clock_;
    std::function<void()> wake_up_;
    std::vector<EventSource*> sources_;
};

// Calls back again and again. As with the timers of the old platform, a tick that was missed
// because something else took long comes once, late, and not several times.
class RepeatingTimer final : public EventSource {
  public:
    // Off, with that interval. An interval of 0 or less never ticks.
    RepeatingTimer(Scheduler& scheduler, Milliseconds interval);

    std::function<void()> on_tick;

    bool enabled() const { return enabled_; }
    Milliseconds interval() const { return interval_; }
    void set_enabled(bool enabled);            // switching on starts a whole interval
    void set_interval(Milliseconds interval);  // while on, starts a whole new interval

  private:
    std::optional<Milliseconds> due() const override;
    void fire() override;
    void restart();

    Milliseconds interval_;
    Milliseconds next_ = 0;
    bool enabled_ = false;
};

// Events in the order in which they were posted, handled one at a time.
class EventQueue final : public EventSource {
  public:
    explicit EventQueue(Scheduler& scheduler) : EventSource(scheduler) {}

    void post(std::function<void()> event);  // due now
    void clear();                            // forgets what has not been handled
    bool empty() const { return events_.empty(); }

  private:
    std::optional<Milliseconds> due() const override;
    void fire() override;

    struct Event {
        Milliseconds posted;
        std::function<void()> handle;
    };
    std::deque<Event> events_;
};

// "Let pending events run", wherever a long step does so in its middle.
class EventPump {
  public:
    virtual ~EventPump() = default;
    virtual void pump() = 0;  // handles what is pending and returns, at once if nothing is
    virtual void wait() = 0;  // sleeps until there is something to handle, then as pump()

    // In the middle of a long step that nothing may interrupt: the picture goes on, and all that
    // acts (the user, devices, other timers) waits.
    virtual void show() = 0;
};

}  // namespace zephyne
