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

std::vector<ListItem> ListBox::sorted(std::vector<ListItem> items) const {
    if (order_ == ListOrder::as_added) return items;
    KeySort sort(items.size());
    for (const ListItem& item : items) {
        append_key(sort.bytes(), item.text);
        sort.close_key();
    }
    std::vector<ListItem> result;
    result.reserve(items.size());
    for (const std::uint32_t index : sort.order()) result.push_back(std::move(items[index]));
    return result;
}

void ListBox::set_items(std::vector<ListItem> items, Sorting sorting) {
    items_ = sorting == Sorting::done ? std::move(items) : sorted(std::move(items));
    selected_.reset();
    changed(Property::items);
}

std::size_t ListBox::add(ListItem item) {
    std::size_t at = items_.size();
    if (order_ != ListOrder::as_added) {
        const std::string key = key_of(item.text);
        const auto place = std::upper_bound(
            items_.begin(), items_.end(), key,
            [&](const std::string& k, const ListItem& other) { return k < key_of(other.text); });
        at = static_cast<std::size_t>(place - items_.begin());
    }
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(at), std::move(item));
    if (selected_ && *selected_ >= at) ++*selected_;
    changed(Property::items);
    return at;
}

void ListBox::remove(std::size_t index) {
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
    if (selected_ == index) {
        selected_.reset();
    } else if (selected_ && *selected_ > index) {
        --*selected_;
    }
    changed(Property::items);
}

void ListBox::clear() {
    if (items_.empty()) return;
    items_.clear();
    selected_.reset();
    changed(Property::items);
}

void ListBox::set_selected(std::optional<std::size_t> index) {
    if (index && *index >= items_.size()) return;
    if (index == selected_) return;
    selected_ = index;
    changed(Property::selection);
    if (index && on_click) on_click();
}

void ListBox::click(std::size_t index) {
    if (index >= items_.size() || !shown() || !usable()) return;
    if (selected_ != index) {
        selected_ = index;
        changed(Property::selection);
    }
    if (on_click) on_click();
}

std::size_t ListBox::lower_bound(std::string_view text) const {
    const std::string key = collation_prefix(text);
    const auto place = std::lower_bound(
        items_.begin(), items_.end(), key,
        [&](const ListItem& item, const std::string& k) { return key_of(item.text) < k; });
    return static_cast<std::size_t>(place - items_.begin());
}

}  // namespace zephyne
