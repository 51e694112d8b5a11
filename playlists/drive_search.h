// The walk over a whole drive: finds every song on it, folder by folder, breadth first.
//
// It stays on the volume on which it begins and visits no folder twice, whatever is mounted where.
// That also keeps it out of the folders in which a system shows its own inside as files: each of
// them is a volume of its own. Folders that cannot be read are skipped.
//
// Memory is used for what has been found, and for the folders still to visit.
#pragma once

#include "core/ports/file_system.h"
#include "core/settings.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace zephyne {

struct FoundSongs {
    struct Song {
        std::string name;    // the real one
        std::size_t folder;  // where in `folders` the song's is
    };
    std::vector<Song> songs;           // in the order in which they were found
    std::vector<std::string> folders;  // those that have songs; each ends in a separator
};

// What comes next: a file or a folder of the root, which both count as items, or a step between.
enum class SearchStep { file, root_folder, other };

class DriveSearch {
  public:
    // Asked before each step whether to go on. May look at found().
    using GoesOn = std::function<bool(SearchStep)>;

    // Files and settings outlive the search, and the settings do not change meanwhile.
    DriveSearch(const FileSystem& files, const Settings& settings, GoesOn goes_on);

    // Finds all songs from the root of a drive down. False when it was told not to go on; what has
    // been found until then is there.
    bool run(const std::string& root);

    const FoundSongs& found() const { return found_; }

  private:
    // Both are false when the search was told not to go on.
    bool visit(const std::string& folder);
    bool queue_subfolders(const std::string& folder, SearchStep step);

    bool is_new(const std::string& folder);
    void take(std::string_view file, const std::string& folder);

    const FileSystem& files_;
    const Settings& settings_;
    GoesOn goes_on_;
    FoundSongs found_;
    std::uint64_t volume_ = 0;
    std::unordered_set<std::uint64_t> visited_;  // folders of the volume, by their numbers
    std::deque<std::string> queue_;              // folders still to visit
    std::vector<std::string> subfolders_;        // names of those in the folder visited last
};

}  // namespace zephyne
