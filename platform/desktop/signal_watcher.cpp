#include "platform/desktop/signal_watcher.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

namespace zephyne {
namespace {

constexpr std::array<int, 3> kSignals{SIGTERM, SIGINT, SIGHUP};

// A signal handler may do next to nothing; it writes a byte into a pipe that the event loop reads.
std::atomic<int> pipe_for_signals{-1};
static_assert(std::atomic<int>::is_always_lock_free);

void pass_on(int) {
    const int error_before = errno;
    const char byte = 0;
    if (::write(pipe_for_signals.load(), &byte, 1) < 0) {
        // The pipe is full of signals already.
    }
    errno = error_before;
}

}  // namespace

struct SignalWatcher::Previous {
    std::array<struct sigaction, kSignals.size()> actions{};
};

SignalWatcher::SignalWatcher(std::function<void()> on_end_wanted)
    : previous_(std::make_unique<Previous>()) {
    std::array<int, 2> ends{-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    reading_end_ = Descriptor(ends[0]);
    writing_end_ = Descriptor(ends[1]);
    pipe_for_signals = writing_end_.number();

    notifier_ = std::make_unique<QSocketNotifier>(reading_end_.number(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [pipe = reading_end_.number(), call = std::move(on_end_wanted)] {
                         char byte = 0;
                         if (::read(pipe, &byte, 1) == 1) call();
                     });

    struct sigaction action {};
    action.sa_handler = pass_on;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        struct sigaction& previous = previous_->actions[i];
        ::sigaction(kSignals[i], nullptr, &previous);
        if (previous.sa_handler != SIG_IGN) ::sigaction(kSignals[i], &action, nullptr);
    }
}

SignalWatcher::~SignalWatcher() {
    if (!notifier_) return;
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        ::sigaction(kSignals[i], &previous_->actions[i], nullptr);
    }
    pipe_for_signals = -1;
}

}  // namespace zephyne
