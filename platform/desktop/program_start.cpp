#include "platform/desktop/program_start.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace zephyne {
namespace {

constexpr const char* kProgramName = "zephyne";

// A file that is always among the data files tells where they are.
constexpr const char* kDataFile = "gm_reset.aut";

// The path in an environment variable. As the desktop's conventions have it, a relative one does
// not count.
std::string folder_in(const char* variable) {
    const char* value = std::getenv(variable);
    return value && *value == '/' ? value : "";
}

std::string home_folder() {
    std::string home = folder_in("HOME");
    if (!home.empty()) return home;
    const passwd* entry = ::getpwuid(::geteuid());
    return entry ? entry->pw_dir : "";
}

std::string below(const std::string& folder, const std::string& name) {
    return joined(folder, name, PathStyle::posix);
}

std::vector<std::string> split_at_colons(std::string_view list) {
    std::vector<std::string> folders;
    while (!list.empty()) {
        const auto end = std::min(list.find(':'), list.size());
        if (list.front() == '/') folders.emplace_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return folders;
}

bool holds_data(const FileSystem& files, const std::string& folder) {
    return !folder.empty() && files.check_readable(below(folder, kDataFile)).has_value();
}

std::string installed_data(const FileSystem& files, const StartSurroundings& surroundings) {
    const std::string beside = split_path(surroundings.executable_folder, PathStyle::posix).folder;
    std::vector<std::string> candidates{below(below(beside, "share"), kProgramName)};
    for (const std::string& folder : surroundings.system_data) {
        candidates.push_back(below(folder, kProgramName));
    }
    for (const std::string& candidate : candidates) {
        if (holds_data(files, candidate)) return candidate;
    }
    return {};
}

// What a session manager appends when it starts again what ran at the last log-off.
bool names_a_session(std::span<const char* const> arguments) {
    return arguments.size() == 2 && arguments[0] == std::string_view("-session");
}

}  // namespace

StartSurroundings start_surroundings() {
    StartSurroundings surroundings;
    std::error_code error;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", error);
    surroundings.executable_folder = executable.parent_path().native();

    if (const char* home = std::getenv("ZEPHYNE_HOME"); home && *home) {
        const auto absolute = std::filesystem::absolute(home, error);
        surroundings.home_override = error ? home : absolute.lexically_normal().native();
    }

    surroundings.user_configuration = folder_in("XDG_CONFIG_HOME");
    if (surroundings.user_configuration.empty()) {
        surroundings.user_configuration = below(home_folder(), ".config");
    }

    const char* data = std::getenv("XDG_DATA_DIRS");
    surroundings.system_data =
        split_at_colons(data && *data ? data : "/usr/local/share:/usr/share");
    return surroundings;
}

ProgramFolders program_folders(const FileSystem& files, const StartSurroundings& surroundings) {
    ProgramFolders folders;
    const bool data_beside = holds_data(files, surroundings.executable_folder);
    folders.installed =
        data_beside ? surroundings.executable_folder : installed_data(files, surroundings);

    if (!surroundings.home_override.empty()) {
        folders.own = surroundings.home_override;
    } else if (data_beside) {
        folders.own = surroundings.executable_folder;
    } else {
        folders.own = below(surroundings.user_configuration, kProgramName);
    }
    std::error_code ignored;
    std::filesystem::create_directories(folders.own, ignored);
    return folders;
}

std::string command_line(const FileSystem& files, std::span<const char* const> arguments) {
    std::string line;
    for (const char* argument : arguments) {
        if (!line.empty()) line += ' ';
        line += argument;
    }
    if (line.empty() || line.starts_with(separator(files.path_style()))) return line;
    if (auto absolute = files.resolve(line)) return *absolute;
    return names_a_session(arguments) ? "" : line;
}

}  // namespace zephyne
