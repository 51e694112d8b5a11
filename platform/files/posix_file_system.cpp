#include "platform/files/posix_file_system.h"

#include "platform/files/descriptor.h"
#include "platform/files/file_errors.h"
#include "platform/files/open_file.h"
#include "platform/files/path_lookup.h"
#include "platform/files/posix_folder_reader.h"
#include "platform/files/volumes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <utility>

namespace zephyne {
namespace {

FileResult<Descriptor> open_for_reading(const std::string& path) {
    return on_real_path(path,
                        [](const std::string& real) { return open_ordinary(real, O_RDONLY); });
}

class PosixOutputFile final : public OutputFile {
  public:
    explicit PosixOutputFile(Descriptor file) : file_(std::move(file)) {}

    FileResult<void> write(std::string_view bytes) override { return write_all(file_, bytes); }

    FileResult<void> close() override {
        if (!file_.close() && errno != EINTR) return tl::unexpected(file_error(errno));
        return {};
    }

  private:
    Descriptor file_;
};

enum class Members { files, folders };

// What an entry is, asking the file system only where the folder itself does not tell.
bool belongs_to(Members which, const dirent& entry, int folder) {
    unsigned char type = entry.d_type;
    if (type == DT_LNK || type == DT_UNKNOWN) {
        struct stat status {};
        if (::fstatat(folder, entry.d_name, &status, 0) != 0) return false;
        type = S_ISREG(status.st_mode) ? DT_REG : S_ISDIR(status.st_mode) ? DT_DIR : DT_UNKNOWN;
    }
    return type == (which == Members::files ? DT_REG : DT_DIR);
}

FileResult<std::vector<std::string>> list_as_written(const std::string& folder, Members which) {
    auto stream = FolderStream::open(folder);
    if (!stream) return tl::unexpected(stream.error());
    std::vector<std::string> names;
    while (const dirent* entry = stream->next()) {
        if (belongs_to(which, *entry, stream->number())) names.emplace_back(entry->d_name);
    }
    if (errno != 0) return tl::unexpected(folder_error(errno));
    return names;
}

FileResult<std::vector<std::string>> list(const std::string& folder, Members which) {
    auto names = on_real_path(
        folder, [which](const std::string& real) { return list_as_written(real, which); });
    if (!names && names.error().kind == FileErrorKind::not_found) {
        return tl::unexpected(folder_error(ENOENT));
    }
    return names;
}

}  // namespace

std::string PosixFileSystem::current_folder() const {
    return working_folder();
}

FileResult<void> PosixFileSystem::set_current_folder(const std::string& folder) {
    return on_real_path(folder, [](const std::string& real) -> FileResult<void> {
        if (::chdir(real.c_str()) != 0) return tl::unexpected(folder_error(errno));
        return {};
    });
}

std::vector<Volume> PosixFileSystem::volumes() const {
    return mounted_volumes();
}

FileResult<std::vector<std::string>> PosixFileSystem::list_files(const std::string& folder) const {
    return list(folder, Members::files);
}

FileResult<std::vector<std::string>> PosixFileSystem::list_folders(
    const std::string& folder) const {
    return list(folder, Members::folders);
}

FileResult<FolderIdentity> PosixFileSystem::identify_folder(const std::string& folder) const {
    return on_real_path(folder, identity_of_folder);
}

FileResult<std::unique_ptr<FolderReader>> PosixFileSystem::read_folder(
    const std::string& folder) const {
    auto stream = on_real_path(folder, FolderStream::open);
    if (!stream) return tl::unexpected(stream.error());
    return std::make_unique<PosixFolderReader>(std::move(*stream));
}

FileResult<std::string> PosixFileSystem::resolve(const std::string& path) const {
    return on_real_path(path, [](const std::string& real) -> FileResult<std::string> {
        struct stat status {};
        if (::stat(real.c_str(), &status) != 0) return tl::unexpected(file_error(errno));
        return normalised(real);
    });
}

FileResult<void> PosixFileSystem::check_readable(const std::string& path) const {
    const auto file = open_for_reading(path);
    if (!file) return tl::unexpected(file.error());
    return {};
}

FileResult<std::uint64_t> PosixFileSystem::file_length(const std::string& path) const {
    const auto file = open_for_reading(path);
    if (!file) return tl::unexpected(file.error());
    struct stat status {};
    if (::fstat(file->number(), &status) != 0) return tl::unexpected(file_error(errno));
    return static_cast<std::uint64_t>(status.st_size);
}

FileResult<std::string> PosixFileSystem::read_file(const std::string& path,
                                                   std::size_t limit) const {
    const auto file = open_for_reading(path);
    if (!file) return tl::unexpected(file.error());

    // Read until the end rather than for the size: the file may grow or shrink meanwhile, and
    // some have no size to go by.
    constexpr std::size_t block = 1U << 16U;
    struct stat status {};
    ::fstat(file->number(), &status);
    std::size_t room = std::min(limit, static_cast<std::size_t>(status.st_size) + 1);
    std::string contents;
    std::size_t length = 0;
    while (length < limit) {
        if (length == room) room = std::min(limit, room + block);
        contents.resize(room);
        const auto read = uninterrupted(
            [&] { return ::read(file->number(), contents.data() + length, room - length); });
        if (read < 0) return tl::unexpected(file_error(errno));
        if (read == 0) break;
        length += static_cast<std::size_t>(read);
    }
    contents.resize(length);
    return contents;
}

FileResult<std::unique_ptr<OutputFile>> PosixFileSystem::create_file(const std::string& path) {
    const auto real = path_for_writing(path);
    if (!real) return tl::unexpected(real.error());
    auto file = open_ordinary(*real, O_WRONLY | O_CREAT | O_TRUNC);
    if (!file) return tl::unexpected(file.error());
    return std::make_unique<PosixOutputFile>(std::move(*file));
}

}  // namespace zephyne
