// The player library, with an owner and with its events on the user-interface thread.
//
// One object is one instance of libmpv: created with the options of this program, it holds at
// most one file. The functions wait for the library's playing thread, which takes well under a
// millisecond unless it is opening a device.
#pragma once

#include <mpv/client.h>

#include <QObject>
#include <atomic>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>

namespace zephyne {

class MpvPlayer {
  public:
    // `audio_outputs` is the library's list of outputs to try; a list with a name that it does not
    // know means silence. `on_events` is called from the event loop of the thread that creates the
    // player, whenever next_event() may have something to tell. Nothing when the library cannot
    // start. Needs a QCoreApplication. Sets the numeric locale to "C", which the library insists
    // on.
    static std::unique_ptr<MpvPlayer> create(const std::string& audio_outputs,
                                             std::function<void()> on_events);
    ~MpvPlayer();
    MpvPlayer(const MpvPlayer&) = delete;
    MpvPlayer& operator=(const MpvPlayer&) = delete;

    // 0, or one of the library's (negative) error codes.
    int command(std::initializer_list<const char*> words);
    int set(const char* property, bool value);
    int set(const char* property, double value);
    int set(const char* property, const std::string& value);

    // Nothing, or false, where the library does not know.
    std::optional<double> number(const char* property) const;
    bool flag(const char* property) const;

    // Waits for at most so many seconds; MPV_EVENT_NONE when there was nothing. Valid until the
    // next call.
    const mpv_event& next_event(double seconds) { return *mpv_wait_event(handle_.get(), seconds); }

  private:
    struct Destroyer {
        void operator()(mpv_handle* handle) const;
    };

    explicit MpvPlayer(std::function<void()> on_events);
    bool start(const std::string& audio_outputs);
    static void wake_up(void* player);  // on some thread of the library's

    std::function<void()> on_events_;
    std::atomic<bool> wake_up_pending_ = false;
    QObject receiver_;  // takes wake-ups over to our thread, and those on the way with it
    std::unique_ptr<mpv_handle, Destroyer> handle_;
};

}  // namespace zephyne
