// A file that is being made beside the place where it will lie, so that a half-written one is
// never found there.
#pragma once

#include "core/ports/file_system.h"
#include "platform/files/descriptor.h"

#include <sys/stat.h>

#include <string>
#include <utility>

namespace zephyne {

// It is gone again when the object is destroyed, unless it was kept.
class FreshFile {
  public:
    // A new, hidden file of a name of its own in that folder.
    static FileResult<FreshFile> in(const std::string& folder);

    FreshFile(FreshFile&& other) noexcept
        : file_(std::move(other.file_)), path_(std::exchange(other.path_, {})) {}
    FreshFile& operator=(FreshFile&&) = delete;
    ~FreshFile();

    const Descriptor& file() const { return file_; }
    const std::string& path() const { return path_; }

    // Who may use it as that file, and also its age. What the system refuses stays as it is.
    void keep_mode_of(const struct stat& other);
    void take_after(const struct stat& other);

    // To the disk itself.
    FileResult<void> flush();

    // It has got its name.
    void keep() { path_.clear(); }

  private:
    FreshFile(Descriptor file, std::string path) : file_(std::move(file)), path_(std::move(path)) {}

    Descriptor file_;
    std::string path_;
};

// Brings the names in a folder to the disk, where the file system lets it.
void flush_folder(const std::string& folder);

}  // namespace zephyne
