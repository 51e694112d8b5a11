// Where the drives of the old platform are on a machine that knows none.
//
// A playlist from there names its folders by drive letter, as "C:\MIDI\". The user can say once
// where the contents of that drive are now; its folders are then looked for below that place, for
// the rest of the run.
#pragma once

#include "core/ports/file_dialogs.h"
#include "core/ports/file_system.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zephyne {

class DriveMapping {
  public:
    DriveMapping(const FileSystem& files, FileDialogs& dialogs)
        : files_(files), dialogs_(dialogs) {}

    // Gives the entry lines of a playlist the folders of this machine, where they are found. Asks
    // the user at most once, for all drives of which not a single folder is found. What is not
    // found stays as it is. Nothing happens on a file system with drives of its own.
    void apply(std::vector<std::string>& entry_lines);

  private:
    using FolderMap = std::map<std::string, std::optional<std::string>, std::less<>>;

    std::optional<std::string> find(std::string_view folder) const;
    void find_all(FolderMap& folders) const;
    void ask(const std::string& drives);

    const FileSystem& files_;
    FileDialogs& dialogs_;
    std::map<char, std::vector<std::string>> places_;  // by drive letter, in upper case
};

}  // namespace zephyne
