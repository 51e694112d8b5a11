#include "platform/desktop/qt_event_pump.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <algorithm>
#include <limits>
#include <utility>

namespace zephyne {
namespace {

// Long enough to handle what an expose or a key press brings in its train, short enough not to
// hold up the caller where events never cease.
constexpr int kPumpMilliseconds = 10;

}  // namespace

QtEventPump::QtEventPump(Scheduler& scheduler) : scheduler_(scheduler) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.callOnTimeout(&timer_, [this] { dispatch(); });
    scheduler_.set_wake_up([this] { arm(); });
    arm();
}

QtEventPump::~QtEventPump() {
    scheduler_.set_wake_up({});
}

void QtEventPump::arm() {
    const auto due = scheduler_.next_due();
    if (due == armed_for_) return;
    armed_for_ = due;
    if (!due) {
        timer_.stop();
        return;
    }
    constexpr Milliseconds longest = std::numeric_limits<int>::max();
    timer_.start(static_cast<int>(std::clamp<Milliseconds>(*due - scheduler_.now(), 0, longest)));
}

void QtEventPump::dispatch() {
    // Armed before anything is handled, because a handler may enter another event loop: there the
    // other sources go on. While theirs is on the stack, the scheduler does not count them, so
    // that the timer rests instead of firing in vain.
    armed_for_.reset();
    arm();
    scheduler_.dispatch_due(handled_);
}

void QtEventPump::show() {
    const EventKind before = std::exchange(handled_, EventKind::display);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kPumpMilliseconds);
    scheduler_.dispatch_due(handled_);
    handled_ = before;
    armed_for_.reset();
    arm();
}

void QtEventPump::pump() {
    QCoreApplication::processEvents(QEventLoop::AllEvents, kPumpMilliseconds);
    scheduler_.dispatch_due();
}

void QtEventPump::wait() {
    const auto due = scheduler_.next_due();
    if (!due || *due > scheduler_.now()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    pump();
}

}  // namespace zephyne
