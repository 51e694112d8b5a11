#include "platform/files/fresh_file.h"

#include "platform/files/open_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>

namespace zephyne {

FileResult<FreshFile> FreshFile::in(const std::string& folder) {
    constexpr int attempts = 100;
    constexpr mode_t mode = 0666;  // less the user's mask
    for (int number = 0; number < attempts; ++number) {
        std::string path =
            joined(folder, ".zephyne-" + std::to_string(::getpid()) + "-" + std::to_string(number),
                   PathStyle::posix);
        Descriptor file(uninterrupted(
            [&] { return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode); }));
        if (file) return FreshFile(std::move(file), std::move(path));
        if (errno != EEXIST) break;
    }
    return tl::unexpected(errno == ENOENT ? folder_error(errno) : file_error(errno));
}

FreshFile::~FreshFile() {
    if (!path_.empty()) ::unlink(path_.c_str());
}

void FreshFile::keep_mode_of(const struct stat& other) {
    ::fchmod(file_.number(), other.st_mode & 07777U);
}

void FreshFile::take_after(const struct stat& other) {
    keep_mode_of(other);
    const std::array<timespec, 2> times{other.st_atim, other.st_mtim};
    ::futimens(file_.number(), times.data());
}

FileResult<void> FreshFile::flush() {
    // A file system that cannot flush (EINVAL) has nothing to bring to a disk.
    if (uninterrupted([&] { return ::fsync(file_.number()); }) != 0 && errno != EINVAL) {
        return tl::unexpected(file_error(errno));
    }
    return {};
}

void flush_folder(const std::string& folder) {
    const Descriptor file(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file) ::fsync(file.number());
}

}  // namespace zephyne
