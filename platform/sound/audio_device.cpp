#include "platform/sound/audio_device.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace zephyne {

void AudioGate::fill(float* left, float* right, int frames) noexcept {
    count_.fetch_add(1, std::memory_order_relaxed);
    const bool free = !in_use_.test_and_set(std::memory_order_acquire);
    if (free && source_) {
        source_->render(left, right, frames);
    } else {
        std::fill_n(left, frames, 0.0F);
        std::fill_n(right, frames, 0.0F);
    }
    if (free) in_use_.clear(std::memory_order_release);
}

void AudioGate::shut() {
    while (in_use_.test_and_set(std::memory_order_acquire)) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    source_ = nullptr;
    in_use_.clear(std::memory_order_release);
}

}  // namespace zephyne
