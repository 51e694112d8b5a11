// The file system of a POSIX machine.
//
// A path that is there as written is reached by one system call; only where that fails are its
// folders searched for the same name in another case. Names that begin with "." are hidden.
#pragma once

#include "core/ports/file_system.h"

namespace zephyne {

class PosixFileSystem final : public FileSystem {
  public:
    PathStyle path_style() const override { return PathStyle::posix; }
    std::string current_folder() const override;
    FileResult<void> set_current_folder(const std::string& folder) override;
    std::vector<Volume> volumes() const override;
    FileResult<std::vector<std::string>> list_files(const std::string& folder) const override;
    FileResult<std::vector<std::string>> list_folders(const std::string& folder) const override;
    FileResult<FolderIdentity> identify_folder(const std::string& folder) const override;
    FileResult<std::unique_ptr<FolderReader>> read_folder(const std::string& folder) const override;
    FileResult<std::string> resolve(const std::string& path) const override;
    FileResult<void> check_readable(const std::string& path) const override;
    FileResult<std::uint64_t> file_length(const std::string& path) const override;
    FileResult<std::string> read_file(const std::string& path, std::size_t limit) const override;
    FileResult<std::unique_ptr<OutputFile>> create_file(const std::string& path) override;
    FileResult<void> replace_file(const std::string& path, std::string_view bytes) override;
    FileResult<void> remove_file(const std::string& path) override;
    FileResult<void> rename_file(const std::string& from, const std::string& to) override;
    FileResult<void> move_file(const std::string& from, const std::string& to) override;
};

}  // namespace zephyne
