// The system's wish that the program ends: at log-off, shutdown, Ctrl+C, or when the terminal
// closes (SIGTERM, SIGINT, SIGHUP).
#pragma once

#include "platform/files/descriptor.h"

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace zephyne {

class SignalWatcher {
  public:
    // Calls back from the event loop, on the thread that made it, once for each signal. A signal
    // that the program was started to ignore (as by nohup) stays ignored. Needs a
    // QCoreApplication; one watcher at a time. When it is destroyed, the signals do again what
    // they did before.
    explicit SignalWatcher(std::function<void()> on_end_wanted);
    ~SignalWatcher();
    SignalWatcher(const SignalWatcher&) = delete;
    SignalWatcher& operator=(const SignalWatcher&) = delete;

  private:
    struct Previous;

    Descriptor reading_end_;
    Descriptor writing_end_;
    std::unique_ptr<Previous> previous_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace zephyne
