#include "core/controls/list_box.h"

#include "core/text/letter_case.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

namespace zephyne {
namespace {

// A key with its first eight bytes as a number, so that most comparisons touch no string.
struct SortEntry {
    std::uint64_t first_bytes;
    std::uint32_t index;
};

std::uint64_t first_bytes_of(std::string_view key) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < 8; ++i) {
        value = (value << 8U) | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
    }
    return value;
}

}  // namespace

ListBox::ListBox(Form& form, ListOrder order, const ControlDesign& design, EntrySplitter splitter)
    : Control(form, ControlKind::list_box, design), order_(order), splitter_(splitter) {}

std::string ListBox::key_of(std::string_view text) const {
    if (order_ != ListOrder::by_entry || !splitter_) return collation_key(text);
    const auto [name, folder] = splitter_(text);
    return collation_key(name, folder);
}

std::vector<ListItem> ListBox::sorted(std::vector<ListItem> items) const {
    if (order_ == ListOrder::as_added) return items;
    std::vector<std::string> keys;
    keys.reserve(items.size());
    for (const ListItem& item : items) keys.push_back(key_of(item.text));
    if (std::is_sorted(keys.begin(), keys.end())) return items;

    std::vector<SortEntry> order(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        order[i] = {first_bytes_of(keys[i]), static_cast<std::uint32_t>(i)};
    }
    std::sort(order.begin(), order.end(), [&](const SortEntry& a, const SortEntry& b) {
        if (a.first_bytes != b.first_bytes) return a.first_bytes < b.first_bytes;
        const int difference = keys[a.index].compare(keys[b.index]);
        return difference != 0 ? difference < 0 : a.index < b.index;
    });

    std::vector<ListItem> result;
    result.reserve(items.size());
    for (const SortEntry& entry : order) result.push_back(std::move(items[entry.index]));
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
