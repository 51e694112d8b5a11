// The audio output of the running program: a thread that opens devices, watches over the one that
// is open, replaces it when it stops asking for sound, and closes it when nothing is to be heard.
//
// A device may hang for as long as it likes, when it is opened, while it is open, and when it is
// closed: then it is left to itself behind its shut gate, and the next one is tried.
#pragma once

#include "platform/sound/audio_device.h"
#include "platform/sound/audio_output.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace zephyne {

struct AudioPlan {
    std::vector<OpenDevice> devices;  // in the order in which they are tried
    OpenDevice last_resort;           // when none of them will do; never fails
    std::string problem;              // what to tell the user then
};

// How long things may take.
struct AudioPatience {
    std::chrono::milliseconds open_and_close{3000};
    std::chrono::milliseconds start{5000};    // some servers let a new stream wait at first
    std::chrono::milliseconds started{1000};  // from when on it is no longer new
    std::chrono::milliseconds next_call{1500};
    std::chrono::milliseconds idle{5000};
    std::chrono::milliseconds look{250};  // how often the above is looked at
};

class AudioKeeper final : public AudioOutput {
  public:
    explicit AudioKeeper(AudioPlan plan, AudioPatience patience = {});
    ~AudioKeeper() override;
    AudioKeeper(const AudioKeeper&) = delete;
    AudioKeeper& operator=(const AudioKeeper&) = delete;

    void connect(AudioSource& source) override;
    void wake() override;
    bool settled() const override { return settled_.load(); }
    std::optional<std::string> take_problem() override;

  private:
    enum class Verdict { did_not_start, hangs, idle, quit };
    struct Opened;

    void run();
    Opened open_first_that_will_do();
    Opened try_to_open(const OpenDevice& open) const;
    Verdict watch_over(const AudioGate& gate);
    void close(Opened opened) const;
    void tell_problem();

    const AudioPlan plan_;
    const AudioPatience patience_;
    AudioSource* source_ = nullptr;
    std::vector<bool> useless_;  // devices that opened and did not start

    std::mutex mutex_;  // guards what follows
    std::condition_variable changed_;
    bool wanted_ = false;  // a device
    bool quit_ = false;
    bool told_ = false;  // of the problem
    std::optional<std::string> problem_;

    std::atomic<bool> settled_{true};
    std::thread thread_;
};

}  // namespace zephyne
