#include "core/scheduler.h"

#include <algorithm>
#include <utility>

namespace zephyne {

EventSource::EventSource(Scheduler& scheduler) : scheduler_(scheduler) {
    scheduler_.sources_.push_back(this);
}

EventSource::~EventSource() {
    if (destroyed_) *destroyed_ = true;
    std::erase(scheduler_.sources_, this);
}

void EventSource::due_changed() {
    scheduler_.source_changed();
}

Milliseconds EventSource::now() const {
    return scheduler_.now();
}

EventSource* Scheduler::earliest_due_by(Milliseconds moment, EventKind which) const {
    EventSource* earliest = nullptr;
    Milliseconds earliest_due = moment;
    for (EventSource* source : sources_) {
        if (source->running_) continue;
        if (which == EventKind::display && source->kind_ != EventKind::display) continue;
        const auto due = source->due();
        if (!due || *due > earliest_due || (earliest && *due == earliest_due)) continue;
        earliest = source;
        earliest_due = *due;
    }
    return earliest;
}

void Scheduler::dispatch_due(EventKind which) {
    // The moment is taken once: a handler that keeps posting events cannot hold the caller here
    // for longer than its own millisecond.
    const Milliseconds moment = now();
    while (EventSource* source = earliest_due_by(moment, which)) {
        bool destroyed = false;
        source->running_ = true;
        source->destroyed_ = &destroyed;
        source->fire();
        if (destroyed) continue;
        source->running_ = false;
        source->destroyed_ = nullptr;
    }
    source_changed();
}

std::optional<Milliseconds> Scheduler::next_due() const {
    std::optional<Milliseconds> earliest;
    for (const EventSource* source : sources_) {
        if (source->running_) continue;
        const auto due = source->due();
        if (due && (!earliest || *due < *earliest)) earliest = due;
    }
    return earliest;
}

void Scheduler::source_changed() {
    if (wake_up_) wake_up_();
}

RepeatingTimer::RepeatingTimer(Scheduler& scheduler, Milliseconds interval)
    : EventSource(scheduler), interval_(interval) {}

void RepeatingTimer::set_enabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    restart();
}

void RepeatingTimer::set_interval(Milliseconds interval) {
    if (interval == interval_) return;
    interval_ = interval;
    restart();
}

void RepeatingTimer::restart() {
    next_ = now() + interval_;
    due_changed();
}

std::optional<Milliseconds> RepeatingTimer::due() const {
    if (!enabled_ || interval_ <= 0) return std::nullopt;
    return next_;
}

void RepeatingTimer::fire() {
    // Ticks keep their rhythm while they are on time; after a delay a new rhythm begins.
    next_ += interval_;
    if (next_ <= now()) next_ = now() + interval_;
    const auto tick = on_tick;  // a copy: the handler may destroy the timer
    if (tick) tick();
}

void EventQueue::post(std::function<void()> event) {
    events_.push_back({now(), std::move(event)});
    due_changed();
}

void EventQueue::clear() {
    events_.clear();
    due_changed();
}

std::optional<Milliseconds> EventQueue::due() const {
    if (events_.empty()) return std::nullopt;
    return events_.front().posted;
}

void EventQueue::fire() {
    const Event event = std::move(events_.front());
    events_.pop_front();
    event.handle();
}

}  // namespace zephyne
