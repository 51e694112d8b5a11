#include "core/controls/list_box.h"

#include "core/text/key_sort.h"
#include "core/text/letter_case.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace zephyne {

ListBox::ListBox(Form& form, ListOrder order, const ControlDesign& design, EntrySplitter splitter)
    : Control(form, ControlKind::list_box, design), order_(order), splitter_(splitter) {}

void ListBox::append_key(std::string& key, std::string_view text) const {
    if (order_ != ListOrder::by_entry || !splitter_) return append_collation_key(key, text);
    const auto [name, folder] = splitter_(text);
    append_collation_key(key, name);
    key += '\0';
    append_collation_key(key, folder);
}

std::string ListBox::key_of(std::string_view text) const {
    std::string key;
    append_key(key, text);
    return key;
}

std::vector<std::uint32_t> ListBox::order_of(const ListRows& items) const {
    KeySort sort(items.size());
    for (const ListRow& row : items) {
        append_key(sort.bytes(), row.text);
        sort.close_key();
    }
    return sort.order();
}

void ListBox::mark_all(Mark mark) {
    if (selecting_ != Selecting::one) marks_.assign(items_.size(), mark);
}

void ListBox::set_items(ListRows items, Sorting sorting) {
    if (order_ != ListOrder::as_added && sorting == Sorting::needed) items.arrange(order_of(items));
    items_ = std::move(items);
    selected_.reset();
    anchor_ = 0;
    mark_all(Mark::off);
    changed(Property::items);
}

std::size_t ListBox::add(const ListItem& item) {
    std::size_t at = items_.size();
    if (order_ != ListOrder::as_added) {
        const std::string key = key_of(item.text);
        const auto place = std::upper_bound(
            items_.begin(), items_.end(), key,
            [&](const std::string& k, const ListRow& other) { return k < key_of(other.text); });
        at = static_cast<std::size_t>(place - items_.begin());
    }
    items_.insert(at, item);
    if (selecting_ != Selecting::one) {
        marks_.insert(marks_.begin() + static_cast<std::ptrdiff_t>(at), Mark::off);
    }
    if (selected_ && *selected_ >= at) ++*selected_;
    if (anchor_ >= at) ++anchor_;
    changed(Property::items);
    return at;
}

void ListBox::remove(std::size_t index) {
    remove_rows({index});
}

void ListBox::remove_rows(const std::vector<std::size_t>& ascending) {
    if (ascending.empty()) return;
    const auto rows_before = [&](std::size_t row) {
        const auto found = std::lower_bound(ascending.begin(), ascending.end(), row);
        return static_cast<std::size_t>(found - ascending.begin());
    };
    if (selected_) {
        const bool goes = std::binary_search(ascending.begin(), ascending.end(), *selected_);
        const std::size_t now = *selected_ - rows_before(*selected_);
        selected_ = goes ? std::nullopt : std::optional(now);
    }
    anchor_ -= rows_before(anchor_);

    std::vector<std::uint32_t> kept;
    kept.reserve(items_.size());
    auto next = ascending.begin();
    for (std::size_t row = 0; row < items_.size(); ++row) {
        if (next != ascending.end() && *next == row) {
            ++next;
            continue;
        }
        if (selecting_ != Selecting::one) marks_[kept.size()] = marks_[row];
        kept.push_back(static_cast<std::uint32_t>(row));
    }
    items_.arrange(kept);
    if (selecting_ != Selecting::one) marks_.resize(kept.size());
    changed(Property::items);
}

void ListBox::clear() {
    if (items_.empty()) return;
    set_items({}, Sorting::done);
}

bool ListBox::is_selected(std::size_t index) const {
    if (selecting_ == Selecting::one) return selected_ == index;
    return index < marks_.size() && marks_[index] == Mark::on;
}

std::vector<std::size_t> ListBox::selected_rows() const {
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < items_.size(); ++row) {
        if (is_selected(row)) rows.push_back(row);
    }
    return rows;
}

void ListBox::select_all() {
    mark_all(Mark::on);
    changed(Property::selection);
}

void ListBox::select_none() {
    mark_all(Mark::off);
    changed(Property::selection);
}

void ListBox::set_selected(std::optional<std::size_t> index) {
    if (index && *index >= items_.size()) return;
    if (index == selected_) return;
    selected_ = index;
    if (selecting_ == Selecting::extended) {
        mark_all(Mark::off);
        if (index) mark_click(*index, ClickWith::nothing);
    }
    changed(Property::selection);
    if (index && on_click) on_click();
}

bool ListBox::takes_user(std::size_t index) const {
    return index < items_.size() && shown() && usable();
}

void ListBox::mark_click(std::size_t index, ClickWith key) {
    if (selecting_ == Selecting::simple || key == ClickWith::ctrl) {
        marks_[index] = marks_[index] == Mark::on ? Mark::off : Mark::on;
        anchor_ = index;
        return;
    }
    if (key == ClickWith::nothing) anchor_ = index;
    const auto [first, last] = std::minmax({std::min(anchor_, items_.size() - 1), index});
    mark_all(Mark::off);
    std::fill(marks_.begin() + static_cast<std::ptrdiff_t>(first),
              marks_.begin() + static_cast<std::ptrdiff_t>(last) + 1, Mark::on);
}

void ListBox::click(std::size_t index, ClickWith key) {
    if (!takes_user(index)) return;
    const bool moved = std::exchange(selected_, index) != index;
    if (selecting_ != Selecting::one) mark_click(index, key);
    if (moved || selecting_ != Selecting::one) changed(Property::selection);
    if (on_click) on_click();
}

bool ListBox::choose_all() {
    if (selecting_ == Selecting::one) return false;
    if (empty() || !shown() || !usable()) return true;
    select_all();
    if (on_click) on_click();
    return true;
}

void ListBox::move_to(std::size_t index, ClickWith key) {
    const bool keyboard_only = selecting_ == Selecting::simple ||
                               (selecting_ == Selecting::extended && key == ClickWith::ctrl);
    if (!keyboard_only) return click(index, key);
    if (!takes_user(index)) return;
    selected_ = index;
    changed(Property::selection);
}

void ListBox::double_click(std::size_t index) {
    if (selecting_ == Selecting::simple) return click(index);
    if (takes_user(index) && on_double_click) on_double_click();
}

std::size_t ListBox::lower_bound(std::string_view text) const {
    const std::string key = collation_prefix(text);
    const auto place = std::lower_bound(
        items_.begin(), items_.end(), key,
        [&](const ListRow& item, const std::string& k) { return key_of(item.text) < k; });
    return static_cast<std::size_t>(place - items_.begin());
}

}  // namespace zephyne
