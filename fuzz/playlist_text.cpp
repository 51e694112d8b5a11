// Playlists of any bytes, in both path styles: what was read is written and read again the same,
// and the two lists made of it are in step after everything that the editor does to them.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/controls/form.h"
#include "core/controls/list_box.h"
#include "core/playlist_entry.h"
#include "playlists/playlist_lists.h"
#include "playlists/playlist_text.h"

using namespace zephyne;

namespace {

struct NoEvents final : EventPump {
    void pump() override {}
    void wait() override {}
    void show() override {}
};

void must(bool holds) {
    if (!holds) std::abort();
}

void edit(const std::vector<std::string>& entry_lines, PathStyle style) {
    Form form({.name = "Lists"});
    ListBox names(form, ListOrder::by_text, {.name = "names"});
    ListBox lines(form, ListOrder::by_entry, {.name = "lines"}, split_entry_line);
    names.set_selecting(Selecting::extended);
    NoEvents events;
    PlaylistLists lists(names, lines, events);

    lists.add(entry_lines);
    must(lists.in_step() && lists.count() == entry_lines.size());
    const std::string written = playlist_text_of(lines.items());
    const PlaylistText again = read_playlist_text(written, style);
    must(again.state == PlaylistState::complete && again.entry_lines.size() == lists.count());
    for (std::size_t row = 0; row < lists.count(); ++row) {
        must(again.entry_lines[row] == lines.item(row).text);
    }

    lists.Killdupes();
    must(lists.in_step());
    for (std::size_t row = 0; row < names.count(); row += 2) names.click(row, ClickWith::ctrl);
    lists.remove_selected();
    must(lists.in_step() && names.selected_rows().empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (const PathStyle style : {PathStyle::posix, PathStyle::windows}) {
        const PlaylistText playlist = read_playlist_text(bytes, style);
        if (playlist.state != PlaylistState::wrong_header) edit(playlist.entry_lines, style);
    }
    return 0;
}
