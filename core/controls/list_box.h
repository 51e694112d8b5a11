// A list of texts with one selected row, kept in order or as filled.
//
// A row keeps, beside the text it shows, the name that the file really has on disk: where two
// files differ only in the case of letters, their rows look the same and are not.
//
// Long lists are filled by set_items(), which sorts once; 100,000 rows are ordinary.
#pragma once

#include "core/controls/control.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zephyne {

struct ListItem {
    std::string text;
    std::string real_name;  // "" where it is the text itself

    const std::string& real() const { return real_name.empty() ? text : real_name; }
    bool operator==(const ListItem&) const = default;
};

enum class ListOrder {
    as_added,
    by_text,   // collation of the whole text
    by_entry,  // "name|folder": collation of the name, then of the folder
};

// Whether items handed in come from a list of the same order, or have to be sorted.
enum class Sorting { needed, done };

class ListBox final : public Control {
  public:
    // Splits an entry line into name and folder; only needed for ListOrder::by_entry.
    using EntrySplitter = std::pair<std::string_view, std::string_view> (*)(std::string_view);

    ListBox(Form& form, ListOrder order, const ControlDesign& design,
            EntrySplitter splitter = nullptr);

    std::size_t count() const { return items_.size(); }
    bool empty() const { return items_.empty(); }
    const std::vector<ListItem>& items() const { return items_; }
    const ListItem& item(std::size_t index) const { return items_[index]; }

    // All of these clear or keep the selection silently: the selected row stays selected while it
    // is there.
    void set_items(std::vector<ListItem> items, Sorting sorting = Sorting::needed);
    std::size_t add(ListItem item);  // to its place in the order; returns that place
    void remove(std::size_t index);
    void clear();

    // The selected row, or nothing. Setting another one from code raises the click event, as on
    // the old platform; selecting nothing does not.
    std::optional<std::size_t> selected() const { return selected_; }
    void set_selected(std::optional<std::size_t> index);

    // The user clicked a row: it is selected and the click event comes, also on the same row.
    void click(std::size_t index);
    std::function<void()> on_click;

    // The first row that does not sort before `text`, letter case aside, in a sorted list; count()
    // when there is none. Rows that begin with the text stand from there on.
    std::size_t lower_bound(std::string_view text) const;

  private:
    void append_key(std::string& key, std::string_view text) const;
    std::string key_of(std::string_view text) const;
    std::vector<ListItem> sorted(std::vector<ListItem> items) const;

    ListOrder order_;
    EntrySplitter splitter_;
    std::vector<ListItem> items_;
    std::optional<std::size_t> selected_;
};

}  // namespace zephyne
