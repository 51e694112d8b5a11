// The way out for all MIDI sound: chooses a device, keeps it going, and lets it go when there is
// nothing to hear.
#pragma once

#include "platform/sound/audio_source.h"

#include <memory>
#include <optional>
#include <string>

namespace zephyne {

// User-interface thread, where nothing else is said. A test pumps the source by itself instead.
class AudioOutput {
  public:
    virtual ~AudioOutput() = default;

    // The source to ask for sound, from the first wake() until the output is destroyed. Once.
    virtual void connect(AudioSource& source) = 0;

    // The source has something to say. Returns at once.
    virtual void wake() = 0;

    // False while it is not known yet whether wake() has found a device.
    virtual bool settled() const = 0;

    // A whole sentence for the user when there is no sound as it was asked for: once in a run.
    virtual std::optional<std::string> take_problem() = 0;
};

// The choice is "auto" or empty (PulseAudio, ALSA, JACK, in this order), the name of a driver,
// "null" (nothing to hear), or "file:PATH" (a WAVE file of all that is played). Without a device
// the sound goes nowhere, in real time, and so it goes on if a device dies and does not come back.
//
// To be called before other threads run, because it sets environment variables.
//
// A thread of its own opens and closes devices and watches over them. Between songs, when all is
// silent for some seconds, no device is open.
std::unique_ptr<AudioOutput> make_audio_output(const std::string& choice);

}  // namespace zephyne
