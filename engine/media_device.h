// The media control: the one object that all sound goes through.
//
// It holds at most one open file on one of its back ends (synthesizer, wave, video), and has the
// manners of the multimedia control that the player was designed around: properties are set,
// then a command is given. Notify and Wait apply to the next command only; a command that finds
// them unset has its own habits (Play notifies and does not wait, all others wait and do not
// notify). Done comes as a queued event, one at a time, and a Done of a file that has been closed
// meanwhile is dropped.
//
// The recipes below are the fixed orders in which the player gives its commands.
// Times are milliseconds. User-interface thread only.
#pragma once

#include "core/controls/simple_controls.h"
#include "core/ports/file_system.h"
#include "core/scheduler.h"
#include "engine/media_backend.h"

#include <functional>
#include <optional>
#include <string>

namespace zephyne {

enum class DeviceType { Sequencer, WaveAudio, AVIVideo };
enum class DeviceCommand { Open, Play, Pause, Stop, Close };
enum class NotifyCode { successful = 1, superseded = 2, aborted = 4, failed = 8 };

// What has become of a Play once events have run. A song that is over by then has played, too.
// Overtaken: meanwhile another file has been opened, or this one closed or paused.
enum class PlayResult { plays, does_not_play, overtaken };

// What plays a file, by its extension; nothing when it is not playable.
std::optional<DeviceType> device_type_of(std::string_view path);

struct MediaBackends {
    MediaBackend& sequencer;
    MediaBackend& wave;
    MediaBackend& video;
};

class MediaDevice {
  public:
    // `transport` are the keys that drive this device; it lights the one that applies.
    MediaDevice(Scheduler& scheduler, const FileSystem& files, Transport& transport,
                MediaBackends backends);

    // Properties for the next command.
    DeviceType Type = DeviceType::Sequencer;  // of the next Open
    std::string FileName;                     // full path for the next Open
    std::optional<bool> Notify;
    std::optional<bool> Wait;
    std::optional<Milliseconds> From;  // where the next Play starts

    void command(DeviceCommand command);

    DeviceMode Mode() const;
    Milliseconds Length() const;
    Milliseconds Position() const;
    bool is_open() const { return open_ != nullptr; }

    // While off, presses of the transport keys are ignored.
    void set_transport_enabled(bool enabled) { transport_.set_transport_enabled(enabled); }

    // Starts the status updates, every `interval` ms from now on.
    void start_status_updates(Milliseconds interval);
    void stop_status_updates() { status_timer_.set_enabled(false); }

    // After this no command has an effect.
    void shut_down();

    // Events.
    std::function<void(NotifyCode)> on_done;
    std::function<void()> on_status_update;
    // The user pressed a key. Setting cancel keeps the device from following it by itself.
    std::function<void(TransportKey, bool& cancel)> on_key;

    // Recipes.
    void open_to_play(const std::string& path);  // ready to play; read Length() now
    PlayResult start(Milliseconds from, EventPump& events);
    PlayResult play_again(EventPump& events);  // from where it is
    void StopAndClose();
    void PauseDevice();
    void ResumeDevice();
    void open_paused(const std::string& path);         // on a closed device: waits at its start
    void ReloadPaused(const std::string& path);        // whatever is open makes room for it
    void SeekPercent(int percent, EventPump& events);  // 0..100

    // Changes whenever a file is opened or closed, so that whoever lets events run can tell
    // afterwards whether the device still holds the same one.
    unsigned opening() const { return opened_; }

  private:
    MediaBackend& backend_for(DeviceType type) const;
    void open();
    void play(bool notify, bool wait);
    PlayResult settle(EventPump& events);
    void finished(const MediaBackend& backend, NotifyCode code);
    void post_done(NotifyCode code);
    void key_pressed(TransportKey key);
    void light_key();

    const FileSystem& files_;
    Transport& transport_;
    MediaBackends backends_;
    MediaBackend* open_ = nullptr;
    bool notify_at_end_ = false;
    bool at_end_ = false;  // the file has played to its end
    bool shut_down_ = false;
    unsigned opened_ = 0;  // how many files have been opened or closed; marks each Done
    EventQueue done_queue_;
    RepeatingTimer status_timer_;
};

}  // namespace zephyne
