// What a MemoryFileSystem is made of: the files and folders of its tree, and its errors.
#pragma once

#include "core/text/letter_case.h"
#include "tests/support/memory_file_system.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace zephyne {

inline tl::unexpected<FileError> file_error(FileErrorKind kind, std::string description) {
    return tl::unexpected(FileError{kind, std::move(description)});
}
inline tl::unexpected<FileError> path_not_found() {
    return file_error(FileErrorKind::not_found, "Path not found");
}
inline tl::unexpected<FileError> permission_denied() {
    return file_error(FileErrorKind::permission_denied, "Permission denied");
}

struct MemoryFileSystem::Node : std::enable_shared_from_this<MemoryFileSystem::Node> {
    std::string name;
    Node* folder = nullptr;  // in which it lies
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
    bool is_ordinary_file() const { return !is_folder && kind == FileKind::ordinary; }
    bool may_change() const { return fault != Fault::denied && fault != Fault::write_denied; }

    Node* member(const std::string& member_name) const {
        const auto& names = real().by_name;
        const auto found = names.find(member_name);
        return found == names.end() ? nullptr : found->second;
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
        node->folder = this;
        by_name[node->name] = node.get();
        members.push_back(node);
        return *node;
    }

    void drop(const Node& gone) {
        by_name.erase(gone.name);
        std::erase_if(members, [&](const NodePtr& member) { return member.get() == &gone; });
    }
};

}  // namespace zephyne
