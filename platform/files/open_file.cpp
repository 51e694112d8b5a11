#include "platform/files/open_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zephyne {
namespace {

constexpr mode_t kNewFileMode = 0666;  // less the user's mask

}  // namespace

// What it is gets asked before opening, because opening alone already
// disturbs a pipe's other end or a device; and after, because it may have been exchanged.
FileResult<Descriptor> open_ordinary(const std::string& path, int flags) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) {
        if (!S_ISREG(status.st_mode)) return tl::unexpected(not_an_ordinary_file());
    } else if (errno != ENOENT || !(flags & O_CREAT)) {
        return tl::unexpected(file_error(errno));
    }
    Descriptor file(uninterrupted([&] {
        return ::open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, kNewFileMode);
    }));
    if (!file) return tl::unexpected(file_error(errno));
    if (::fstat(file.number(), &status) != 0) return tl::unexpected(file_error(errno));
    if (!S_ISREG(status.st_mode)) return tl::unexpected(not_an_ordinary_file());
    return file;
}

FileResult<void> write_all(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto written =
            uninterrupted([&] { return ::write(file.number(), bytes.data(), bytes.size()); });
        if (written < 0) return tl::unexpected(file_error(errno));
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
}

FileResult<std::string> path_as_named(const std::string& path) {
    const auto [folder, name] = split_path(path, PathStyle::posix);
    if (path.empty() || path.find('\0') != std::string::npos) {
        return tl::unexpected(file_error(EINVAL));
    }
    if (folder.empty()) return path;
    auto real_folder = find_in_any_case(folder);
    if (!real_folder) {
        if (real_folder.error().kind != FileErrorKind::not_found) return real_folder;
        return tl::unexpected(folder_error(ENOENT));
    }
    return joined(*real_folder, name, PathStyle::posix);
}

FileResult<std::string> path_for_writing(const std::string& path) {
    if (auto there = find_in_any_case(path)) return there;
    return path_as_named(path);
}

}  // namespace zephyne
