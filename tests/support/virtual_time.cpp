#include "tests/support/virtual_time.h"

#include <stdexcept>

namespace zephyne::test {

void VirtualPump::wait() {
    const auto next = scheduler_.next_due();
    if (!next) throw std::logic_error("waiting for an event that never comes");
    clock_.advance_to(*next);
    pump();
}

void VirtualPump::run_for(Milliseconds duration) {
    const Milliseconds end = clock_.now() + duration;
    for (auto next = scheduler_.next_due(); next && *next <= end; next = scheduler_.next_due()) {
        clock_.advance_to(*next);
        pump();
    }
    clock_.advance_to(end);
}

void VirtualPump::arrive_when(std::function<bool()> when, std::function<void()> act) {
    on_pump = [when = std::move(when), act = std::move(act), arrived = false]() mutable {
        if (arrived || !when()) return;
        arrived = true;
        act();
    };
}

void VirtualPump::arrive_in(int pump, std::function<void()> act) {
    arrive_when([left = pump]() mutable { return --left == 0; }, std::move(act));
}

}  // namespace zephyne::test
