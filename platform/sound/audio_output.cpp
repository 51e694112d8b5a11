#include "platform/sound/audio_output.h"

#include "platform/sound/audio_keeper.h"
#include "platform/sound/clock_audio_device.h"
#include "platform/sound/library_audio_device.h"

#include <stdlib.h>

#include <string_view>
#include <utility>
#include <vector>

namespace zephyne {
namespace {

OpenDevice library_device(const std::string& driver) {
    return [driver](std::shared_ptr<AudioGate> gate) {
        return open_library_device(driver, std::move(gate));
    };
}

OpenDevice silent_device() {
    return
        [](std::shared_ptr<AudioGate> gate) { return open_clock_device(std::move(gate), nullptr); };
}

// The file is begun at once and goes on for the whole run, though the device comes and goes.
OpenDevice file_device(const std::string& path) {
    const std::shared_ptr<WaveFileWriter> file = WaveFileWriter::create(path);
    return [file](std::shared_ptr<AudioGate> gate) {
        return file ? open_clock_device(std::move(gate), file) : nullptr;
    };
}

AudioPlan plan_for(const std::string& choice) {
    constexpr std::string_view kFile = "file:";
    AudioPlan plan{.last_resort = silent_device()};
    if (choice.empty() || choice == "auto") {
        for (const char* driver : {"pulseaudio", "alsa", "jack"}) {
            plan.devices.push_back(library_device(driver));
        }
        plan.problem =
            "No sound device could be opened, so MIDI songs play silently. "
            "Please check that a sound server is running or a sound card is free.";
    } else if (choice == "null") {
        plan.devices.push_back(silent_device());
    } else if (choice.starts_with(kFile)) {
        const std::string path = choice.substr(kFile.size());
        plan.devices.push_back(file_device(path));
        plan.problem =
            "The sound file \"" + path + "\" could not be written, so MIDI songs play silently.";
    } else {
        plan.devices.push_back(library_device(choice));
        plan.problem =
            "The sound output \"" + choice + "\" could not be opened, so MIDI songs play silently.";
    }
    return plan;
}

// For the client libraries: no sound server is started by us, and in the list of those who play
// we have our own name. The environment is only safe to change while nobody else reads it.
void introduce_ourselves() {
    constexpr int kKeepWhatTheUserSet = 0;
    ::setenv("JACK_NO_START_SERVER", "1", kKeepWhatTheUserSet);
    ::setenv("PULSE_PROP_OVERRIDE", "application.name=Zephyne", kKeepWhatTheUserSet);
}

}  // namespace

std::unique_ptr<AudioOutput> make_audio_output(const std::string& choice) {
    introduce_ourselves();
    return std::make_unique<AudioKeeper>(plan_for(choice));
}

}  // namespace zephyne
