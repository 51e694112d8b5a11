// Opens local pages with the user's default program for them.
#pragma once

#include "core/ports/help_and_links.h"

namespace zephyne {

class DesktopPages final : public PageOpener {
  public:
    void open_page(const std::string& path) override;
};

}  // namespace zephyne
