// A list of texts with one selected row, kept in order or as filled.
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
    const ListRows& items() const { return items_; }
    const ListRow& item(std::size_t index) const { return items_[index]; }

    // All of these clear or keep the selection silently: the selected row stays selected while it
    // is there.
    void set_items(ListRows items, Sorting sorting = Sorting::needed);
    std::size_t add(const ListItem& item);  // to its place in the order; returns that place
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
    std::vector<std::uint32_t> order_of(const ListRows& items) const;

    ListOrder order_;
    EntrySplitter splitter_;
    ListRows items_;
    std::optional<std::size_t> selected_;
};

}  // namespace zephyne
