#include "core/window_placing.h"

#include "core/controls/control.h"

#include <gtest/gtest.h>

#include <limits>

namespace zephyne {
namespace {

TEST(WindowPlacing, ASavedPlaceCountsWhereTheTitleBarCanBeGripped) {
    constexpr int kMost = std::numeric_limits<int>::max();
    constexpr int kLeast = std::numeric_limits<int>::min();
    const std::vector<Place> screens = {{0, 0, 19200, 12000}, {19200, 600, 9600, 9000}};
    struct Row {
        const char* what;
        Corner saved;
        Corner comes_up;
    };
    const std::vector<Row> rows = {
        {"on the first screen", {300, 450}, {300, 450}},
        {"partly over its edge", {-6000, 11000}, {-6000, 11000}},
        {"on the second screen", {20000, 900}, {20000, 900}},
        {"beside both", {40000, 900}, {10200, 900}},
        {"on a larger scale", {kMost, kMost}, {10200, 5490}},
        {"as minimised windows were", {-480000, -480000}, {0, 0}},
        {"as far as numbers go", {kLeast, kLeast}, {0, 0}},
        {"title bar above the screen", {300, -600}, {300, 0}},
        {"mostly below the second", {20000, 9500}, {19800, 3090}},
    };
    for (const Row& row : rows) {
        const Place window{row.saved.left, row.saved.top, 9000, 6510};
        const Corner corner = reachable(window, screens);
        EXPECT_EQ(corner.left, row.comes_up.left) << row.what;
        EXPECT_EQ(corner.top, row.comes_up.top) << row.what;
    }
    EXPECT_EQ(reachable({5, 5, 9000, 6510}, {{450, 300, 6000, 4000}}), (Corner{450, 300}));
    EXPECT_EQ(reachable({-5, -5, 9000, 6510}, {}), (Corner{-5, -5}));
}

}  // namespace
}  // namespace zephyne
