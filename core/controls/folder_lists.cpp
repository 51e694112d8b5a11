#include "core/controls/folder_lists.h"

#include "core/text/key_sort.h"
#include "core/text/letter_case.h"

#include <algorithm>
#include <utility>

namespace zephyne {
namespace {

bool lies_in(const std::string& path, const std::string& root, PathStyle style) {
    if (path.empty()) return false;
    if (style == PathStyle::windows) {
        return starts_with_ignoring_case(with_separator(path, style), with_separator(root, style));
    }
    return with_separator(path, style).starts_with(with_separator(root, style));
}

}  // namespace

std::optional<std::size_t> volume_of(const std::vector<Volume>& volumes, const std::string& path,
                                     PathStyle style) {
    std::optional<std::size_t> best;
    for (std::size_t i = 0; i < volumes.size(); ++i) {
        if (!lies_in(path, volumes[i].root, style)) continue;
        if (!best || volumes[i].root.size() > volumes[*best].root.size()) best = i;
    }
    return best;
}

DriveList::DriveList(Form& form, const FileSystem& files, const ControlDesign& design)
    : Control(form, ControlKind::drive_list, design), files_(files), volumes_(files.volumes()) {
    selected_ = volume_of(volumes_, files.current_folder(), files.path_style()).value_or(0);
}

FileResult<void> DriveList::set_drive_of(const std::string& path) {
    refresh();
    const auto index = volume_of(volumes_, path, files_.path_style());
    if (!index) {
        return tl::unexpected(FileError{FileErrorKind::not_found, "Device unavailable"});
    }
    if (*index != selected_) {
        selected_ = *index;
        changed(Property::selection);
        if (on_change) on_change();
    }
    return {};
}

void DriveList::follow(const std::string& path) {
    const auto index = volume_of(volumes_, path, files_.path_style());
    if (!index || *index == selected_) return;
    selected_ = *index;
    changed(Property::selection);
}

void DriveList::refresh() {
    auto volumes = files_.volumes();
    if (volumes == volumes_) return;
    const std::string root = drive().root;
    volumes_ = std::move(volumes);
    const auto same = std::find_if(volumes_.begin(), volumes_.end(),
                                   [&](const Volume& volume) { return volume.root == root; });
    selected_ = same == volumes_.end() ? 0 : static_cast<std::size_t>(same - volumes_.begin());
    changed(Property::items);
}

void DriveList::choose(std::size_t index) {
    if (index >= volumes_.size() || index == selected_ || !shown() || !usable()) return;
    selected_ = index;
    changed(Property::selection);
    if (on_change) on_change();
}

DirList::DirList(Form& form, const FileSystem& files, const ControlDesign& design)
    : Control(form, ControlKind::dir_list, design), files_(files), path_(files.current_folder()) {
    refresh();
}

FileResult<void> DirList::set_path(const std::string& path) {
    auto resolved = files_.resolve(path);
    if (!resolved) return tl::unexpected(resolved.error());
    auto folders = files_.list_folders(*resolved);
    if (!folders) return tl::unexpected(folders.error());
    const bool moved = *resolved != path_;
    path_ = std::move(*resolved);
    build_rows(std::move(*folders));
    if (moved && on_change) on_change();
    return {};
}

void DirList::refresh() {
    build_rows(files_.list_folders(path_).value_or(std::vector<std::string>()));
}

void DirList::build_rows(std::vector<std::string> folders) {
    const PathStyle style = files_.path_style();
    rows_.clear();

    const auto volumes = files_.volumes();
    const auto volume = volume_of(volumes, path_, style);
    std::string above = volume ? volumes[*volume].root : std::string();
    rows_.push_back({volume ? volumes[*volume].name : path_, volume ? above : path_, 0});

    std::string_view below = path_;
    below.remove_prefix(std::min(below.size(), volume ? above.size() : path_.size()));
    while (!below.empty()) {
        if (below.front() == separator(style)) {
            below.remove_prefix(1);
            continue;
        }
        const std::string name(below.substr(0, below.find(separator(style))));
        below.remove_prefix(name.size());
        above = joined(above, name, style);
        rows_.push_back({name, above, static_cast<int>(rows_.size())});
    }
    current_row_ = selected_ = rows_.size() - 1;

    KeySort sort(folders.size());
    for (const std::string& folder : folders) {
        append_collation_key(sort.bytes(), folder);
        sort.close_key();
    }
    const int depth = static_cast<int>(rows_.size());
    for (const std::uint32_t index : sort.order()) {
        std::string path = joined(path_, folders[index], style);
        rows_.push_back({std::move(folders[index]), std::move(path), depth});
    }
    changed(Property::items);
}

void DirList::select(std::size_t row) {
    if (row >= rows_.size() || row == selected_ || !shown() || !usable()) return;
    selected_ = row;
    changed(Property::selection);
}

void DirList::open(std::size_t row) {
    if (row >= rows_.size() || !shown() || !usable()) return;
    select(row);
    const std::string path = rows_[row].path;
    if (!set_path(path)) refresh();
}

}  // namespace zephyne
