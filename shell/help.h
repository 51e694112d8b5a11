// The help: the file itself in its viewer, and single topics of it for the notes beside controls.
#pragma once

#include "core/ports/file_system.h"
#include "core/ports/help_and_links.h"
#include "core/program.h"

#include <optional>
#include <string>
#include <string_view>

namespace zephyne {

class Help {
  public:
    Help(Program& program, const FileSystem& files, HelpViewer& viewer)
        : program_(program), files_(files), viewer_(viewer) {}

    void show_contents();
    void close();

    // The next click asks a control what it is.
    void ask_whats_this();

    // The plain text of a topic; "" where the help file is missing or has no such topic. The file
    // is read once.
    std::string topic(std::string_view name);

  private:
    Program& program_;
    const FileSystem& files_;
    HelpViewer& viewer_;
    std::optional<std::string> html_;
};

}  // namespace zephyne
