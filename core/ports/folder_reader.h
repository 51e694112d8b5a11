// Reading one folder piece by piece, for walks over a whole drive.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zephyne {

// Which folder it is, whatever paths lead to it. Folders on different mounted file systems differ
// in `volume`; `number` tells apart those on the same one. Holds while the volume stays mounted.
struct FolderIdentity {
    std::uint64_t volume = 0;
    std::uint64_t number = 0;
    bool operator==(const FolderIdentity&) const = default;
};

enum class MemberKind { file, folder };

struct FolderMember {
    MemberKind kind = MemberKind::file;
    std::string_view name;  // until the next call of next()
};

// An open folder. Its members come in the order in which the platform returns them, one at a time,
// so that a folder of a million files neither fills the memory nor holds anything up.
//
// Files are ordinary ones, and links to ordinary ones on the same volume. Folders are those that
// really lie here: a link to a folder is left out, for what it leads to has a place of its own.
// Hidden ones are left out as well.
class FolderReader {
  public:
    virtual ~FolderReader() = default;

    // Nothing at the end, and where the folder cannot be read any further.
    virtual std::optional<FolderMember> next() = 0;
};

}  // namespace zephyne
