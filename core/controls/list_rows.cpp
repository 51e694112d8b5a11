#include "core/controls/list_rows.h"

#include <algorithm>
#include <utility>

namespace zephyne {

ListRows::ListRows(const std::vector<ListItem>& items) {
    reserve(items.size());
    for (const ListItem& item : items) append(item);
}

std::string_view ListRows::kept(std::string_view text) {
    if (text.empty()) return {};
    if (!texts_) texts_ = std::make_shared<std::pmr::monotonic_buffer_resource>();
    char* copy = static_cast<char*>(texts_->allocate(text.size(), alignof(char)));
    std::copy(text.begin(), text.end(), copy);
    return {copy, text.size()};
}

ListRow ListRows::kept(const ListRow& row) {
    return {kept(row.text), kept(row.real_name)};
}

void ListRows::insert(std::size_t index, const ListRow& row) {
    rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(index), kept(row));
}

void ListRows::erase(std::size_t index) {
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(index));
    if (rows_.empty()) texts_.reset();
}

void ListRows::clear() {
    rows_.clear();
    texts_.reset();
}

void ListRows::arrange(const std::vector<std::uint32_t>& order) {
    std::vector<ListRow> arranged;
    arranged.reserve(order.size());
    for (const std::uint32_t index : order) arranged.push_back(rows_[index]);
    rows_ = std::move(arranged);
    if (rows_.empty()) texts_.reset();
}

}  // namespace zephyne
