#include "tests/support/memory_file_system.h"

#include "core/text/letter_case.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_map>
#include <utility>

namespace zephyne {
namespace {

enum class Fault { none, denied, list_denied, write_denied, held_open, vanished };

tl::unexpected<FileError> error(FileErrorKind kind, std::string description) {
    return tl::unexpected(FileError{kind, std::move(description)});
}
tl::unexpected<FileError> not_found(std::string description = "File not found") {
    return error(FileErrorKind::not_found, std::move(description));
}
tl::unexpected<FileError> permission_denied() {
    return error(FileErrorKind::permission_denied, "Permission denied");
}

}  // namespace

struct MemoryFileSystem::Node : std::enable_shared_from_this<MemoryFileSystem::Node> {
    std::string name;
    bool is_folder = false;
    FileKind kind = FileKind::ordinary;
    Visibility visibility = Visibility::shown;
    Fault fault = Fault::none;
    std::string contents;
    std::vector<NodePtr> members;  // in the order in which they were added
    std::unordered_map<std::string, Node*> by_name;
    bool is_mount = false;
    const Node* view_of = nullptr;  // the folder that this one shows

    const Node& real() const { return view_of ? *view_of : *this; }

    Node* member(const std::string& member_name) const {
        if (view_of) return view_of->member(member_name);
        const auto found = by_name.find(member_name);
        return found == by_name.end() ? nullptr : found->second;
    }

    // The member of that name, or the only one whose name differs from it in case alone.
    Node* member_in_any_case(const std::string& member_name) const {
        if (Node* found = member(member_name)) return found;
        Node* match = nullptr;
        for (const NodePtr& candidate : real().members) {
            if (!equal_ignoring_case(candidate->name, member_name)) continue;
            if (match) return nullptr;
            match = candidate.get();
        }
        return match;
    }

    Node& add(std::string member_name) {
        return adopt(std::make_shared<Node>(), std::move(member_name));
    }

    Node& adopt(const NodePtr& node, std::string member_name) {
        node->name = std::move(member_name);
        by_name[node->name] = node.get();
        members.push_back(node);
        return *node;
    }

    void drop(const Node& gone) {
        by_name.erase(gone.name);
        std::erase_if(members, [&](const NodePtr& member) { return member.get() == &gone; });
    }
};

class MemoryFileSystem::Output final : public OutputFile {
  public:
    Output(MemoryFileSystem& files, NodePtr node) : files_(files), node_(std::move(node)) {}

    FileResult<void> write(std::string_view bytes) override {
        const auto written = files_.write_fault();
        if (written) node_->contents.append(bytes);
        return written;
    }

    FileResult<void> close() override {
        if (std::exchange(files_.close_fails_, false)) {
            return error(FileErrorKind::other, "Disk full");
        }
        return {};
    }

  private:
    MemoryFileSystem& files_;
    NodePtr node_;  // a removed file can still be written to, as on a real disk
};

class MemoryFileSystem::Reader final : public FolderReader {
  public:
    explicit Reader(std::shared_ptr<const Node> folder) : folder_(std::move(folder)) {}

