// The message box through which every part of the program speaks to the user.
#pragma once

#include "core/ports/services.h"
#include "core/ports/window_host.h"
#include "core/program.h"
#include "core/scheduler.h"

namespace zephyne {

class MessageBox final : public Messages {
  public:
    MessageBox(Program& program, Scheduler& scheduler, WindowHost& windows, Beeper& beeper)
        : program_(program), scheduler_(scheduler), windows_(windows), beeper_(beeper) {}

    // Shows the box in the middle of the screen and waits for the answer. Closing a question by
    // its close box, or by Escape, answers No; a notice has no other answer than OK. At the end of
    // the session, and while the program ends, nobody is asked: that answers the same.
    Answer ShowDlgMessage(std::string text, std::int16_t flags, std::string title) override;

  private:
    Program& program_;
    Scheduler& scheduler_;
    WindowHost& windows_;
    Beeper& beeper_;
};

}  // namespace zephyne
