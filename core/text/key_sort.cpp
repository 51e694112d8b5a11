#include "core/text/key_sort.h"

#include <algorithm>
#include <array>

namespace zephyne {
namespace {

constexpr std::size_t kPiece = 8;

// So few entries are sorted by whole comparisons, and so are keys that agree for so long: the
// pieces of a key that has ended are zeros, and so may be those of one that goes on.
constexpr std::ptrdiff_t kFew = 16;
constexpr std::size_t kDeepest = 512;

std::uint64_t piece_of(std::string_view key, std::size_t depth) {
    std::array<char, kPiece> bytes{};  // a whole piece is copied in one go
    if (key.size() >= depth + kPiece) {
        std::copy_n(key.begin() + static_cast<std::ptrdiff_t>(depth), kPiece, bytes.begin());
    } else if (key.size() > depth) {
        std::copy(key.begin() + static_cast<std::ptrdiff_t>(depth), key.end(), bytes.begin());
    }
    std::uint64_t piece = 0;
    for (const char byte : bytes) piece = (piece << 8U) | static_cast<unsigned char>(byte);
    return piece;
}

}  // namespace

std::string_view KeySort::key(std::uint32_t item) const {
    const std::size_t begin = item == 0 ? 0 : ends_[item - 1];
    return std::string_view(bytes_).substr(begin, ends_[item] - begin);
}

// Sorts entries whose keys agree up to `depth`.
void KeySort::sort(Entry* begin, Entry* end, std::size_t depth) const {
    for (Entry* entry = begin; entry != end; ++entry) {
        entry->piece = piece_of(key(entry->item), depth);
    }
    std::sort(begin, end, [](const Entry& a, const Entry& b) { return a.piece < b.piece; });

    for (Entry* run = begin; run != end;) {
        Entry* run_end =
            std::find_if(run, end, [&](const Entry& entry) { return entry.piece != run->piece; });
        if (run_end - run <= kFew || depth >= kDeepest) {
            sort_whole(run, run_end);
        } else {
            sort(run, run_end, depth + kPiece);
        }
        run = run_end;
    }
}

void KeySort::sort_whole(Entry* begin, Entry* end) const {
    std::sort(begin, end, [&](const Entry& a, const Entry& b) {
        const int difference = key(a.item).compare(key(b.item));
        return difference != 0 ? difference < 0 : a.item < b.item;
    });
}

std::vector<std::uint32_t> KeySort::order() const {
    std::vector<Entry> entries(ends_.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i].item = static_cast<std::uint32_t>(i);
    }
    sort(entries.data(), entries.data() + entries.size(), 0);

    std::vector<std::uint32_t> order;
    order.reserve(entries.size());
    for (const Entry& entry : entries) order.push_back(entry.item);
    return order;
}

}  // namespace zephyne
