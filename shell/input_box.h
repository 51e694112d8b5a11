// The input box: asks the user for a line of text.
#pragma once

#include "core/ports/services.h"
#include "core/ports/window_host.h"
#include "core/program.h"

#include <string>

namespace zephyne {

class InputBox final : public Questions {
  public:
    InputBox(Program& program, WindowHost& windows) : program_(program), windows_(windows) {}

    // In the middle of the screen, with the whole proposal selected. Cancel, Escape and the close
    // box answer with nothing, and so does a program that ends.
    std::string ask(std::string prompt, std::string title, std::string proposal) override;

  private:
    Program& program_;
    WindowHost& windows_;
};

}  // namespace zephyne
