#include "tests/support/memory_file_system.h"

#include "tests/support/memory_file_tree.h"

#include <stdexcept>

namespace zephyne {

class MemoryFileSystem::Reader final : public FolderReader {
  public:
    explicit Reader(std::shared_ptr<const Node> folder) : folder_(std::move(folder)) {}

    std::optional<FolderMember> next() override {
        while (next_ < folder_->members.size()) {
            member_ = folder_->members[next_++];
            if (member_->visibility == Visibility::hidden) continue;
            if (member_->is_folder) return FolderMember{MemberKind::folder, member_->name};
            if (member_->is_ordinary_file()) return FolderMember{{}, member_->name};
        }
        return std::nullopt;
    }

  private:
    std::shared_ptr<const Node> folder_;
    NodePtr member_;  // read last; keeps its name
    std::size_t next_ = 0;
};

MemoryFileSystem::MemoryFileSystem(PathStyle style, std::string current_folder)
    : style_(style), top_(std::make_shared<Node>()), current_folder_(std::move(current_folder)) {
    const bool absolute = style == PathStyle::posix ? current_folder_.starts_with('/')
                                                    : current_folder_.find(":\\") == 1;
    if (!absolute) throw std::logic_error("the current folder must be an absolute path");
    top_->is_folder = true;
    add_folder(current_folder_);
}

MemoryFileSystem::~MemoryFileSystem() = default;

// The names on the way to a path, the drive first; "" stands for the root of the posix style.
std::vector<std::string> MemoryFileSystem::parts_of(std::string_view path) const {
    if (path.empty()) return {};
    const char divider = separator(style_);
    const bool has_drive = style_ == PathStyle::windows && path.size() > 1 && path[1] == ':';
    std::vector<std::string> parts;
    if (has_drive) {
        parts.emplace_back(path.substr(0, 2));
        path.remove_prefix(2);
    } else if (path.starts_with(divider)) {
        parts.push_back(style_ == PathStyle::posix ? "" : current_folder_.substr(0, 2));
    } else {
        parts = parts_of(current_folder_);
    }
    while (!path.empty()) {
        const auto end = std::min(path.find(divider), path.size());
        const std::string part(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
        if (part.empty() || part == ".") continue;
        if (part != "..") {
            parts.push_back(part);
        } else if (parts.size() > 1) {
            parts.pop_back();
        }
    }
    return parts;
}

std::string MemoryFileSystem::path_of(const std::vector<std::string>& parts) const {
    if (parts.size() == 1) return parts.front() + separator(style_);
    std::string path = parts.front();
    for (std::size_t i = 1; i < parts.size(); ++i) path.append(1, separator(style_)) += parts[i];
    return path;
}

MemoryFileSystem::Node* MemoryFileSystem::exactly(std::string_view path) const {
    Node* node = top_.get();
    for (const std::string& part : parts_of(path)) {
        node = node->member(part);
        if (!node) return nullptr;
    }
    return node;
}

MemoryFileSystem::Node& MemoryFileSystem::must_exist(std::string_view path) const {
    if (Node* node = exactly(path)) return *node;
    throw std::logic_error("the test speaks of a file that it never added: " + std::string(path));
}

MemoryFileSystem::Node& MemoryFileSystem::folder_for(const std::vector<std::string>& parts) {
    Node* node = top_.get();
    for (const std::string& part : parts) {
        Node* next = node->member(part);
        node = next ? next : &node->add(part);
        node->is_folder = true;
    }
    return *node;
}

void MemoryFileSystem::add_file(std::string_view path, std::string contents, FileKind kind,
                                Visibility visibility) {
    auto parts = parts_of(path);
    const std::string name = parts.back();
    parts.pop_back();
    Node& folder = folder_for(parts);
    Node* there = folder.member(name);
    Node& file = there ? *there : folder.add(name);
    file.contents = std::move(contents);
    file.kind = kind;
    file.visibility = visibility;
}

void MemoryFileSystem::add_folder(std::string_view path, Visibility visibility) {
    folder_for(parts_of(path)).visibility = visibility;
}

void MemoryFileSystem::add_volume(std::string root, std::string name, std::string label) {
    add_folder(root);
    volumes_.push_back({std::move(root), std::move(name), std::move(label)});
}

void MemoryFileSystem::mount(std::string_view path) {
    folder_for(parts_of(path)).is_mount = true;
}

void MemoryFileSystem::add_second_view(std::string_view path, std::string_view of) {
    const Node& shown = must_exist(of);
    folder_for(parts_of(path)).view_of = &shown;
}

void MemoryFileSystem::remove(std::string_view path) {
    std::erase_if(volumes_, [&](const Volume& volume) { return volume.root == path; });
    const Node& gone = must_exist(path);
    gone.folder->drop(gone);
}

void MemoryFileSystem::set_fault(std::string_view path, Fault fault) {
    must_exist(path).fault = fault;
}

bool MemoryFileSystem::exists(std::string_view path) const {
    return exactly(path) != nullptr;
}

std::optional<std::string> MemoryFileSystem::contents(std::string_view path) const {
    const Node* node = exactly(path);
    if (!node || node->is_folder) return std::nullopt;
    return node->contents;
}

std::vector<Volume> MemoryFileSystem::volumes() const {
    if (!volumes_.empty()) return volumes_;
    const std::string drive = parts_of(current_folder_).front();
    return {{path_of({drive}), style_ == PathStyle::posix ? "System" : drive, ""}};
}

// What is found on the way to a path, the drive first and what the path names last.
FileResult<std::vector<MemoryFileSystem::Node*>> MemoryFileSystem::walk(
    const std::string& path) const {
    const auto not_found = file_error(FileErrorKind::not_found, "File not found");
    const auto parts = parts_of(path);
    if (parts.empty()) return not_found;
    std::vector<Node*> way;
    const Node* folder = top_.get();
    for (const std::string& part : parts) {
        if (!folder->is_folder || folder->fault == Fault::vanished) return path_not_found();
        if (folder->fault == Fault::denied) return permission_denied();
        Node* next = folder->member_in_any_case(part);
        if (!next) return &part == &parts.back() ? not_found : path_not_found();
        way.push_back(next);
        folder = next;
    }
    if (folder->fault == Fault::vanished || folder->kind == FileKind::dangling_link) {
        return not_found;
    }
    return way;
}

FileResult<MemoryFileSystem::Node*> MemoryFileSystem::find(const std::string& path) const {
    return walk(path).map([](const std::vector<Node*>& way) { return way.back(); });
}

FileResult<MemoryFileSystem::Node*> MemoryFileSystem::find_folder(const std::string& path) const {
    const auto found = find(path);
    if (!found && found.error().kind == FileErrorKind::permission_denied) return found;
    if (!found || !(*found)->is_folder) return path_not_found();
    return found;
}

FileResult<void> MemoryFileSystem::set_current_folder(const std::string& folder) {
    const auto found = find_folder(folder);
    if (!found) return tl::unexpected(found.error());
    current_folder_ = *resolve(folder);
    return {};
}

FileResult<std::vector<std::string>> MemoryFileSystem::list(const std::string& folder,
                                                            MemberKind wanted) const {
    const auto reader = read_folder(folder);
    if (!reader) return tl::unexpected(reader.error());
    std::vector<std::string> names;
    while (const auto member = (*reader)->next()) {
        if (member->kind == wanted) names.emplace_back(member->name);
    }
    return names;
}

FileResult<FolderIdentity> MemoryFileSystem::identify_folder(const std::string& folder) const {
    if (const auto found = find_folder(folder); !found) return tl::unexpected(found.error());
    const auto as_number = [](const Node* node) {
        return static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(node));
    };
    const auto way = *walk(folder);
    const Node* volume = way.front();
    for (const Node* node : way) volume = node->is_mount ? node : volume;
    return FolderIdentity{as_number(volume), as_number(&way.back()->real())};
}

FileResult<std::unique_ptr<FolderReader>> MemoryFileSystem::read_folder(
    const std::string& folder) const {
    const auto node = find_folder(folder);
    if (!node) return tl::unexpected(node.error());
    const Fault fault = (*node)->fault;
    if (fault == Fault::denied || fault == Fault::list_denied) return permission_denied();
    return std::make_unique<Reader>((*node)->real().shared_from_this());
}

FileResult<std::string> MemoryFileSystem::resolve(const std::string& path) const {
    return walk(path).map([this](const std::vector<Node*>& way) {
        std::vector<std::string> names;
        for (const Node* node : way) names.push_back(node->name);
        return path_of(names);
    });
}

FileResult<MemoryFileSystem::Node*> MemoryFileSystem::open_for_reading(
    const std::string& path) const {
    ++open_count_;
    const auto node = find(path);
    if (!node) return node;
    if (!(*node)->is_ordinary_file()) {
        return file_error(FileErrorKind::other, "Not an ordinary file");
    }
    if ((*node)->fault == Fault::denied) return permission_denied();
    if ((*node)->fault == Fault::held_open) {
        return file_error(FileErrorKind::already_open, "File already open");
    }
    return node;
}

FileResult<void> MemoryFileSystem::check_readable(const std::string& path) const {
    return open_for_reading(path).map([](const Node*) {});
}

FileResult<std::uint64_t> MemoryFileSystem::file_length(const std::string& path) const {
    return open_for_reading(path).map([](const Node* file) { return file->contents.size(); });
}

FileResult<std::string> MemoryFileSystem::read_file(const std::string& path,
                                                    std::size_t limit) const {
    return open_for_reading(path).map(
        [&](const Node* file) { return file->contents.substr(0, limit); });
}

}  // namespace zephyne
