// Files that are written, replaced, removed, renamed and moved in memory.
#include "tests/support/memory_file_tree.h"

namespace zephyne {

class MemoryFileSystem::Output final : public OutputFile {
  public:
    Output(MemoryFileSystem& files, NodePtr node) : files_(files), node_(std::move(node)) {}

    FileResult<void> write(std::string_view bytes) override {
        const auto written = files_.write_fault();
        if (written) node_->contents.append(bytes);
        return written;
    }
    FileResult<void> close() override { return files_.close_fault(); }

  private:
    MemoryFileSystem& files_;
    NodePtr node_;  // a removed file can still be written to, as on a real disk
};

FileResult<void> MemoryFileSystem::write_fault() {
    if (writes_until_failure_ > 0 && --writes_until_failure_ == 0) {
        return file_error(FileErrorKind::other, "Disk full");
    }
    return {};
}

FileResult<void> MemoryFileSystem::close_fault() {
    if (!std::exchange(close_fails_, false)) return {};
    return file_error(FileErrorKind::other, "Disk full");
}

FileResult<MemoryFileSystem::Place> MemoryFileSystem::place_of(const std::string& path) const {
    auto parts = parts_of(path);
    if (parts.size() < 2) return path_not_found();
    const std::string name = parts.back();
    parts.pop_back();
    const auto folder = find_folder(path_of(parts));
    if (!folder) return tl::unexpected(folder.error());
    if ((*folder)->fault == Fault::denied) return permission_denied();
    return Place{*folder, name};
}

FileResult<std::unique_ptr<OutputFile>> MemoryFileSystem::create_file(const std::string& path) {
    const auto place = place_of(path);
    if (!place) return tl::unexpected(place.error());
    Node* file = place->folder->member_in_any_case(place->name);
    const auto opened = open_for_reading(path);
    if ((file ? file : place->folder)->fault == Fault::write_denied) return permission_denied();
    if (file && !opened) return tl::unexpected(opened.error());
    if (!file) file = &place->folder->add(place->name);
    file->contents.clear();
    return std::make_unique<Output>(*this, file->shared_from_this());
}

FileResult<void> MemoryFileSystem::replace_file(const std::string& path, std::string_view bytes) {
    const auto place = place_of(path);
    if (!place) return tl::unexpected(place.error());
    Node* file = place->folder->member(place->name);
    if (!place->folder->may_change() || (file && !file->may_change())) return permission_denied();
    if (file && !file->is_ordinary_file()) {
        return file_error(FileErrorKind::other, "Not an ordinary file");
    }
    if (auto written = write_fault(); !written) return written;
    if (auto closed = close_fault(); !closed) return closed;
    if (!file) file = &place->folder->add(place->name);
    file->contents = bytes;
    return {};
}

FileResult<void> MemoryFileSystem::remove_file(const std::string& path) {
    const auto file = open_for_reading(path);
    if (!file) return tl::unexpected(file.error());
    Node& folder = *(*file)->folder;
    if (!(*file)->may_change() || !folder.may_change()) return permission_denied();
    folder.drop(**file);
    return {};
}

// Puts a file where it is to be, under the name as written.
FileResult<void> MemoryFileSystem::give_place(Node& file, const std::string& to) {
    const auto place = place_of(to);
    if (!place) return tl::unexpected(place.error());
    if (!file.folder->may_change() || !place->folder->may_change()) return permission_denied();
    const Node* there = place->folder->member_in_any_case(place->name);
    if (there && there != &file) {
        return file_error(FileErrorKind::already_exists, "File already exists");
    }
    const NodePtr kept = file.shared_from_this();
    file.folder->drop(file);
    place->folder->adopt(kept, place->name);
    return {};
}

FileResult<void> MemoryFileSystem::rename_file(const std::string& from, const std::string& to) {
    return open_for_reading(from).and_then([&](Node* file) { return give_place(*file, to); });
}

FileResult<void> MemoryFileSystem::move_file(const std::string& from, const std::string& to) {
    const auto file = open_for_reading(from);
    if (!file) return tl::unexpected(file.error());
    const auto there = find(to);
    if (there && *there == *file) return permission_denied();
    // The volume whose root is the longest beginning of the path.
    const auto volume_of = [this](const std::string& path) {
        std::string longest;
        for (const Volume& volume : volumes()) {
            const bool longer = volume.root.size() > longest.size();
            if (longer && path.starts_with(volume.root)) longest = volume.root;
        }
        return longest;
    };
    if (volume_of(from) != volume_of(to)) {
        if (auto copied = write_fault(); !copied) return copied;
        if ((*file)->fault == Fault::write_denied) return permission_denied();
    }
    return give_place(**file, to);
}

}  // namespace zephyne
