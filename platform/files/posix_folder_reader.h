// A folder's entries as the system gives them, and the folder reader made of them.
#pragma once

#include "core/ports/file_system.h"
#include "platform/files/descriptor.h"

#include <dirent.h>

#include <memory>
#include <string>

namespace zephyne {

// An open folder. Does not wait, whatever is there.
class FolderStream {
  public:
    static FileResult<FolderStream> open(const std::string& folder);

    // The next entry, hidden ones left out; null at the end, and on an error, which errno tells
    // from it (0 at the end). Valid until the next call.
    const dirent* next();

    int number() const { return ::dirfd(stream_.get()); }

  private:
    struct Close {
        void operator()(DIR* stream) const { ::closedir(stream); }
    };
    explicit FolderStream(DIR* stream) : stream_(stream) {}

    std::unique_ptr<DIR, Close> stream_;
};

class PosixFolderReader final : public FolderReader {
  public:
    explicit PosixFolderReader(FolderStream stream) : stream_(std::move(stream)) {}
    std::optional<FolderMember> next() override;

  private:
    std::optional<MemberKind> kind_of(const dirent& entry) const;

    FolderStream stream_;
};

// See FileSystem::identify_folder.
FileResult<FolderIdentity> identity_of_folder(const std::string& folder);

}  // namespace zephyne
