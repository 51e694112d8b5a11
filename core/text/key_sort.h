// Sorts long lists by keys that are made once.
//
// All keys lie one behind the other in one piece of memory, and are compared eight bytes at a
// time: sorted by their first eight, then those that agree by their next eight, and so on. A list
// of 100,000 names needs few string comparisons this way, and no allocation for each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zephyne {

class KeySort {
  public:
    explicit KeySort(std::size_t count) { ends_.reserve(count); }

    // The key of the next item is what has been appended here when it is closed.
    std::string& bytes() { return bytes_; }
    void close_key() { ends_.push_back(bytes_.size()); }

    // The items' numbers in ascending byte order of their keys; those with equal keys in the order
    // in which they were given.
    std::vector<std::uint32_t> order() const;

  private:
    struct Entry {
        std::uint64_t piece;  // eight bytes of the key, the first the most significant
        std::uint32_t item;
    };

    std::string_view key(std::uint32_t item) const;
    void sort(Entry* begin, Entry* end, std::size_t depth) const;
    void sort_whole(Entry* begin, Entry* end) const;

    std::string bytes_;
    std::vector<std::size_t> ends_;
};

}  // namespace zephyne
