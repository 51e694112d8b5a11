#include "platform/files/posix_folder_reader.h"

#include "platform/files/open_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <cerrno>

namespace zephyne {

FileResult<FolderStream> FolderStream::open(const std::string& folder) {
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC;
    Descriptor file(uninterrupted([&] { return ::open(folder.c_str(), flags); }));
    if (!file) return tl::unexpected(folder_error(errno));
    DIR* stream = ::fdopendir(file.number());
    if (!stream) return tl::unexpected(folder_error(errno));
    file.release();
    return FolderStream(stream);
}

const dirent* FolderStream::next() {
    errno = 0;
    const dirent* entry = ::readdir(stream_.get());
    while (entry && entry->d_name[0] == '.') entry = ::readdir(stream_.get());
    return entry;
}

std::optional<FolderMember> PosixFolderReader::next() {
    while (const dirent* entry = stream_.next()) {
        if (const auto kind = kind_of(*entry)) return FolderMember{*kind, entry->d_name};
    }
    return std::nullopt;
}

// Asks the file system only about links, and where the folder itself does not tell.
std::optional<MemberKind> PosixFolderReader::kind_of(const dirent& entry) const {
    if (entry.d_type == DT_REG) return MemberKind::file;
    if (entry.d_type == DT_DIR) return MemberKind::folder;
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return std::nullopt;

    struct stat status {};
    if (::fstatat(stream_.number(), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) return {};
    if (S_ISREG(status.st_mode)) return MemberKind::file;
    if (S_ISDIR(status.st_mode)) return MemberKind::folder;
    if (!S_ISLNK(status.st_mode)) return std::nullopt;
    const dev_t volume = status.st_dev;
    if (::fstatat(stream_.number(), entry.d_name, &status, AT_NO_AUTOMOUNT) != 0) return {};
    if (S_ISREG(status.st_mode) && status.st_dev == volume) return MemberKind::file;
    return std::nullopt;
}

FileResult<FolderIdentity> identity_of_folder(const std::string& folder) {
    struct statx status {};
    if (::statx(AT_FDCWD, folder.c_str(), AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC,
                STATX_TYPE | STATX_INO, &status) != 0) {
        return tl::unexpected(folder_error(errno));
    }
    if (!S_ISDIR(status.stx_mode)) return tl::unexpected(folder_error(ENOTDIR));
    return FolderIdentity{::makedev(status.stx_dev_major, status.stx_dev_minor), status.stx_ino};
}

}  // namespace zephyne
