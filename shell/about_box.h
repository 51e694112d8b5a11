// The About box: name, version, and the libraries that the program is using.
#pragma once

#include "core/ports/window_host.h"
#include "core/program.h"
#include "core/sheets/form5.h"

#include <functional>
#include <string>
#include <vector>

namespace zephyne {

struct AboutFacts {
    std::string version;  // "0.1.0"

    // "FluidSynth 2.3.1"; four at most fit. Asked when the box opens, because some libraries are
    // loaded late.
    std::function<std::vector<std::string>()> libraries;
};

class AboutBox {
  public:
    AboutBox(Program& program, WindowHost& windows, AboutFacts facts);

    // Shows the box until it is closed. One that is open already is closed first.
    void show();

  private:
    void Form_Load(Form5& form);
    void Form_Unload(const Form5& form);

    Program& program_;
    WindowHost& windows_;
    AboutFacts facts_;
    Form5* open_ = nullptr;
};

}  // namespace zephyne
