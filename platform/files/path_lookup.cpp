#include "platform/files/path_lookup.h"

#include "core/text/letter_case.h"
#include "platform/files/file_errors.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace zephyne {
namespace {

bool exists(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0;
}

// Most names in a folder can be told apart by their ASCII ends, which saves folding them: an ASCII
// letter at the end of a name folds to nothing but its small letter.
bool ends_differ(std::string_view a, std::string_view b) {
    const auto is_plain = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    const auto small = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    while (!a.empty() && !b.empty() && is_plain(a.back()) && is_plain(b.back())) {
        if (small(a.back()) != small(b.back())) return true;
        a.remove_suffix(1);
        b.remove_suffix(1);
    }
    return a.empty() != b.empty();
}

FileResult<std::string> only_match(const std::string& folder, const std::string& name,
                                   FileError not_found) {
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(::opendir(folder.c_str()), ::closedir);
    if (!stream) return tl::unexpected(folder_error(errno));
    std::string match;
    while (const dirent* entry = ::readdir(stream.get())) {
        const std::string_view candidate = entry->d_name;
        if (ends_differ(candidate, name) || !equal_ignoring_case(candidate, name)) continue;
        if (!match.empty()) return tl::unexpected(std::move(not_found));
        match = candidate;
    }
    if (match.empty()) return tl::unexpected(std::move(not_found));
    return match;
}

// Removes the first part of a path, with the separators behind it, and returns it.
std::string take_part(std::string_view& path) {
    std::string part(path.substr(0, path.find('/')));
    path.remove_prefix(part.size());
    path.remove_prefix(std::min(path.find_first_not_of('/'), path.size()));
    return part;
}

void append_part(std::string& path, std::string_view part) {
    if (!path.empty() && !path.ends_with('/')) path += '/';
    path += part;
}

}  // namespace

FileResult<std::string> find_in_any_case(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) {
        return tl::unexpected(file_error(EINVAL));
    }
    std::string_view rest = path;
    std::string found;
    if (rest.front() == '/') {
        found = "/";
        take_part(rest);
    }
    while (!rest.empty()) {
        const std::string part = take_part(rest);
        std::string next = found;
        append_part(next, part);
        if (!exists(next)) {
            const int reason = errno;
            const FileError failure = rest.empty() ? file_error(reason) : folder_error(reason);
            if (reason != ENOENT) return tl::unexpected(failure);
            auto match = only_match(found.empty() ? "." : found, part, failure);
            if (!match) return match;
            next = found;
            append_part(next, *match);
            if (!exists(next)) return tl::unexpected(failure);  // a link to nowhere
        }
        found = std::move(next);
    }
    return found;
}

FileResult<std::string> normalised(const std::string& path) {
    std::string result = path.starts_with('/') ? "/" : working_folder();
    std::string_view rest = path;
    while (!rest.empty()) {
        const std::string part = take_part(rest);
        if (part.empty() || part == ".") continue;
        append_part(result, part);
        if (part != "..") continue;
        const std::unique_ptr<char, void (*)(void*)> real(::realpath(result.c_str(), nullptr),
                                                          std::free);
        if (!real) return tl::unexpected(folder_error(errno));
        result = real.get();
    }
    return result;
}

std::string working_folder() {
    const std::unique_ptr<char, void (*)(void*)> folder(::getcwd(nullptr, 0), std::free);
    return folder && *folder == '/' ? folder.get() : "/";
}

}  // namespace zephyne
