// What opening, reading and changing files have in common: the way from a path as written to an
// open ordinary file.
#pragma once

#include "core/ports/file_system.h"
#include "platform/files/descriptor.h"
#include "platform/files/file_errors.h"
#include "platform/files/path_lookup.h"

#include <cerrno>
#include <string>
#include <string_view>

namespace zephyne {

// Repeats a system call that a signal interrupted.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

// A call on a path, tried as written and then on its match in any case.
template <class Call>
auto on_real_path(const std::string& path, Call call) -> decltype(call(path)) {
    if (path.empty() || path.find('\0') != std::string::npos) {
        return tl::unexpected(file_error(EINVAL));
    }
    auto result = call(path);
    if (result || result.error().kind != FileErrorKind::not_found) return result;
    const auto real = find_in_any_case(path);
    if (!real) return tl::unexpected(real.error());
    if (*real == path) return result;
    return call(*real);
}

// An ordinary file, opened with the flags of open(2); other kinds fail without being disturbed.
FileResult<Descriptor> open_ordinary(const std::string& path, int flags);

FileResult<void> write_all(const Descriptor& file, std::string_view bytes);

// The path of a file of exactly that name, there or not, in its folder as that is really called.
FileResult<std::string> path_as_named(const std::string& path);

// Where a file that is to be written lies or will lie: a file that is there in another case is
// that file, and a new one goes into its folder under the name as written.
FileResult<std::string> path_for_writing(const std::string& path);

}  // namespace zephyne
