// Replacing, removing, renaming and moving files, so that a failure at any moment leaves at least
// one whole file.
#include "core/text/letter_case.h"
#include "platform/files/fresh_file.h"
#include "platform/files/open_file.h"
#include "platform/files/posix_file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <optional>

namespace zephyne {
namespace {

std::optional<struct stat> status_of(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    return status;
}

bool same_file(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

std::string folder_of(const std::string& path) {
    const std::string folder = split_path(path, PathStyle::posix).folder;
    return folder.empty() ? "." : folder;
}

// A file that is there, by its real name, with what the system knows of it.
struct RealFile {
    std::string path;
    struct stat status {};
};

FileResult<RealFile> exactly(const std::string& path) {
    const auto status = status_of(path);
    if (!status) return tl::unexpected(file_error(errno));
    if (!S_ISREG(status->st_mode)) return tl::unexpected(not_an_ordinary_file());
    return RealFile{path, *status};
}

FileResult<RealFile> ordinary_file(const std::string& path) {
    return on_real_path(path, exactly);
}

// A file without any write permission is meant to be kept, also from the administrator, whom the
// system lets do anything.
bool may_be_written(const RealFile& file) {
    return (file.status.st_mode & 0222U) != 0 && ::access(file.path.c_str(), W_OK) == 0;
}

// Returns 0 or an errno value. Not every file system can rename without replacing; there a look
// before has to do.
int rename_without_replacing(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return errno;
    struct stat status {};
    if (::lstat(to.c_str(), &status) == 0) return EEXIST;
    return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

FileResult<void> result_of(int error_number) {
    if (error_number == 0) return {};
    return tl::unexpected(file_error(error_number));
}

// Where a file is to go, and whether it is there already under a name that differs in case.
struct Destination {
    std::string path;
    bool is_source = false;
};

FileResult<Destination> destination(const RealFile& source, const std::string& to) {
    const auto there = path_for_writing(to);
    if (!there) return tl::unexpected(there.error());
    const std::string folder = folder_of(*there);
    const std::string name = split_path(to, PathStyle::posix).name;
    if (name.empty()) return tl::unexpected(file_error(EINVAL));
    Destination result{joined(folder, name, PathStyle::posix), false};

    const auto status = status_of(*there);
    if (!status) return result;
    const auto source_folder = status_of(folder_of(source.path));
    const auto folder_status = status_of(folder);
    result.is_source = same_file(*status, source.status) && source_folder && folder_status &&
                       same_file(*source_folder, *folder_status) &&
                       equal_ignoring_case(split_path(source.path, PathStyle::posix).name, name);
    if (!result.is_source) return tl::unexpected(file_error(EEXIST));
    return result;
}

FileResult<void> copy_contents(const Descriptor& from, const Descriptor& to) {
    constexpr std::size_t block = 1U << 18U;
    const auto buffer = std::make_unique<std::array<char, block>>();
    while (true) {
        const auto read =
            uninterrupted([&] { return ::read(from.number(), buffer->data(), block); });
        if (read < 0) return tl::unexpected(file_error(errno));
        if (read == 0) return {};
        auto written = write_all(to, {buffer->data(), static_cast<std::size_t>(read)});
        if (!written) return written;
    }
}

FileResult<void> copy_to_disk(const RealFile& source, FreshFile& copy) {
    const auto original = open_ordinary(source.path, O_RDONLY);
    if (!original) return tl::unexpected(original.error());
    if (auto copied = copy_contents(*original, copy.file()); !copied) return copied;
    copy.take_after(source.status);
    if (auto flushed = copy.flush(); !flushed) return flushed;
    struct stat now {};
    struct stat made {};
    if (::fstat(original->number(), &now) != 0 || ::fstat(copy.file().number(), &made) != 0) {
        return tl::unexpected(file_error(errno));
    }
    if (now.st_size != made.st_size) {
        return tl::unexpected(FileError{FileErrorKind::other, "The copy is not whole"});
    }
    return {};
}

FileResult<void> move_by_copy(const RealFile& source, const std::string& to) {
    auto copy = FreshFile::in(folder_of(to));
    if (!copy) return tl::unexpected(copy.error());
    if (auto copied = copy_to_disk(source, *copy); !copied) return copied;
    if (auto placed = result_of(rename_without_replacing(copy->path(), to)); !placed) {
        return placed;
    }
    copy->keep();
    flush_folder(folder_of(to));
    if (::unlink(source.path.c_str()) == 0) return {};
    const FileError failure = file_error(errno);
    ::unlink(to.c_str());
    return tl::unexpected(failure);
}

}  // namespace

FileResult<void> PosixFileSystem::replace_file(const std::string& path, std::string_view bytes) {
    auto real = path_as_named(path);
    if (!real) return tl::unexpected(real.error());
    const auto old = exactly(*real);
    if (!old && old.error().kind != FileErrorKind::not_found) return tl::unexpected(old.error());
    if (old) {
        if (!may_be_written(*old)) return tl::unexpected(file_error(EACCES));
        // A link stays one: what it leads to is replaced.
        const std::unique_ptr<char, void (*)(void*)> target(::realpath(old->path.c_str(), nullptr),
                                                            std::free);
        if (!target) return tl::unexpected(file_error(errno));
        real = std::string(target.get());
    }
    auto fresh = FreshFile::in(folder_of(*real));
    if (!fresh) return tl::unexpected(fresh.error());
    if (auto written = write_all(fresh->file(), bytes); !written) return written;
    if (old) fresh->keep_mode_of(old->status);
    if (auto flushed = fresh->flush(); !flushed) return flushed;
    if (::rename(fresh->path().c_str(), real->c_str()) != 0) {
        return tl::unexpected(file_error(errno));
    }
    fresh->keep();
    flush_folder(folder_of(*real));
    return {};
}

FileResult<void> PosixFileSystem::remove_file(const std::string& path) {
    const auto file = ordinary_file(path);
    if (!file) return tl::unexpected(file.error());
    if (!may_be_written(*file)) return tl::unexpected(file_error(EACCES));
    if (::unlink(file->path.c_str()) != 0) return tl::unexpected(file_error(errno));
    return {};
}

FileResult<void> PosixFileSystem::rename_file(const std::string& from, const std::string& to) {
    const auto source = ordinary_file(from);
    if (!source) return tl::unexpected(source.error());
    const auto target = destination(*source, to);
    if (!target) return tl::unexpected(target.error());
    if (!target->is_source) {
        return result_of(rename_without_replacing(source->path, target->path));
    }
    if (::rename(source->path.c_str(), target->path.c_str()) != 0) {
        return tl::unexpected(file_error(errno));
    }
    return {};
}

FileResult<void> PosixFileSystem::move_file(const std::string& from, const std::string& to) {
    const auto source = ordinary_file(from);
    if (!source) return tl::unexpected(source.error());
    const auto target = destination(*source, to);
    if (!target) return tl::unexpected(target.error());
    if (target->is_source || !may_be_written(*source)) return tl::unexpected(file_error(EACCES));
    const int renamed = rename_without_replacing(source->path, target->path);
    return renamed == EXDEV ? move_by_copy(*source, target->path) : result_of(renamed);
}

}  // namespace zephyne
