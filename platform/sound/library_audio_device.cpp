#include "platform/sound/library_audio_device.h"

#include "platform/sound/sample_time.h"
#include "platform/sound/synthesizer_library.h"

#include <fluidsynth.h>

#include <utility>

namespace zephyne {
namespace {

class LibraryAudioDevice final : public AudioDevice {
  public:
    LibraryAudioDevice(const std::string& driver, std::shared_ptr<AudioGate> gate)
        : gate_(std::move(gate)), settings_(new_fluid_settings()) {
        if (!settings_) return;
        fluid_settings_setstr(settings_, "audio.driver", driver.c_str());
        fluid_settings_setnum(settings_, "synth.sample-rate", kFramesPerSecond);
        // 93 ms of buffer: shorter ones run dry on a busy machine. PulseAudio gets one period and
        // does not know the other setting.
        const bool one_period = driver == "pulseaudio";
        fluid_settings_setint(settings_, "audio.period-size", one_period ? 4096 : 1024);
        fluid_settings_setint(settings_, "audio.periods", 4);
        // The driver would put a role into the environment, while other threads may read that.
        fluid_settings_setstr(settings_, "audio.pulseaudio.media-role", "");
        driver_ = new_fluid_audio_driver2(settings_, fill, gate_.get());
    }

    ~LibraryAudioDevice() override {
        if (driver_) delete_fluid_audio_driver(driver_);
        if (settings_) delete_fluid_settings(settings_);
    }

    LibraryAudioDevice(const LibraryAudioDevice&) = delete;
    LibraryAudioDevice& operator=(const LibraryAudioDevice&) = delete;

    bool usable() const {
        double rate = 0;
        return driver_ &&
               fluid_settings_getnum(settings_, "synth.sample-rate", &rate) == FLUID_OK &&
               rate == kFramesPerSecond;
    }

  private:
    static int fill(void* gate, int frames, int, float**, int sides, float** out) {
        if (sides < 2) return FLUID_FAILED;
        static_cast<AudioGate*>(gate)->fill(out[0], out[1], frames);
        return FLUID_OK;
    }

    std::shared_ptr<AudioGate> gate_;
    fluid_settings_t* settings_;
    fluid_audio_driver_t* driver_ = nullptr;
};

}  // namespace

std::unique_ptr<AudioDevice> open_library_device(const std::string& driver,
                                                 std::shared_ptr<AudioGate> gate) {
    if (!load_synthesizer_library()) return nullptr;
    auto device = std::make_unique<LibraryAudioDevice>(driver, std::move(gate));
    if (!device->usable()) return nullptr;
    return device;
}

}  // namespace zephyne
