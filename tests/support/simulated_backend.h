// A media back end that plays in virtual time and writes down what it is told.
#pragma once

#include "core/scheduler.h"
#include "engine/media_backend.h"
#include "tests/support/virtual_time.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace zephyne::test {

class SimulatedBackend final : public MediaBackend {
  public:
    SimulatedBackend(std::string name, VirtualClock& clock, Scheduler& scheduler,
                     std::vector<std::string>& log);

    // Knobs, by the song's file name without its folder.
    std::map<std::string, Milliseconds> lengths;  // else 3 minutes; a reset sequence 80 ms
    std::set<std::string> broken;                 // cannot be opened
    std::set<std::string> mute;                   // open, but never start to play

    // The file breaks now, or reaches its end.
    void fail();
    void finish();

    // The file name of the song that is open; "" when none is.
    std::string open_song() const { return mode_ == DeviceMode::not_open ? "" : song_; }

    tl::expected<void, std::string> open(const std::string& path) override;
    void close() override;
    void play_from(Milliseconds from) override;
    void play() override;
    void pause() override;
    void stop() override;
    void wait_until_finished() override;
    DeviceMode mode() const override { return mode_; }
    Milliseconds length() const override { return length_; }
    Milliseconds position() const override;

  private:
    void hold(DeviceMode mode);
    void start();

    std::string name_;
    VirtualClock& clock_;
    std::vector<std::string>& log_;
    RepeatingTimer end_;
    std::string song_;
    DeviceMode mode_ = DeviceMode::not_open;
    Milliseconds length_ = 0;
    Milliseconds held_at_ = 0;
    Milliseconds started_ = 0;  // the moment at which position held_at_ began to play
};

}  // namespace zephyne::test
