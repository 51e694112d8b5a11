#include "playlists/drive_mapping.h"

#include "core/playlist_entry.h"
#include "playlists/playlist_lists.h"

#include <algorithm>
#include <utility>

namespace zephyne {
namespace {

// The letter of a folder as "C:\MIDI", in upper case; nothing for other folders.
std::optional<char> drive_letter(std::string_view folder) {
    if (folder.size() < 2 || folder[1] != ':') return std::nullopt;
    const char letter = folder[0];
    if (letter >= 'a' && letter <= 'z') return static_cast<char>(letter - 'a' + 'A');
    return letter >= 'A' && letter <= 'Z' ? std::optional(letter) : std::nullopt;
}

}  // namespace

std::optional<std::string> DriveMapping::find(std::string_view folder) const {
    const auto places = places_.find(drive_letter(folder).value_or('\0'));
    if (places == places_.end()) return std::nullopt;
    std::string below(folder.substr(2));
    std::replace(below.begin(), below.end(), '\\', separator(PathStyle::posix));
    for (const std::string& place : places->second) {
        if (const auto found = files_.resolve(joined(place, below, PathStyle::posix))) {
            return with_separator(*found, PathStyle::posix);
        }
    }
    return std::nullopt;
}

void DriveMapping::find_all(FolderMap& folders) const {
    for (auto& [folder, found] : folders) {
        if (!found) found = find(folder);
    }
}

void DriveMapping::ask(const std::string& drives) {
    std::string named;
    for (const char drive : drives) named += (named.empty() ? "" : ", ") + std::string{drive, ':'};
    const auto place =
        dialogs_.choose_folder(drives.size() == 1 ? "Where is drive " + named + " of this playlist?"
                                                  : "Where are drives " + named + "?");
    if (!place) return;
    for (const char drive : drives) places_[drive].push_back(*place);
}

void DriveMapping::apply(std::vector<std::string>& entry_lines) {
    if (files_.path_style() != PathStyle::posix) return;
    FolderMap folders;
    for (const std::string& line : entry_lines) {
        const std::string_view folder = split_entry_line(line).second;
        if (drive_letter(folder)) folders.try_emplace(std::string(folder));
    }
    if (folders.empty()) return;
    find_all(folders);

    std::map<char, bool> known;
    for (const auto& [folder, found] : folders) known[*drive_letter(folder)] |= found.has_value();
    std::string unknown;
    for (const auto& [drive, is_known] : known) {
        if (!is_known) unknown += drive;
    }
    if (!unknown.empty()) {
        ask(unknown);
        find_all(folders);
    }
    for (std::string& line : entry_lines) {
        const auto [name, folder] = split_entry_line(line);
        const auto entry = folders.find(folder);
        if (entry == folders.end() || !entry->second) continue;
        std::string mapped = entry_line(name, *entry->second);
        if (!mapped.empty()) line = std::move(mapped);
    }
}

}  // namespace zephyne
