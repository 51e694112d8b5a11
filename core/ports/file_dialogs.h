// The desktop's dialogs for choosing a file or a folder. Each is modal and handles events until it
// is answered. They remember by themselves where the user was. User-interface thread only.
#pragma once

#include <optional>
#include <string>

namespace zephyne {

struct FileChoice {
    std::string filter;             // texts and patterns in turn, with "|" between them
    std::string default_extension;  // as ".lst"; added to a name that is typed without one
};

class FileDialogs {
  public:
    virtual ~FileDialogs() = default;

    // The full path that the user chose, as bytes; nothing when the dialog was cancelled. The file
    // need not exist, and no question is asked about one that does.
    virtual std::optional<std::string> open_file(const FileChoice& choice) = 0;
    virtual std::optional<std::string> save_file(const FileChoice& choice) = 0;

    // The same for a folder that is there. `title` says what it is wanted for.
    virtual std::optional<std::string> choose_folder(const std::string& title) = 0;
};

}  // namespace zephyne
