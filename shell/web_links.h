// The page of links that comes with the program.
#pragma once

#include "core/ports/file_system.h"
#include "core/ports/help_and_links.h"
#include "core/program.h"

namespace zephyne {

class WebLinks {
  public:
    WebLinks(const Program& program, const FileSystem& files, PageOpener& pages)
        : program_(program), files_(files), pages_(pages) {}

    // Opens the page in the user's default viewer for such pages.
    void show();

  private:
    const Program& program_;
    const FileSystem& files_;
    PageOpener& pages_;
};

}  // namespace zephyne
