#include "platform/files/volumes.h"

#include "core/paths.h"
#include "core/text/utf8.h"

#include <dirent.h>
#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <set>
#include <sstream>

namespace zephyne {
namespace {

constexpr std::string_view kMountTable = "/proc/self/mountinfo";
constexpr const char* kLabelFolder = "/dev/disk/by-label";

constexpr std::array<std::string_view, 18> kNetworkTypes{
    "nfs",       "nfs4",           "cifs",        "smb3",     "smbfs",  "ncpfs",      "afs",
    "ceph",      "glusterfs",      "9p",          "virtiofs", "vboxsf", "fuse.sshfs", "fuse.rclone",
    "fuse.s3fs", "fuse.curlftpfs", "fuse.davfs2", "davfs"};

// Disks without a device of their own in the table.
constexpr std::array<std::string_view, 2> kPoolTypes{"zfs", "bcachefs"};

// Images of packages, not disks of the user's.
constexpr std::array<std::string_view, 2> kImageTypes{"squashfs", "erofs"};

// Where the system keeps to itself whatever is mounted there.
constexpr std::array<std::string_view, 11> kSystemPlaces{
    "/boot", "/efi", "/etc", "/usr", "/var", "/tmp", "/dev", "/proc", "/sys", "/run", "/snap"};
constexpr std::string_view kRemovablePlace = "/run/media";

template <std::size_t N>
bool contains(const std::array<std::string_view, N>& list, std::string_view wanted) {
    return std::find(list.begin(), list.end(), wanted) != list.end();
}

bool lies_in(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

// The kernel writes blanks and the like as "\040", udev as "\x20".
std::string unescaped(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        std::size_t length = 1;
        char character = text.front();
        if (character == '\\' && text.size() >= 4) {
            const bool hexadecimal = text[1] == 'x';
            const std::string digits(text.substr(hexadecimal ? 2 : 1, hexadecimal ? 2 : 3));
            char* end = nullptr;
            const long code = std::strtol(digits.c_str(), &end, hexadecimal ? 16 : 8);
            if (*end == '\0') {
                character = static_cast<char>(code);
                length = 4;
            }
        }
        result += character;
        text.remove_prefix(length);
    }
    return result;
}

struct Mount {
    std::string device;  // "8:1"
    std::string part;    // the folder of the device that is mounted here
    std::string place;
    std::string type;
    std::string source;
};

// A line: number, parent, device, part, place, options, tags..., "-", type, source, options.
bool read_mount(const std::string& line, Mount& mount) {
    std::istringstream fields(line);
    std::string skipped;
    fields >> skipped >> skipped >> mount.device >> mount.part >> mount.place;
    while (fields >> skipped && skipped != "-") {
    }
    fields >> mount.type >> mount.source;
    mount.part = unescaped(mount.part);
    mount.place = unescaped(mount.place);
    mount.source = unescaped(mount.source);
    return !fields.fail();
}

bool is_network(const Mount& mount) {
    return contains(kNetworkTypes, mount.type);
}

bool is_disk(const Mount& mount) {
    if (mount.place == "/" || contains(kImageTypes, mount.type)) return false;
    const auto holds = [&](std::string_view folder) { return lies_in(mount.place, folder); };
    if (std::any_of(kSystemPlaces.begin(), kSystemPlaces.end(), holds) && !holds(kRemovablePlace)) {
        return false;
    }
    if (is_network(mount) || contains(kPoolTypes, mount.type)) return true;
    // A part of a disk that is mounted elsewhere is a second view of it, except for the subvolumes
    // of one file system type, which are how its users divide a disk.
    return mount.source.starts_with("/dev/") && (mount.part == "/" || mount.type == "btrfs");
}

std::string label_of_device(const std::string& device) {
    const std::unique_ptr<DIR, int (*)(DIR*)> labels(::opendir(kLabelFolder), ::closedir);
    if (!labels) return {};
    const std::unique_ptr<char, void (*)(void*)> wanted(::realpath(device.c_str(), nullptr),
                                                        std::free);
    while (const dirent* entry = wanted ? ::readdir(labels.get()) : nullptr) {
        const std::string link = joined(kLabelFolder, entry->d_name, PathStyle::posix);
        const std::unique_ptr<char, void (*)(void*)> target(::realpath(link.c_str(), nullptr),
                                                            std::free);
        if (target && std::string_view(target.get()) == wanted.get()) {
            return unescaped(entry->d_name);
        }
    }
    return {};
}

struct User {
    std::string name;
    std::string home;
};

User current_user() {
    User user;
    if (const passwd* entry = ::getpwuid(::geteuid())) user = {entry->pw_name, entry->pw_dir};
    if (const char* home = std::getenv("HOME"); home && *home == '/') user.home = home;
    while (user.home.size() > 1 && user.home.ends_with('/')) user.home.pop_back();
    return user;
}

}  // namespace

std::vector<Volume> disks_among(std::string_view mount_table,
                                const std::function<std::string(const std::string&)>& label_of) {
    std::vector<Volume> disks;
    std::set<std::pair<std::string, std::string>> listed;
    for (const std::string_view line : text_lines(mount_table)) {
        Mount mount;
        if (!read_mount(std::string(line), mount) || !is_disk(mount)) continue;
        // What is mounted later hides what was mounted at the same place before.
        std::erase_if(disks, [&](const Volume& disk) { return disk.root == mount.place; });
        if (!listed.emplace(mount.device, mount.part).second) continue;
        std::string name = split_path(mount.place, PathStyle::posix).name;
        std::string label = mount.source.starts_with("/dev/") ? label_of(mount.source)
                            : is_network(mount)               ? mount.source
                                                              : std::string();
        if (label == name) label.clear();
        disks.push_back({mount.place, std::move(name), std::move(label)});
    }
    std::sort(disks.begin(), disks.end(),
              [](const Volume& a, const Volume& b) { return a.root < b.root; });
    return disks;
}

std::vector<Volume> mounted_volumes() {
    std::vector<Volume> volumes;
    const User user = current_user();
    if (!user.home.empty() && user.home != "/") volumes.push_back({user.home, "Home", user.name});
    volumes.push_back({"/", "System", ""});

    std::ostringstream table;
    table << std::ifstream(std::string(kMountTable)).rdbuf();
    for (Volume& disk : disks_among(table.str(), label_of_device)) {
        if (disk.root != user.home) volumes.push_back(std::move(disk));
    }
    return volumes;
}

}  // namespace zephyne
