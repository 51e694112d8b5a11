// A list of texts with one selected row or several, kept in order or as filled.
//
// Long lists are filled by set_items(), which sorts once; 100,000 rows are ordinary.
#pragma once

#include "core/controls/control.h"
#include "core/controls/list_rows.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zephyne {

enum class ListOrder {
    as_added,
    by_text,   // collation of the whole text
    by_entry,  // "name|folder": collation of the name, then of the folder
};

// How many rows can be selected, and what the user's click does.
enum class Selecting {
    one,       // selects its row
    simple,    // selects its row, or deselects it
    extended,  // selects its row alone, unless a key is held: see ClickWith
};

// The key held while a row is clicked. Shift: the row on which the last other click came, and all
// rows up to this one, are selected alone. Ctrl: this row is selected or deselected.
enum class ClickWith { nothing, shift, ctrl };

// Whether items handed in come from a list of the same order, or have to be sorted.
enum class Sorting { needed, done };

class ListBox final : public Control {
  public:
    // Splits an entry line into name and folder; only needed for ListOrder::by_entry.
    using EntrySplitter = std::pair<std::string_view, std::string_view> (*)(std::string_view);

    ListBox(Form& form, ListOrder order, const ControlDesign& design,
            EntrySplitter splitter = nullptr);

    // To be chosen before there are rows.
    void set_selecting(Selecting selecting) { selecting_ = selecting; }
    Selecting selecting() const { return selecting_; }

    std::size_t count() const { return items_.size(); }
    bool empty() const { return items_.empty(); }
    const ListRows& items() const { return items_; }
    const ListRow& item(std::size_t index) const { return items_[index]; }

    // All of these clear or keep the selection silently: a selected row stays selected while it is
    // there, except that set_items() deselects all.
    void set_items(ListRows items, Sorting sorting = Sorting::needed);
    std::size_t add(const ListItem& item);  // to its place in the order; returns that place
    void remove(std::size_t index);
    void remove_rows(const std::vector<std::size_t>& ascending);  // linear in the list's length
    void clear();

    // The selected row, or nothing; where several can be selected, the row that the keyboard is
    // on, selected or not. Setting another one from code raises the click event, as on the old
    // platform; selecting nothing does not. In an extended list the others are deselected.
    std::optional<std::size_t> selected() const { return selected_; }
    void set_selected(std::optional<std::size_t> index);

    // Every row that is selected, in any kind of list.
    bool is_selected(std::size_t index) const;
    std::vector<std::size_t> selected_rows() const;  // ascending

    // All rows, or none of them; without an event. Only where several can be selected.
    void select_all();
    void select_none();

    // The user clicked a row, or pressed Space on it: its selection changes as the kind of list has
    // it, and the click event comes, also on the same row.
    void click(std::size_t index, ClickWith key = ClickWith::nothing);
    std::function<void()> on_click;

    // The user pressed Ctrl+A: where several rows can be selected all are, and the click event
    // comes. False elsewhere.
    bool choose_all();

    // The user moved the keyboard to a row: that counts as a click, but for an extended list with
    // Ctrl held, and a simple list, where only the keyboard moves.
    void move_to(std::size_t index, ClickWith key = ClickWith::nothing);

    // The user clicked a row twice, or pressed Enter on it. In a simple list that is one more
    // click.
    void double_click(std::size_t index);
    std::function<void()> on_double_click;

    // The first row that does not sort before `text`, letter case aside, in a sorted list; count()
    // when there is none. Rows that begin with the text stand from there on.
    std::size_t lower_bound(std::string_view text) const;

  private:
    enum class Mark : char { off, on };

    void append_key(std::string& key, std::string_view text) const;
    std::string key_of(std::string_view text) const;
    std::vector<std::uint32_t> order_of(const ListRows& items) const;
    bool takes_user(std::size_t index) const;
    void mark_all(Mark mark);
    void mark_click(std::size_t index, ClickWith key);

    ListOrder order_;
    EntrySplitter splitter_;
    Selecting selecting_ = Selecting::one;
    ListRows items_;
    std::vector<Mark> marks_;  // of each row; none in a list with one selected row
    std::optional<std::size_t> selected_;
    std::size_t anchor_ = 0;  // where a range begins
};

}  // namespace zephyne
