// A device without a sound card: takes the sound in real time, by the clock of the machine, and
// throws it away or writes it to a file.
#pragma once

#include "platform/sound/audio_device.h"
#include "platform/sound/wave_file_writer.h"

#include <memory>

namespace zephyne {

// Always opens. `file` may be nullptr.
std::unique_ptr<AudioDevice> open_clock_device(std::shared_ptr<AudioGate> gate,
                                               std::shared_ptr<WaveFileWriter> file);

}  // namespace zephyne
