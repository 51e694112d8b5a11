// The file system as the logic sees it: whole small files, folders of names, volumes.
//
// Names and paths are bytes. A path is found as it is written; where that fails, each of its parts
// is matched without regard to case, and taken when exactly one name fits. All calls block and
// come on the user-interface thread. Only ordinary files (and links to them) are ever opened: a
// pipe, socket or device with the name of a song fails at once with `other`.
#pragma once

#include "core/paths.h"
#include "core/ports/folder_reader.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace zephyne {

enum class FileErrorKind { not_found, permission_denied, already_open, already_exists, other };

// `description` is fit for the user and ends without a full stop ("File not found"). For
// permission_denied it is "Permission denied", for already_open "File already open".
struct FileError {
    FileErrorKind kind = FileErrorKind::other;
    std::string description;
};

template <class T>
using FileResult = tl::expected<T, FileError>;

// A "drive": a part of the tree that the user may start from. `root` has no separator at its end
// except where it is one ("/", "C:\"). `label` may be empty.
struct Volume {
    std::string root;
    std::string name;
    std::string label;

    // As the drive list shows it: "Home  [clara]", or the name alone.
    std::string text() const { return label.empty() ? name : name + "  [" + label + "]"; }
    bool operator==(const Volume&) const = default;
};

// A file being written. Destroying it closes it; an error at that point is lost, so call close().
class OutputFile {
  public:
    virtual ~OutputFile() = default;
    virtual FileResult<void> write(std::string_view bytes) = 0;
    virtual FileResult<void> close() = 0;
};

class FileSystem {
  public:
    virtual ~FileSystem() = default;

    virtual PathStyle path_style() const = 0;
    virtual std::string current_folder() const = 0;
    virtual FileResult<void> set_current_folder(const std::string& folder) = 0;

    // The volumes in the order of the drive list; never empty. May change while the program runs.
    virtual std::vector<Volume> volumes() const = 0;

    // The names of the ordinary files of a folder, or of its folders (links to folders included),
    // in the order in which the platform returns them. Hidden ones are left out.
    virtual FileResult<std::vector<std::string>> list_files(const std::string& folder) const = 0;
    virtual FileResult<std::vector<std::string>> list_folders(const std::string& folder) const = 0;

    // Which folder the path leads to. Asking opens nothing and wakes nothing: where a volume would
    // be mounted by stepping into the folder, it is not.
    virtual FileResult<FolderIdentity> identify_folder(const std::string& folder) const = 0;

    // Opens a folder for reading. It is closed when the reader is destroyed.
    virtual FileResult<std::unique_ptr<FolderReader>> read_folder(
        const std::string& folder) const = 0;

    // The path as it really is on disk (see above), absolute and without a separator at its end,
    // whether a file or a folder.
    virtual FileResult<std::string> resolve(const std::string& path) const = 0;

    // Opens the file for reading and closes it again.
    virtual FileResult<void> check_readable(const std::string& path) const = 0;

    // The length of a file that can be opened for reading, in bytes; nothing of it is read.
    virtual FileResult<std::uint64_t> file_length(const std::string& path) const = 0;

    // The first `limit` bytes of a file.
    virtual FileResult<std::string> read_file(const std::string& path, std::size_t limit) const = 0;

    // Creates the file, or empties the one that is there.
    virtual FileResult<std::unique_ptr<OutputFile>> create_file(const std::string& path) = 0;

    // What is done to whole files. Only ordinary files are touched, and a file without permission
    // to write it is neither removed nor replaced, even where its folder would allow it. On failure
    // everything is as it was.

    // Gives the file these contents in one step: nobody, and no failure of the machine, ever finds
    // half of them.
    virtual FileResult<void> replace_file(const std::string& path, std::string_view bytes) = 0;

    virtual FileResult<void> remove_file(const std::string& path) = 0;

    // Gives a file another name or another folder of the same volume. Where `to` is another file,
    // if only in another case, that is `already_exists`; for a new case of the file's own name it
    // is not.
    virtual FileResult<void> rename_file(const std::string& from, const std::string& to) = 0;

    // The same for any volume: where it is another one, the file is copied to the disk, the
    // lengths are compared, and only then the old file is removed. Moved onto itself it fails with
    // permission_denied.
    virtual FileResult<void> move_file(const std::string& from, const std::string& to) = 0;

    // Settings, notes, volumes and playlists are far below this.
    static constexpr std::size_t text_file_limit = 64U << 20U;
};

}  // namespace zephyne
