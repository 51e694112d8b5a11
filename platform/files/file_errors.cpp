#include "platform/files/file_errors.h"

#include <cerrno>
#include <system_error>

namespace zephyne {

FileError file_error(int error_number) {
    switch (error_number) {
        case ENOENT:
            return {FileErrorKind::not_found, "File not found"};
        case ENOTDIR:
            return {FileErrorKind::not_found, "Path not found"};
        case ENAMETOOLONG:
        case EILSEQ:
        case EINVAL:
        case ELOOP:
            return {FileErrorKind::not_found, "Bad file name"};
        case EACCES:
        case EPERM:
        case EROFS:
            return {FileErrorKind::permission_denied, "Permission denied"};
        case ETXTBSY:
        case EBUSY:
            return {FileErrorKind::already_open, "File already open"};
        case EEXIST:
            return {FileErrorKind::already_exists, "File already exists"};
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return {FileErrorKind::other, "Disk full"};
        case ENXIO:
        case ENODEV:
        case ENOMEDIUM:
        case ENOTCONN:
        case ESTALE:
        case EHOSTDOWN:
        case ETIMEDOUT:
            return {FileErrorKind::other, "Disk not ready"};
        case EMFILE:
        case ENFILE:
            return {FileErrorKind::other, "Too many files"};
        case EISDIR:
            return not_an_ordinary_file();
        default:
            return {FileErrorKind::other, std::generic_category().message(error_number)};
    }
}

FileError folder_error(int error_number) {
    return file_error(error_number == ENOENT ? ENOTDIR : error_number);
}

FileError not_an_ordinary_file() {
    return {FileErrorKind::other, "Not an ordinary file"};
}

}  // namespace zephyne