    std::optional<FolderMember> next() override {
        while (next_ < folder_->members.size()) {
            member_ = folder_->members[next_++];
            if (member_->visibility == Visibility::hidden) continue;
            if (member_->is_folder) return FolderMember{MemberKind::folder, member_->name};
            if (member_->kind == FileKind::ordinary) return FolderMember{{}, member_->name};
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
    auto parts = parts_of(path);
    parts.pop_back();
    folder_for(parts).drop(gone);
}

FileResult<void> MemoryFileSystem::set_current_folder(const std::string& folder) {
    const auto real = resolve(folder);
    if (!real) return tl::unexpected(real.error());
    if (!(*find(*real))->is_folder) return not_found("Path not found");
    current_folder_ = *real;
    return {};
}

bool MemoryFileSystem::exists(std::string_view path) const {
    return exactly(path) != nullptr;
}

std::optional<std::string> MemoryFileSystem::contents(std::string_view path) const {
    const Node* node = exactly(path);
    if (!node || node->is_folder) return std::nullopt;
    return node->contents;
}

void MemoryFileSystem::deny(std::string_view path) {
    must_exist(path).fault = Fault::denied;
}
void MemoryFileSystem::deny_listing(std::string_view path) {
    must_exist(path).fault = Fault::list_denied;
}
void MemoryFileSystem::deny_writing(std::string_view path) {
    must_exist(path).fault = Fault::write_denied;
}
void MemoryFileSystem::hold_open(std::string_view path) {
    must_exist(path).fault = Fault::held_open;
}
void MemoryFileSystem::vanish(std::string_view path) {
    must_exist(path).fault = Fault::vanished;
}
void MemoryFileSystem::allow(std::string_view path) {
    must_exist(path).fault = Fault::none;
}
void MemoryFileSystem::fail_write_number(int number) {
    writes_until_failure_ = number;
}
void MemoryFileSystem::fail_next_close() {
    close_fails_ = true;
}

std::vector<Volume> MemoryFileSystem::volumes() const {
    if (!volumes_.empty()) return volumes_;
    const std::string drive = parts_of(current_folder_).front();
    return {{path_of({drive}), style_ == PathStyle::posix ? "System" : drive, ""}};
}

FileResult<MemoryFileSystem::Node*> MemoryFileSystem::find(const std::string& path) const {
    Node* node = top_.get();
    const auto parts = path.empty() ? std::vector<std::string>{} : parts_of(path);
    if (parts.empty()) return not_found();
    for (const std::string& part : parts) {
        if (!node->is_folder || node->fault == Fault::vanished) return not_found("Path not found");
        if (node->fault == Fault::denied) return permission_denied();
        const bool is_last = &part == &parts.back();
        node = node->member_in_any_case(part);
        if (!node) return not_found(is_last ? "File not found" : "Path not found");
    }
    if (node->fault == Fault::vanished) return not_found();
    if (!node->is_folder && node->kind == FileKind::dangling_link) return not_found();
    return node;
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

FileResult<std::vector<std::string>> MemoryFileSystem::list_files(const std::string& folder) const {
    return list(folder, MemberKind::file);
}

FileResult<std::vector<std::string>> MemoryFileSystem::list_folders(
    const std::string& folder) const {
    return list(folder, MemberKind::folder);
}

FileResult<FolderIdentity> MemoryFileSystem::identify_folder(const std::string& folder) const {
    const auto found = find(folder);
    if (!found) return tl::unexpected(found.error());
    if (!(*found)->is_folder) return not_found("Path not found");
    const auto as_number = [](const Node* node) {
        return static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(node));
    };
    const Node* node = top_.get();
    const Node* volume = nullptr;
    for (const std::string& part : parts_of(folder)) {
        node = node->member_in_any_case(part);
        if (!volume || node->is_mount) volume = node;
    }
    return FolderIdentity{as_number(volume), as_number(&node->real())};
}

FileResult<std::unique_ptr<FolderReader>> MemoryFileSystem::read_folder(
    const std::string& folder) const {
    const auto node = find(folder);
    if (!node) return tl::unexpected(node.error());
    if (!(*node)->is_folder) return not_found("Path not found");
    const Fault fault = (*node)->fault;
    if (fault == Fault::denied || fault == Fault::list_denied) return permission_denied();
    return std::make_unique<Reader>((*node)->real().shared_from_this());
}

FileResult<std::string> MemoryFileSystem::resolve(const std::string& path) const {
    const auto found = find(path);
    if (!found) return tl::unexpected(found.error());
    auto parts = parts_of(path);
    const Node* node = top_.get();
    for (std::string& part : parts) {
        node = node->member_in_any_case(part);
        part = node->name;
    }
    return path_of(parts);
}

FileResult<MemoryFileSystem::Node*> MemoryFileSystem::open_for_reading(
    const std::string& path) const {
    ++open_count_;
    const auto node = find(path);
    if (!node) return node;
    if ((*node)->is_folder || (*node)->kind != FileKind::ordinary) {
        return error(FileErrorKind::other, "Not an ordinary file");
    }
    if ((*node)->fault == Fault::denied) return permission_denied();
    if ((*node)->fault == Fault::held_open) {
        return error(FileErrorKind::already_open, "File already open");
    }
    return node;
}

FileResult<void> MemoryFileSystem::check_readable(const std::string& path) const {
    const auto node = open_for_reading(path);
    if (!node) return tl::unexpected(node.error());
    return {};
}

FileResult<std::uint64_t> MemoryFileSystem::file_length(const std::string& path) const {
    const auto node = open_for_reading(path);
    if (!node) return tl::unexpected(node.error());
    return (*node)->contents.size();
}

FileResult<std::string> MemoryFileSystem::read_file(const std::string& path,
                                                    std::size_t limit) const {
    const auto node = open_for_reading(path);
    if (!node) return tl::unexpected(node.error());
    return (*node)->contents.substr(0, limit);
}

FileResult<std::unique_ptr<OutputFile>> MemoryFileSystem::create_file(const std::string& path) {
    auto parts = path.empty() ? std::vector<std::string>{} : parts_of(path);
    if (parts.size() < 2) return not_found("Path not found");
    const std::string name = parts.back();
    parts.pop_back();
    const auto folder = find(path_of(parts));
    if (!folder && folder.error().kind == FileErrorKind::permission_denied)
        return permission_denied();
    if (!folder || !(*folder)->is_folder) return not_found("Path not found");
    if ((*folder)->fault == Fault::denied) return permission_denied();

    Node* file = (*folder)->member_in_any_case(name);
    if (file) {
        const auto opened = open_for_reading(path_of(parts) + separator(style_) + name);
        if (file->fault == Fault::write_denied) return permission_denied();
        if (!opened) return tl::unexpected(opened.error());
        file->contents.clear();
    } else {
        ++open_count_;
        if ((*folder)->fault == Fault::write_denied) return permission_denied();
        file = &(*folder)->add(name);
    }
    return std::make_unique<Output>(*this, file->shared_from_this());
}

FileResult<void> MemoryFileSystem::write_fault() {
    if (writes_until_failure_ > 0 && --writes_until_failure_ == 0) {
        return error(FileErrorKind::other, "Disk full");
    }
    return {};
}

FileResult<void> MemoryFileSystem::replace_file(const std::string& path, std::string_view bytes) {
    const auto old = find(path);
    if (old && (*old)->fault == Fault::write_denied) return permission_denied();
    const std::string before = old ? (*old)->contents : "";
    auto file = create_file(path);
    if (!file) return tl::unexpected(file.error());
    auto done = (*file)->write(bytes);
    if (done) done = (*file)->close();
    if (done) return {};
    if (old) {
        (*old)->contents = before;
    } else {
        (void)remove_file(path);
    }
    return done;
}

MemoryFileSystem::Node& MemoryFileSystem::folder_of(const Node& member) const {
    const auto holds = [&](const auto& self, Node& folder) -> Node* {
        for (const NodePtr& candidate : folder.members) {
            if (candidate.get() == &member) return &folder;
            if (Node* found = self(self, *candidate)) return found;
        }
        return nullptr;
    };
    return *holds(holds, *top_);
}

FileResult<void> MemoryFileSystem::remove_file(const std::string& path) {
    const auto file = open_for_reading(path);
    if (!file) return tl::unexpected(file.error());
    Node& folder = folder_of(**file);
    if ((*file)->fault == Fault::write_denied || folder.fault == Fault::write_denied) {
        return permission_denied();
    }
    folder.drop(**file);
    return {};
}

// Puts a file where it is to be, under the name as written.
FileResult<void> MemoryFileSystem::give_place(Node& file, const std::string& to) {
    auto parts = to.empty() ? std::vector<std::string>{} : parts_of(to);
    if (parts.size() < 2) return not_found("Path not found");
    const std::string name = parts.back();
    parts.pop_back();
    const auto target = find(path_of(parts));
    if (!target || !(*target)->is_folder) {
        return target ? not_found("Path not found") : tl::unexpected(target.error());
    }
    Node& source = folder_of(file);
    for (const Node* folder : {&source, *target}) {
        if (folder->fault == Fault::denied || folder->fault == Fault::write_denied) {
            return permission_denied();
        }
    }
    const Node* there = (*target)->member_in_any_case(name);
    if (there && there != &file) return error(FileErrorKind::already_exists, "File already exists");
    const NodePtr kept = file.shared_from_this();
    source.drop(file);
    (*target)->adopt(kept, name);
    return {};
}

FileResult<void> MemoryFileSystem::rename_file(const std::string& from, const std::string& to) {
    const auto file = open_for_reading(from);
    if (!file) return tl::unexpected(file.error());
    return give_place(**file, to);
}

// The volume whose root is the longest beginning of the path.
std::string MemoryFileSystem::volume_of(const std::string& path) const {
    std::string longest;
    for (const Volume& volume : volumes()) {
        if (path.starts_with(volume.root) && volume.root.size() > longest.size()) {
            longest = volume.root;
        }
    }
    return longest;
}

FileResult<void> MemoryFileSystem::move_file(const std::string& from, const std::string& to) {
    const auto file = open_for_reading(from);
    if (!file) return tl::unexpected(file.error());
    const auto there = find(to);
    if (there && *there == *file) return permission_denied();
    if (volume_of(from) != volume_of(to)) {
        if (auto copied = write_fault(); !copied) return copied;
        if ((*file)->fault == Fault::write_denied) return permission_denied();
    }
    return give_place(**file, to);
}

}  // namespace zephyne
