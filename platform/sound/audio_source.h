// Where an audio output gets its sound from.
#pragma once

namespace zephyne {

class AudioSource {
  public:
    virtual ~AudioSource() = default;

    // Fills both sides with the next `frames` frames (1.0 is full scale). Called on the audio
    // thread, one call at a time; must not wait for anything.
    virtual void render(float* left, float* right, int frames) noexcept = 0;

    // True when it has nothing to say: all that it would render is silence, until somebody asks
    // it for more. Any thread.
    virtual bool idle() const noexcept = 0;
};

}  // namespace zephyne
