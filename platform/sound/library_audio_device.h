// The sound devices that come with the synthesizer library: "pulseaudio" (also PipeWire's),
// "alsa", "jack", "oss".
#pragma once

#include "platform/sound/audio_device.h"

#include <memory>
#include <string>

namespace zephyne {

// Opens the driver of that name, at 44100 frames a second. nullptr when there is no such driver,
// it cannot be opened, or it insists on another rate (as a JACK server does).
std::unique_ptr<AudioDevice> open_library_device(const std::string& driver,
                                                 std::shared_ptr<AudioGate> gate);

}  // namespace zephyne
