// Bridges a sudden change of the sound, so that it makes no click.
//
// At the change, what would have been heard without it is rendered a little ahead; that then
// fades out while the new sound fades in. Belongs to the thread that renders.
#pragma once

#include <array>

namespace zephyne {

class Crossfade {
  public:
    static constexpr int kFrames = 256;  // 6 ms at 44100 frames a second

    // Called right before the change; `render(left, right, frames)` renders what is heard now,
    // this cross-fade applied.
    template <typename Render>
    void begin(Render&& render) {
        std::array<float, kFrames> left;
        std::array<float, kFrames> right;
        render(left.data(), right.data(), kFrames);
        for (int i = 0; i < kFrames; ++i) {
            old_left_[i] = left[i] * (1.0F - share(i));
            old_right_[i] = right[i] * (1.0F - share(i));
        }
        next_ = 0;
    }

    // Lays the old sound over the new.
    void apply(float* left, float* right, int frames) {
        for (int i = 0; i < frames && next_ < kFrames; ++i, ++next_) {
            left[i] = left[i] * share(next_) + old_left_[next_];
            right[i] = right[i] * share(next_) + old_right_[next_];
        }
    }

    bool over() const { return next_ == kFrames; }

  private:
    static float share(int frame) {  // of the new sound
        return static_cast<float>(frame + 1) / static_cast<float>(kFrames + 1);
    }

    std::array<float, kFrames> old_left_{};
    std::array<float, kFrames> old_right_{};
    int next_ = kFrames;
};

}  // namespace zephyne
