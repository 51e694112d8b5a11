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

}  // namespace zephyne::test
