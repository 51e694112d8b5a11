// Where sound goes when a test asks for it, in whatever time it takes.
#pragma once

#include "platform/sound/audio_output.h"
#include "platform/sound/sample_time.h"

#include <algorithm>
#include <cmath>

namespace zephyne::test {

class PumpedOutput final : public AudioOutput {
  public:
    AudioSource* source = nullptr;
    int woken = 0;
    FrameCount at_once = 0;  // what is rendered as soon as there is something to hear
    float peak = 0;          // the loudest sample on the left
    std::optional<std::string> problem;

    void connect(AudioSource& connected) override { source = &connected; }
    void wake() override {
        ++woken;
        pump(at_once);
    }
    bool settled() const override { return true; }
    std::optional<std::string> take_problem() override { return std::exchange(problem, {}); }

    void pump(FrameCount frames) {
        float left[500];
        float right[500];
        for (; frames > 0; frames -= 500) {
            const auto piece = static_cast<int>(std::min<FrameCount>(frames, 500));
            source->render(left, right, piece);
            for (int i = 0; i < piece; ++i) peak = std::max(peak, std::fabs(left[i]));
        }
    }
};

}  // namespace zephyne::test
