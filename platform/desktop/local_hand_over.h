// One copy of the program for each user, and a wire to it for all others.
//
// The copy that holds the place holds a lock on a file, which the system releases however that
// copy ends; so there is no doubt, and no race, about a place left by a crash. Beside the lock
// lies a datagram socket. A message is one datagram: a word ("forward", or "poke" and a blank)
// and behind "poke " the command line as bytes.
//
// Lock and socket are in a folder that only the user can enter ($XDG_RUNTIME_DIR, or one of our
// own among the temporary files). Messages from other users are dropped all the same, and so are
// those that are too long or have another form.
#pragma once

#include "core/ports/services.h"
#include "core/scheduler.h"
#include "platform/files/descriptor.h"

#include <QSocketNotifier>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace zephyne {

class LocalHandOver final : public HandOver {
  public:
    // The longest command line that is handed over, in bytes.
    static constexpr std::size_t longest_command_line = 64U << 10U;

    // Copies with the same name find each other. Messages to this copy are handled as events of
    // the scheduler, in the order in which they came. A message from this copy waits for as long
    // as `patience` when the other is only just starting or does not take its messages. Needs a
    // QCoreApplication once it holds the place.
    explicit LocalHandOver(Scheduler& scheduler, std::string name = name_from_environment(),
                           Milliseconds patience = 2000);
    ~LocalHandOver() override;

    // Where no folder can be used, nobody holds the place, and this copy runs by itself.
    bool another_copy_runs() override;

    void bring_forward() override;
    void poke(std::string_view command_line) override;

    // "zephyne", or what ZEPHYNE_INSTANCE says, so that several can run side by side.
    static std::string name_from_environment();

  private:
    void listen();
    void receive();
    void handle(std::string_view message);
    void send(std::string_view message);

    EventQueue events_;
    Milliseconds patience_;
    std::string lock_path_;
    std::string socket_path_;
    Descriptor lock_;
    Descriptor socket_;
    std::unique_ptr<QSocketNotifier> notifier_;
    bool nobody_answers_ = false;  // a message found no taker: do not wait for the next one again
};

}  // namespace zephyne
