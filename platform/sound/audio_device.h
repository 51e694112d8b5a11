// One open way out for the sound, and the gate through which it asks for sound.
#pragma once

#include "platform/sound/audio_source.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

namespace zephyne {

// Stands between a device and the source, so that a device that hangs can be given up: after
// shut() its callbacks get silence, however late they come. Shared by both.
class AudioGate {
  public:
    explicit AudioGate(AudioSource& source) : source_(&source) {}

    // Fills both sides. The audio thread; never waits.
    void fill(float* left, float* right, int frames) noexcept;

    // Returns when the source is not being called and will not be any more.
    void shut();

    // How many times fill() has been called.
    std::uint64_t count() const { return count_.load(std::memory_order_relaxed); }

  private:
    AudioSource* source_;
    std::atomic_flag in_use_ = ATOMIC_FLAG_INIT;
    std::atomic<std::uint64_t> count_{0};
};

// Open, and asking for sound, from construction to destruction. Both may take long and happen on
// any thread but the audio thread.
class AudioDevice {
  public:
    virtual ~AudioDevice() = default;
};

// How to open one kind of device: nullptr when there is none such. Any thread, also one that is
// not waited for any longer.
using OpenDevice = std::function<std::unique_ptr<AudioDevice>(std::shared_ptr<AudioGate>)>;

}  // namespace zephyne
