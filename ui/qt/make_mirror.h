// The right mirror for a control.
#pragma once

#include <memory>

namespace zephyne {

class Control;
class FormWindow;
class Mirror;

// Not attached yet.
std::unique_ptr<Mirror> make_mirror(FormWindow& window, Control& control);

}  // namespace zephyne
