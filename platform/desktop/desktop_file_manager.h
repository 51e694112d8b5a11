// The desktop's file manager: asked over D-Bus (org.freedesktop.FileManager1), and where nobody
// answers there, the default handler of folders. No shell takes part, so that a folder's name is
// never anything but a name.
#pragma once

#include "core/ports/services.h"

namespace zephyne {

class DesktopFileManager final : public FileManager {
  public:
    void open_folder(const std::string& folder) override;
};

}  // namespace zephyne
