#include "playlists/drive_search.h"

#include "core/text/key_sort.h"
#include "core/text/letter_case.h"
#include "engine/listed_songs.h"

#include <utility>

namespace zephyne {

DriveSearch::DriveSearch(const FileSystem& files, const Settings& settings, GoesOn goes_on)
    : files_(files), settings_(settings), goes_on_(std::move(goes_on)) {}

bool DriveSearch::run(const std::string& root) {
    const auto identity = files_.identify_folder(root);
    if (!identity) return true;
    volume_ = identity->volume;
    if (!visit(root) || !queue_subfolders(root, SearchStep::root_folder)) return false;
    while (!queue_.empty()) {
        const std::string folder = std::move(queue_.front());
        queue_.pop_front();
        if (!visit(folder) || !queue_subfolders(folder, SearchStep::other)) return false;
    }
    return true;
}

bool DriveSearch::visit(const std::string& folder) {
    if (!goes_on_(SearchStep::other)) return false;
    if (!is_new(folder)) return true;
    const auto reader = files_.read_folder(folder);
    if (!reader) return true;
    while (const auto member = (*reader)->next()) {
        if (member->kind == MemberKind::folder) {
            subfolders_.emplace_back(member->name);
            if (!goes_on_(SearchStep::other)) return false;
        } else {
            if (!goes_on_(SearchStep::file)) return false;
            take(member->name, folder);
        }
    }
    return true;
}

bool DriveSearch::is_new(const std::string& folder) {
    const auto identity = files_.identify_folder(folder);
    return identity && identity->volume == volume_ && visited_.insert(identity->number).second;
}

void DriveSearch::take(std::string_view file, const std::string& folder) {
    if (!is_listed(file, settings_)) return;
    std::string with_end = with_separator(folder, files_.path_style());
    if (found_.folders.empty() || found_.folders.back() != with_end) {
        found_.folders.push_back(std::move(with_end));
    }
    found_.songs.push_back({std::string(file), found_.folders.size() - 1});
}

bool DriveSearch::queue_subfolders(const std::string& folder, SearchStep step) {
    KeySort sort(subfolders_.size());
    for (const std::string& name : subfolders_) {
        append_collation_key(sort.bytes(), name);
        sort.close_key();
    }
    for (const std::uint32_t index : sort.order()) {
        if (step == SearchStep::root_folder && !goes_on_(step)) return false;
        queue_.push_back(joined(folder, subfolders_[index], files_.path_style()));
    }
    subfolders_.clear();
    return true;
}

}  // namespace zephyne
