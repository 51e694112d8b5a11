// Between time and frames. A frame is one sample of each channel; it is counted from the start of
// a song.
#pragma once

#include "core/time.h"
#include "platform/sound/midi_song.h"

#include <cstdint>

namespace zephyne {

using FrameCount = std::int64_t;

constexpr int kFramesPerSecond = 44100;

// The first frame at or after that time.
constexpr FrameCount frame_at(Nanoseconds time) {
    constexpr Nanoseconds kSecond = 1'000'000'000;
    const Nanoseconds part = time % kSecond * kFramesPerSecond;
    return time / kSecond * kFramesPerSecond + (part + kSecond - 1) / kSecond;
}

constexpr FrameCount frame_at_millisecond(Milliseconds time) {
    return frame_at(time * 1'000'000);
}

// The millisecond in which that frame begins; so a millisecond's first frame leads back to it.
constexpr Milliseconds millisecond_at(FrameCount frame) {
    return frame * 1000 / kFramesPerSecond;
}

}  // namespace zephyne
