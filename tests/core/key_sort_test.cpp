#include "core/text/key_sort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace zephyne::test {
namespace {

std::vector<std::uint32_t> order_of(const std::vector<std::string>& keys) {
    KeySort sort(keys.size());
    for (const std::string& key : keys) {
        sort.bytes() += key;
        sort.close_key();
    }
    return sort.order();
}

std::vector<std::uint32_t> plain_order(const std::vector<std::string>& keys) {
    std::vector<std::uint32_t> order(keys.size());
    for (std::uint32_t i = 0; i < order.size(); ++i) order[i] = i;
    std::stable_sort(order.begin(), order.end(),
                     [&](std::uint32_t a, std::uint32_t b) { return keys[a] < keys[b]; });
    return order;
}

TEST(KeySort, AgreesWithAPlainSortAlsoForLongBeginningsInCommonAndZeros) {
    std::mt19937 random(7);
    std::vector<std::string> keys;
    for (int i = 0; i < 3000; ++i) {
        std::string key(random() % 4 * 9, 'a');  // many keys agree for whole pieces
        for (auto more = random() % 6; more > 0; --more) {
            key += std::string("\0ab\xFF", 4)[random() % 4];
        }
        keys.push_back(std::move(key));
    }
    EXPECT_EQ(order_of(keys), plain_order(keys));
}

TEST(KeySort, KeepsTheOrderOfEqualKeysHoweverLongTheyAre) {
    std::vector<std::string> keys(200, std::string(100'000, 'x'));
    keys[5] += 'y';
    EXPECT_EQ(order_of(keys), plain_order(keys));
    EXPECT_TRUE(order_of({}).empty());
}

}  // namespace
}  // namespace zephyne::test
