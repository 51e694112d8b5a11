// Time as the whole program counts it: milliseconds.
#pragma once

#include <cstdint>

namespace zephyne {

// A duration, or a moment counted from some fixed but unspecified start (see Clock).
using Milliseconds = std::int64_t;

// Where the time comes from: the steady clock of the machine, or a test's own.
class Clock {
  public:
    virtual ~Clock() = default;
    virtual Milliseconds now() const = 0;  // never goes back
};

}  // namespace zephyne
