#include "core/playlist_entry.h"

namespace zephyne {
namespace {

bool begins_with_root(std::string_view folder) {
    if (folder.empty()) return false;
    if (folder[0] == '/' || folder[0] == '\\') return true;
    const char letter = folder[0];
    const bool is_letter = (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
    return is_letter && folder.size() >= 2 && folder[1] == ':';
}

}  // namespace

std::pair<std::string_view, std::string_view> split_entry_line(std::string_view line) {
    auto bar = line.find('|');
    if (bar == std::string_view::npos) return {line, {}};
    for (auto at = bar; at != std::string_view::npos; at = line.find('|', at + 1)) {
        if (!begins_with_root(line.substr(at + 1))) continue;
        bar = at;
        break;
    }
    return {line.substr(0, bar), line.substr(bar + 1)};
}

}  // namespace zephyne
