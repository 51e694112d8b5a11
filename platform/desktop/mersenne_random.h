// Random numbers for shuffling songs.
#pragma once

#include "core/ports/services.h"

#include <cstdint>
#include <random>

namespace zephyne {

class MersenneRandom final : public Random {
  public:
    MersenneRandom();  // begins anew with every start of the program, by the clock
    explicit MersenneRandom(std::uint64_t seed) : engine_(seed) {}

    double next() override;

  private:
    std::mt19937_64 engine_;
};

}  // namespace zephyne
