// A whole file system in memory, in either path style, with faults at the turn of a knob.
//
// It follows the rules of the port to the letter: a path is found as written, else by its one
// match without regard to case, folder by folder. Folders are listed in the order in which their
// members were added. Meant for tests; a hundred thousand files are no burden.
//
//     MemoryFileSystem files(PathStyle::posix, "/home/clara/music");
//     files.add_file("/home/clara/music/waltz.mid", waltz);
//     files.deny("/home/clara/secret");
#pragma once

#include "core/ports/file_system.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zephyne {

enum class FileKind { ordinary, pipe, dangling_link };
enum class Visibility { shown, hidden };

class MemoryFileSystem final : public FileSystem {
  public:
    // With the current folder, and as long as no other is added one volume: "/" or the drive of
    // the current folder.
    MemoryFileSystem(PathStyle style, std::string current_folder);
    ~MemoryFileSystem() override;

    // Building the world. Paths are absolute, or relative to the current folder, and taken
    // exactly as written; missing folders on the way are made. Adding a file that is there
    // replaces its contents.
    void add_file(std::string_view path, std::string contents = {},
                  FileKind kind = FileKind::ordinary, Visibility visibility = Visibility::shown);
    void add_folder(std::string_view path, Visibility visibility = Visibility::shown);
    void add_volume(std::string root, std::string name, std::string label = {});
    // What lies in this folder is on a volume of its own, which is no drive yet (see add_volume).
    void mount(std::string_view path);

    // The same folder in a second place, as a mount can show it; it may lie inside itself there.
    void add_second_view(std::string_view path, std::string_view of);
    void remove(std::string_view path);  // a file, a folder with all in it, or a volume

    // Looking at it. A path is taken exactly as written.
    bool exists(std::string_view path) const;
    std::optional<std::string> contents(std::string_view path) const;

    // Faults. Those of a path stay until allow(path).
    // deny: no reading, listing or writing. deny_listing: of a folder whose files can be opened.
    // deny_writing: of a file, or of a folder's members. hold_open: "File already open" on every
    // attempt to open it. vanish: still listed, but not there when it is opened.
    void deny(std::string_view path) { set_fault(path, Fault::denied); }
    void deny_listing(std::string_view path) { set_fault(path, Fault::list_denied); }
    void deny_writing(std::string_view path) { set_fault(path, Fault::write_denied); }
    void hold_open(std::string_view path) { set_fault(path, Fault::held_open); }
    void vanish(std::string_view path) { set_fault(path, Fault::vanished); }
    void allow(std::string_view path) { set_fault(path, Fault::none); }
    // The write of that number from now on, counted from 1; one fault only.
    void fail_write_number(int number) { writes_until_failure_ = number; }
    void fail_next_close() { close_fails_ = true; }

    // How many files were opened so far, for reading or writing, or tried to be.
    int open_count() const { return open_count_; }

    PathStyle path_style() const override { return style_; }
    std::string current_folder() const override { return current_folder_; }
    FileResult<void> set_current_folder(const std::string& folder) override;
    std::vector<Volume> volumes() const override;
    FileResult<std::vector<std::string>> list_files(const std::string& folder) const override {
        return list(folder, MemberKind::file);
    }
    FileResult<std::vector<std::string>> list_folders(const std::string& folder) const override {
        return list(folder, MemberKind::folder);
    }
    FileResult<FolderIdentity> identify_folder(const std::string& folder) const override;
    FileResult<std::unique_ptr<FolderReader>> read_folder(const std::string& folder) const override;
    FileResult<std::string> resolve(const std::string& path) const override;
    FileResult<void> check_readable(const std::string& path) const override;
    FileResult<std::uint64_t> file_length(const std::string& path) const override;
    FileResult<std::string> read_file(const std::string& path, std::size_t limit) const override;
    FileResult<std::unique_ptr<OutputFile>> create_file(const std::string& path) override;
    FileResult<void> replace_file(const std::string& path, std::string_view bytes) override;
    FileResult<void> remove_file(const std::string& path) override;
    FileResult<void> rename_file(const std::string& from, const std::string& to) override;
    FileResult<void> move_file(const std::string& from, const std::string& to) override;

  private:
    enum class Fault { none, denied, list_denied, write_denied, held_open, vanished };
    struct Node;
    class Output;
    class Reader;
    using NodePtr = std::shared_ptr<Node>;

    // Where a file is or is to be: its folder, and its name as written.
    struct Place {
        Node* folder;
        std::string name;
    };

    std::vector<std::string> parts_of(std::string_view path) const;
    std::string path_of(const std::vector<std::string>& parts) const;
    Node* exactly(std::string_view path) const;
    Node& must_exist(std::string_view path) const;
    Node& folder_for(const std::vector<std::string>& parts);
    void set_fault(std::string_view path, Fault fault);
    FileResult<std::vector<Node*>> walk(const std::string& path) const;
    FileResult<Node*> find(const std::string& path) const;
    FileResult<Node*> find_folder(const std::string& path) const;
    FileResult<Node*> open_for_reading(const std::string& path) const;
    FileResult<Place> place_of(const std::string& path) const;
    FileResult<void> write_fault();
    FileResult<void> close_fault();
    FileResult<void> give_place(Node& file, const std::string& to);
    FileResult<std::vector<std::string>> list(const std::string& folder, MemberKind wanted) const;

    PathStyle style_;
    NodePtr top_;  // holds the drives, in the posix style the root folder as the only one
    std::string current_folder_;
    std::vector<Volume> volumes_;
    int writes_until_failure_ = 0;
    bool close_fails_ = false;
    mutable int open_count_ = 0;
};

}  // namespace zephyne
