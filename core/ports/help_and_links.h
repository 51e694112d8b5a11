// What leads out of the program: its help, and pages for other programs to show. Nothing of this
// reports a failure to the caller: the user sees that nothing opens.
#pragma once

#include <string>

namespace zephyne {

// Shows the help file, which is HTML with an anchor for each topic. User-interface thread.
class HelpViewer {
  public:
    virtual ~HelpViewer() = default;

    // Opens the help at its beginning, or brings it forward.
    virtual void show_contents(const std::string& help_file) = 0;

    // Closes the help where it is open.
    virtual void close() = 0;

    // The user's next click on a control shows the control's help() instead of using it.
    virtual void ask_whats_this() = 0;
};

// Hands local pages to the user's default program for them.
class PageOpener {
  public:
    virtual ~PageOpener() = default;

    // Returns at once; no shell is involved.
    virtual void open_page(const std::string& path) = 0;
};

}  // namespace zephyne
