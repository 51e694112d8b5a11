// The playlist as the windows hold it: one list of names, which the user sees, and one of entry
// lines ("name|folder"), row by row in step. In the main window these are File1 and List3, in the
// editor List2 and again List3.
//
// Both lists stand in the one order of the program, the lines by name and then by folder. Every
// procedure changes both, is linear or n log n in their length, and lets the picture go on between
// its steps where the lists are long; nothing else may happen there. User-interface thread only.
#pragma once

#include "core/controls/list_box.h"
#include "core/scheduler.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zephyne {

// The entry line of a file. Empty when no line can hold it: its name or folder has a line end in
// it, or a "|" at which the line would be split in the wrong place. The folder ends in a separator.
std::string entry_line(std::string_view name, std::string_view folder);

// How entry lines name the songs of one folder, given as its list shows them: as shown, but by the
// real name where two files look alike in the list, because only that leads to either of them. Row
// by row; the names belong to the rows.
std::vector<std::string_view> entry_names(const ListRows& songs_of_folder);

class PlaylistLists {
  public:
    // `lines` must be in entry order (ListOrder::by_entry), `names` by text. Both outlive this.
    PlaylistLists(ListBox& names, ListBox& lines, EventPump& events)
        : names_(names), lines_(lines), events_(events) {}

    std::size_t count() const { return lines_.count(); }
    bool empty() const { return lines_.empty(); }
    const ListBox& names() const { return names_; }
    const ListBox& lines() const { return lines_; }

    void clear();

    // Adds entry lines, each to its place. Deselects all names.
    void add(const std::vector<std::string>& entry_lines);

    // Of entries with exactly the same name only the first stays, the one whose folder sorts
    // first.
    void Killdupes();

    // Removes the entries whose names are selected.
    void remove_selected();

    // Whether every name is that of the line beside it.
    bool in_step() const;

  private:
    void remove(const std::vector<std::size_t>& ascending);
    void show_progress();

    ListBox& names_;
    ListBox& lines_;
    EventPump& events_;
};

}  // namespace zephyne
