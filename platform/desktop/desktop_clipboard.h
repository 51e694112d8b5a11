// The desktop's clipboard.
#pragma once

#include "core/ports/services.h"

namespace zephyne {

class DesktopClipboard final : public Clipboard {
  public:
    void set_text(const std::string& text) override;
};

}  // namespace zephyne
