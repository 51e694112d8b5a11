// The machine's steady clock, which no change of the date or the time zone moves.
#pragma once

#include "core/time.h"

#include <chrono>

namespace zephyne {

class SteadyClock final : public Clock {
  public:
    Milliseconds now() const override {
        const auto since_start = std::chrono::steady_clock::now().time_since_epoch();
        return std::chrono::duration_cast<std::chrono::milliseconds>(since_start).count();
    }
};

}  // namespace zephyne
