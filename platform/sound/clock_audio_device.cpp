#include "platform/sound/clock_audio_device.h"

#include "platform/sound/sample_time.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <ctime>
#include <thread>
#include <utility>

namespace zephyne {
namespace {

constexpr int kPeriod = 1024;
constexpr std::int64_t kSecond = 1'000'000'000;

std::int64_t monotonic_now() {
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * kSecond + now.tv_nsec;
}

void sleep_until(std::int64_t moment) {
    const timespec until = {.tv_sec = moment / kSecond, .tv_nsec = moment % kSecond};
    // Interrupted by a signal: on to the same moment.
    while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &until, nullptr) != 0) {
    }
}

class ClockAudioDevice final : public AudioDevice {
  public:
    ClockAudioDevice(std::shared_ptr<AudioGate> gate, std::shared_ptr<WaveFileWriter> file)
        : gate_(std::move(gate)), file_(std::move(file)), thread_([this] { run(); }) {}

    ~ClockAudioDevice() override {
        quit_.store(true, std::memory_order_relaxed);
        thread_.join();
    }

    ClockAudioDevice(const ClockAudioDevice&) = delete;
    ClockAudioDevice& operator=(const ClockAudioDevice&) = delete;

  private:
    void run() {
        std::array<float, kPeriod> left;
        std::array<float, kPeriod> right;
        std::int64_t begin = monotonic_now();
        std::int64_t periods = 0;
        while (!quit_.load(std::memory_order_relaxed)) {
            gate_->fill(left.data(), right.data(), kPeriod);
            if (file_) file_->write(left.data(), right.data(), kPeriod);
            ++periods;
            const std::int64_t due = begin + periods * kPeriod * kSecond / kFramesPerSecond;
            if (monotonic_now() - due > kSecond) {  // the machine was asleep
                begin = monotonic_now();
                periods = 0;
            } else {
                sleep_until(due);
            }
        }
        if (file_) file_->update_header();
    }

    std::shared_ptr<AudioGate> gate_;
    std::shared_ptr<WaveFileWriter> file_;
    std::atomic<bool> quit_{false};
    std::thread thread_;
};

}  // namespace

std::unique_ptr<AudioDevice> open_clock_device(std::shared_ptr<AudioGate> gate,
                                               std::shared_ptr<WaveFileWriter> file) {
    return std::make_unique<ClockAudioDevice>(std::move(gate), std::move(file));
}

}  // namespace zephyne
