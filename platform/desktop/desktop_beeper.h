// The desktop's warning sound, whatever the user has chosen for it.
#pragma once

#include "core/ports/services.h"

namespace zephyne {

class DesktopBeeper final : public Beeper {
  public:
    void beep() override;  // needs a QApplication
};

}  // namespace zephyne
