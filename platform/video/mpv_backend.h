// The media back end for wave files and videos.
//
// A wave file is only heard; a video opens a window of the player library's own, with the file's
// name as its title. The user closing that window counts as the end of the file. The library is
// started by the first open(), which is then some tens of milliseconds slower, and kept.
#pragma once

#include "core/scheduler.h"
#include "engine/media_backend.h"
#include "platform/video/mpv_player.h"

#include <memory>
#include <string>

namespace zephyne {

class MpvBackend final : public MediaBackend {
  public:
    // `audio` chooses the output as ZEPHYNE_AUDIO does: "" or "auto" for the desktop's; "null"
    // and "file:..." for silence in real time; else the name of a driver. Whatever fails gives
    // way to silence. The scheduler outlives the back end.
    MpvBackend(Scheduler& scheduler, const std::string& audio);
    ~MpvBackend() override;

    // Waits for the file to be open, 30 to 45 ms as a rule, and gives up after ten seconds.
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
    enum class Ending { none, end_of_file, failure };

    tl::expected<void, std::string> load();
    tl::expected<void, std::string> wait_until_loaded();
    void start_at(Milliseconds place);
    void rest(DeviceMode mode);
    Ending take_events(double seconds);
    Ending pending_ending() const { return broken_ ? Ending::failure : Ending::end_of_file; }
    void note(const mpv_event& event);
    void end(Ending ending);
    void report(Ending ending);

    std::string audio_outputs_;
    std::unique_ptr<MpvPlayer> player_;
    RepeatingTimer end_timer_;  // ends what has nothing to play: at the end already, or broken

    std::string path_;
    DeviceMode mode_ = DeviceMode::not_open;
    Milliseconds length_ = 0;
    Milliseconds place_ = 0;  // where it rests, or where it was last told to go
    bool loaded_ = false;     // false also when the user has closed the window of an open video
    bool broken_ = false;
    bool player_gone_ = false;

    // A seek is on its way: until it is done, the library speaks of the place before.
    enum class Seek { none, requested, started };
    Seek seek_ = Seek::none;
};

}  // namespace zephyne
