// The rows of a list, many or few.
//
// A row keeps, beside the text it shows, the name that the file really has on disk: where two
// files differ only in the case of letters, their rows look the same and are not.
//
// The texts of all rows lie in a few large pieces of memory that only grow, and which copies of
// the rows share: 100,000 rows are filled, copied and let go without an allocation for each. What
// a removed row took is given back with the last row.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

namespace zephyne {

// A row with texts of its own, for keeping one beyond the list's next change.
struct ListItem {
    std::string text;
    std::string real_name;  // "" where it is the text itself

    const std::string& real() const { return real_name.empty() ? text : real_name; }
};

// A row whose texts belong to somebody else: those of a list stay until its rows next change.
struct ListRow {
    std::string_view text;
    std::string_view real_name;  // "" where it is the text itself

    ListRow(std::string_view shown, std::string_view on_disk) : text(shown), real_name(on_disk) {}
    ListRow(const ListItem& item) : text(item.text), real_name(item.real_name) {}
    operator ListItem() const { return {std::string(text), std::string(real_name)}; }

    std::string_view real() const { return real_name.empty() ? text : real_name; }
};

inline bool operator==(const ListRow& a, const ListRow& b) {
    return a.text == b.text && a.real_name == b.real_name;
}

class ListRows {
  public:
    using const_iterator = std::vector<ListRow>::const_iterator;
    using iterator = const_iterator;

    ListRows() = default;
    ListRows(std::initializer_list<ListItem> items) : ListRows(std::vector<ListItem>(items)) {}
    ListRows(const std::vector<ListItem>& items);

    std::size_t size() const { return rows_.size(); }
    bool empty() const { return rows_.empty(); }
    const ListRow& operator[](std::size_t index) const { return rows_[index]; }
    const_iterator begin() const { return rows_.begin(); }
    const_iterator end() const { return rows_.end(); }
    bool operator==(const ListRows& other) const { return rows_ == other.rows_; }

    void reserve(std::size_t count) { rows_.reserve(count); }

    // These copy the row's texts, which may be those of a row of this list.
    void append(const ListRow& row) { rows_.push_back(kept(row)); }
    void insert(std::size_t index, const ListRow& row);

    void erase(std::size_t index);
    void clear();

    // Puts the row with the number order[0] first, order[1] second and so on. `order` holds no
    // number twice; the rows that it leaves out are removed.
    void arrange(const std::vector<std::uint32_t>& order);

  private:
    ListRow kept(const ListRow& row);
    std::string_view kept(std::string_view text);

    std::shared_ptr<std::pmr::monotonic_buffer_resource> texts_;
    std::vector<ListRow> rows_;
};

}  // namespace zephyne
