#include "playlists/playlist_text.h"

#include "core/playlist_entry.h"
#include "core/text/utf8.h"

#include <algorithm>

namespace zephyne {
namespace {

constexpr std::string_view kHeader = "Zephyne Playlist";
constexpr std::string_view kLineEnd = "\r\n";

void skip_blanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
}

void skip_delimiter(std::string_view& text) {
    if (text.starts_with(',')) {
        text.remove_prefix(1);
    } else if (text.starts_with('\r') || text.starts_with('\n')) {
        take_line(text);
    }
}

// Takes the first field off the text: in quotes, or up to a comma or the end of the line.
std::string_view take_field(std::string_view& text) {
    skip_blanks(text);
    const bool quoted = text.starts_with('"');
    if (quoted) text.remove_prefix(1);
    const auto end = std::min(text.find_first_of(quoted ? "\"" : ",\r\n"), text.size());
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(end);
    if (quoted && !text.empty()) {
        text.remove_prefix(1);
        skip_blanks(text);
    }
    skip_delimiter(text);
    return field;
}

std::string entry_text(std::string_view line, PathStyle style) {
    const bool ours = style == PathStyle::posix && split_entry_line(line).second.starts_with('/');
    return ours ? std::string(line) : to_utf8(line);
}

}  // namespace

PlaylistText read_playlist_text(std::string_view bytes, PathStyle style) {
    PlaylistText playlist;
    bytes = past_byte_order_mark(bytes);
    if (bytes.empty()) return playlist;
    if (take_field(bytes) != kHeader) {
        playlist.state = PlaylistState::wrong_header;
        return playlist;
    }
    playlist.state = PlaylistState::damaged;
    while (!bytes.empty()) {
        const std::string_view line = take_line(bytes);
        if (line.find('|') == std::string_view::npos) return playlist;
        playlist.entry_lines.push_back(entry_text(line, style));
    }
    playlist.state = PlaylistState::complete;
    return playlist;
}

std::string playlist_text_of(const ListRows& entry_lines) {
    std::string bytes(kHeader);
    bytes += kLineEnd;
    for (const ListRow& line : entry_lines) bytes.append(line.text).append(kLineEnd);
    return bytes;
}

}  // namespace zephyne
