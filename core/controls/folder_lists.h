// The list of drives and the list of folders, which look at the file system by themselves.
#pragma once

#include "core/controls/control.h"
#include "core/ports/file_system.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zephyne {

// The volume of a path: the one with the longest root that the path begins with.
std::optional<std::size_t> volume_of(const std::vector<Volume>& volumes, const std::string& path,
                                     PathStyle style);

// All volumes, one of them chosen.
class DriveList final : public Control {
  public:
    DriveList(Form& form, const FileSystem& files, const ControlDesign& design);

    const std::vector<Volume>& volumes() const { return volumes_; }
    std::size_t selected() const { return selected_; }
    const Volume& drive() const { return volumes_[selected_]; }

    // Chooses the drive of a path; fails (nothing changes) when no volume holds it. Raises
    // on_change when it is another drive.
    FileResult<void> set_drive_of(const std::string& path);

    // Shows the drive of a path, silently.
    void follow(const std::string& path);

    // The user opened the list (the volumes are looked up anew), and chose one.
    void refresh();
    void choose(std::size_t index);
    std::function<void()> on_change;

  private:
    const FileSystem& files_;
    std::vector<Volume> volumes_;
    std::size_t selected_ = 0;
};

// One row of the folder list: the folders above the current one, the current one, and those in it.
struct FolderRow {
    std::string text;
    std::string path;
    int depth = 0;
};

// The current folder in its surroundings.
class DirList final : public Control {
  public:
    // Starts at the file system's current folder.
    DirList(Form& form, const FileSystem& files, const ControlDesign& design);

    // Without a separator at its end, except for a root.
    const std::string& path() const { return path_; }

    // Moves to a folder; fails (nothing changes) when it cannot be read. Raises on_change when it
    // is another folder.
    FileResult<void> set_path(const std::string& path);

    // Reads the folders in the current one anew.
    void refresh();

    const std::vector<FolderRow>& rows() const { return rows_; }
    std::size_t current_row() const { return current_row_; }
    std::size_t selected() const { return selected_; }  // a row that the user has highlighted

    // The user highlighted a row, or opened it (double click, Enter).
    void select(std::size_t row);
    void open(std::size_t row);
    std::function<void()> on_change;

  private:
    void build_rows(std::vector<std::string> folders);

    const FileSystem& files_;
    std::string path_;
    std::vector<FolderRow> rows_;
    std::size_t current_row_ = 0;
    std::size_t selected_ = 0;
};

}  // namespace zephyne
