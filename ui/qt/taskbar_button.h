// Whether a window has a button of its own on the taskbar.
#pragma once

class QWidget;

namespace zephyne {

enum class TaskbarButton { yes, no };

// To be called before each show of a top-level window, as hiding forgets it. Does nothing on a
// desktop without X11.
void set_taskbar_button(QWidget& window, TaskbarButton button);

}  // namespace zephyne
