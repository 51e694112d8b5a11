// One player of one kind of file: the synthesizer's sequencer, or the wave and video player.
//
// MediaDevice (engine/media_device.h) drives it and adds everything that is the same for all
// kinds: the one-shot Notify and Wait properties, the order of Done events and the dropping of
// those that come too late. A back end knows one open file, its place in it, and nothing else.
//
// Threads: all calls come on the user-interface thread. A back end that plays on another thread
// keeps that to itself; the only thing it reports by itself is the end of playing.
// Times are whole milliseconds from the start of the file.
#pragma once

#include "core/time.h"

#include <functional>
#include <string>
#include <tl/expected.hpp>

namespace zephyne {

// The states a media device reports, with their customary numbers.
enum class DeviceMode {
    not_open = 524,
    stopped = 525,
    playing = 526,
    recording = 527,
    seeking = 528,
    paused = 529,
    ready = 530,
};

class MediaBackend {
  public:
    virtual ~MediaBackend() = default;

    // Opens the file, stopped at 0. Whatever was open is closed first. Only ordinary files are
    // opened (never a pipe, socket or device). On failure nothing is open, and the error is a
    // sentence part fit for the user, without a full stop.
    virtual tl::expected<void, std::string> open(const std::string& path) = 0;

    // Stops and forgets the file. Sounding notes are released. Harmless when nothing is open.
    virtual void close() = 0;

    // Plays from `from` (0 to length; beyond it: the end), or from where it is. Returns at once;
    // mode() is playing from now until the end has been reported, also for a file of no length.
    // Nothing happens when no file is open.
    virtual void play_from(Milliseconds from) = 0;
    virtual void play() = 0;

    // Freezes: the very notes that sound now go on at the next play(). On a stopped file: the
    // mode becomes paused, in place.
    virtual void pause() = 0;

    // Ends playing in place: notes are released, the mode becomes stopped.
    virtual void stop() = 0;

    // Blocks until the file has played to its end, without running handlers; at most its
    // remaining length and a second. Returns at once unless playing. The end is then not reported
    // again. Meant for sequences of some tens of milliseconds, such as a synthesizer reset.
    virtual void wait_until_finished() = 0;

    virtual DeviceMode mode() const = 0;
    virtual Milliseconds length() const = 0;    // 0 when nothing is open
    virtual Milliseconds position() const = 0;  // 0..length(); what is heard now

    // Called on the user-interface thread, from the event loop and never from inside a call
    // above, when playing has reached the end of the file; the mode is stopped by then and the
    // position is the length. Set once, before the first open(). Not called after close(), and
    // not before a file of no length has been in mode playing for a few milliseconds.
    std::function<void()> on_finished;

    // As on_finished, for a file that broke while it played (the mode is stopped).
    std::function<void()> on_failed;
};

}  // namespace zephyne
