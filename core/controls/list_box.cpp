#include "core/controls/list_box.h"

#include "core/text/key_sort.h"
#include "core/text/letter_case.h"

#include <algorithm>
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

void ListBox::set_items(ListRows items, Sorting sorting) {
    if (order_ != ListOrder::as_added && sorting == Sorting::needed) items.arrange(order_of(items));
    items_ = std::move(items);
    selected_.reset();
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
    if (selected_ && *selected_ >= at) ++*selected_;
    changed(Property::items);
    return at;
}

void ListBox::remove(std::size_t index) {
    items_.erase(index);
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
        [&](const ListRow& item, const std::string& k) { return key_of(item.text) < k; });
    return static_cast<std::size_t>(place - items_.begin());
}

}  // namespace zephyne
