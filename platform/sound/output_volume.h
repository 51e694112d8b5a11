// The volume of the whole output, left and right, set from any thread. It glides to what was set,
// so that it never clicks.
#pragma once

#include "platform/sound/sample_time.h"

#include <algorithm>
#include <atomic>

namespace zephyne {

class OutputVolume {
  public:
    // Amplitudes, 0 to 1. Any thread.
    void set(float left, float right) {
        left_.wanted.store(left, std::memory_order_relaxed);
        right_.wanted.store(right, std::memory_order_relaxed);
    }

    // Applies the volume, times `factor`. The audio thread.
    void apply(float* left, float* right, int frames, float factor) {
        left_.apply(left, frames, factor);
        right_.apply(right, frames, factor);
    }

  private:
    struct Side {
        std::atomic<float> wanted{1.0F};
        float current = 1.0F;

        void apply(float* samples, int frames, float factor) {
            constexpr float kStep = 1.0F / (0.01F * kFramesPerSecond);  // all the way in 10 ms
            const float target = wanted.load(std::memory_order_relaxed) * factor;
            int i = 0;
            for (; i < frames && current != target; ++i) {
                current += std::clamp(target - current, -kStep, kStep);
                samples[i] *= current;
            }
            if (current == 1.0F) return;
            for (; i < frames; ++i) samples[i] *= current;
        }
    };

    Side left_;
    Side right_;
};

}  // namespace zephyne
