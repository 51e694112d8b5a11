// The libraries that this run of the program uses, for the About box.
#pragma once

#include <string>
#include <vector>

namespace zephyne {

// Name and version of each, as the libraries themselves report it: "FluidSynth 2.3.1".
std::vector<std::string> libraries_in_use();

}  // namespace zephyne
