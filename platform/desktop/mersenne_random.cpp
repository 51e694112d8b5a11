#include "platform/desktop/mersenne_random.h"

#include <chrono>

namespace zephyne {

MersenneRandom::MersenneRandom()
    : MersenneRandom(
          static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count())) {
}

double MersenneRandom::next() {
    // As many bits as a double keeps below 1, so that no rounding ever yields 1 itself.
    constexpr int bits = 53;
    return static_cast<double>(engine_() >> (64 - bits)) / static_cast<double>(1ULL << bits);
}

}  // namespace zephyne
