#include "tests/support/world.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace zephyne::test {
namespace {

struct Order {
    std::string name;
    std::int32_t mode;
    std::int32_t continuous;
    std::int32_t reverse;
    std::vector<double> random;
    std::vector<std::string> songs;      // as they play, past the end of the cycle
    std::vector<std::string> remaining;  // what the counter shows while each plays
};

constexpr std::int32_t kAlpha = PlayMode::Alpha;
constexpr std::int32_t kRandom = PlayMode::Random;
constexpr std::int32_t kPreview = PlayMode::Preview;
const std::vector<Order> kOrders = {
    {"Alpha", kAlpha, 0, 0, {0}, {"A", "B", "C", "A", "B"}, {"2", "1", "0", "2", "1"}},
    {"AlphaReverse", kAlpha, 0, 1, {0}, {"C", "B", "A", "C"}, {"2", "1", "0", "2"}},
    {"AlphaContinuous", kAlpha, 1, 0, {0}, {"A", "B", "C", "A", "B"}, {"Continuous"}},
    {"AlphaReverseContinuous", kAlpha, 1, 1, {0}, {"C", "B", "A", "C"}, {"Continuous"}},
    {"Random", kRandom, 0, 0, {.34, .5, .9}, {"B", "C", "A", "B"}, {"2", "1", "0", "2"}},
    {"RandomForwards", kRandom, 0, 1, {0}, {"A", "B", "C", "A"}, {"2", "1", "0", "2"}},
    {"RandomContinuous", kRandom, 1, 0, {.4, .4, .99}, {"B", "B", "C", "B"}, {"Continuous"}},
    {"RandomToTheTop", kRandom, 0, 0, {0.9999999999999999}, {"C", "B", "A", "C"}, {"2", "1"}},
    {"Preview", kPreview, 0, 0, {0}, {"A", "B", "C", "A"}, {"2", "1", "0", "2"}},
    {"PreviewForwards", kPreview, 0, 1, {0}, {"A", "B", "C", "A"}, {"2"}},
    {"PreviewContinuous", kPreview, 1, 0, {0}, {"A", "B", "C", "A"}, {"Continuous"}},
    {"PreviewContinuousForwards", kPreview, 1, 1, {0}, {"A", "B", "C"}, {"Continuous"}},
};

class PlayOrders : public testing::TestWithParam<Order> {};

TEST_P(PlayOrders, PlaysTheListAndBeginsAgain) {
    const Order& order = GetParam();
    for (const bool playlist : {false, true}) {
        World world{"C.mid", "A.mid", "B.mid"};
        world.settings().Continuous = order.continuous;
        world.settings().Reverse = order.reverse;
        world.random.numbers = order.random;
        if (playlist) {
            world.start_playlist(order.mode, {"C.mid|/music/", "A.mid|/music/", "B.mid|/music/"});
        } else {
            world.start(order.mode);
        }
        for (std::size_t i = 0; i < order.songs.size(); ++i) {
            SCOPED_TRACE(i);
            const std::string song = order.songs[i] + ".mid";
            EXPECT_EQ(world.played(), Log{song});
            EXPECT_EQ(world.program.CurrentSongName, song);
            EXPECT_EQ(world.program.CurrentSongPath, "/music/" + song);
            ASSERT_TRUE(world.form.File1.selected());
            EXPECT_EQ(world.form.File1.item(*world.form.File1.selected()).text, song);
            EXPECT_EQ(world.form.Label2.caption(), "3");
            if (i < order.remaining.size()) {
                EXPECT_EQ(world.form.Label4.caption(), order.remaining[i]);
            }
            world.run_for(order.mode == PlayMode::Preview ? 6500 : 180'500);
        }
        world.expect_flags_at_rest();
    }
}

INSTANTIATE_TEST_SUITE_P(Of, PlayOrders, testing::ValuesIn(kOrders),
                         [](const auto& tested) { return tested.param.name; });

TEST(PlayOrder, RandomPlaysEachSongOnceInEveryCycle) {
    World world{};
    for (int i = 0; i < 40; ++i) world.files.add_file(world.path(std::to_string(i) + ".mid"));
    std::mt19937 generator(7);
    std::uniform_real_distribution<double> uniform(0, 1);
    world.random.numbers.clear();
    for (int i = 0; i < 80; ++i) world.random.numbers.push_back(uniform(generator));
    world.start(PlayMode::Random);
    for (int cycle = 0; cycle < 2; ++cycle) {
        std::set<std::string> played;
        for (int i = 0; i < 40; ++i) {
            played.insert(world.program.CurrentSongName);
            world.form.List1.empty() ? world.run_for(180'500) : world.form.Command9.click();
        }
        EXPECT_EQ(played.size(), 40U);
    }
}

TEST(PlayOrder, NextGoesOnByTheOrderUntilTheLastSongOfTheCyclePlays) {
    World world{"A.mid", "B.mid", "C.mid"};
    world.start(PlayMode::Alpha);
    for (int i = 0; i < 5; ++i) world.form.Command9.click();
    EXPECT_EQ(world.played(), (Log{"A.mid", "B.mid", "C.mid"}));
    EXPECT_EQ(world.device.Mode(), DeviceMode::playing);
    world.run_for(180'500);
    EXPECT_EQ(world.played(), Log{"A.mid"}) << "the next cycle";
}

TEST(PlayOrder, NextIsDeafWhileASongIsOnItsWay) {
    World world{"A.MID", "B.MID", "C.mid", "D.mid"};
    world.settings().Lowercase = 0;
    world.start(PlayMode::Alpha);
    world.pump.on_pump = [&] { world.form.Command9.click(); };
    world.form.Command9.click();
    EXPECT_EQ(world.played(), (Log{"A.MID", "B.MID"}));
}

TEST(PlayOrder, ANewCycleRemembersTheSongThatItInterruptsInAFolderOnly) {
    World world{"A.mid", "B.mid"};
    world.start(PlayMode::Preview);
    world.form.Command6.click();
    EXPECT_EQ(world.program.RecentSongs[0].name, "A.mid");
    world.start_playlist(PlayMode::Preview, {"B.mid|/music/"});
    for (int i = 0; i < 3; ++i) world.form.Command6.click();
    EXPECT_EQ(world.program.RecentCount, 1);
}

TEST(PlayOrder, NextInManualModePlaysTheSongBelowAndStopsAtTheLast) {
    World world{"A.mid", "B.mid", "C.mid"};
    world.open_folder();
    for (int i = 0; i < 5; ++i) world.form.Command9.click();
    EXPECT_EQ(world.played(), (Log{"A.mid", "B.mid", "C.mid"}));
    EXPECT_EQ(world.form.title(), "Zephyne - Playing C.mid");
}

TEST(PlayOrder, NextAfterAFinishedWaveSongNeedsNoOpenDevice) {
    World world{"A.wav", "B.mid"};
    world.settings().AllowWav = 1;
    world.start(PlayMode::Alpha);
    world.device.StopAndClose();
    world.form.Command9.click();
    EXPECT_EQ(world.played(), (Log{"A.wav", "B.mid"}));
    world.device.StopAndClose();
    world.form.List1.add({"A.wav", {}});
    world.form.Command9.click();
    EXPECT_EQ(world.played(), Log{}) << "a MIDI song that is not open cannot be skipped";
}

TEST(PlayOrder, ResetListReadsTheFolderAnewAndBeginsAgain) {
    World world{"B.mid", "C.mid"};
    world.start(PlayMode::Alpha);
    world.form.Command9.click();
    world.form.MMControl1.press(TransportKey::pause);
    world.files.add_file(world.path("A.mid"));
    world.played();
    world.form.Command6.click();
    EXPECT_EQ(world.played(), Log{"A.mid"});
    EXPECT_EQ(World::names(world.form.List1), (Log{"B.mid", "C.mid"}));
    EXPECT_FALSE(world.program.PausedByUser);

    for (const char* song : {"A.mid", "B.mid", "C.mid"}) world.files.remove(world.path(song));
    world.form.Command6.click();
    EXPECT_TRUE(world.form.File1.empty());
    EXPECT_EQ(world.form.title(), "Zephyne - Playing A.mid") << "what plays may play on";

    World manual{"B.mid"};
    manual.open_folder();
    manual.click("B.mid");
    manual.files.add_file(manual.path("A.mid"));
    manual.form.Command6.click();
    EXPECT_EQ(World::names(manual.form.File1), (Log{"A.mid", "B.mid"}));
    EXPECT_EQ(manual.form.Label2.caption(), "2");
    EXPECT_EQ(manual.played(), Log{"B.mid"}) << "nothing else begins";
}

TEST(PlayOrder, AnEmptyListPlaysNothingAndCountsNothing) {
    World world{"readme.txt"};
    world.start(PlayMode::Random);
    EXPECT_EQ(world.played(), Log{});
    EXPECT_EQ(world.counts(), "0, 0");
    world.form.Command9.click();
    world.form.Command6.click();
    world.run_for(10'000);
    EXPECT_EQ(world.happened(), Log{});
    world.expect_in_one_piece();
}

TEST(PlayOrder, ASingleSongPlaysAgainAndAgain) {
    World world{"Only.mid"};
    world.settings().Reverse = 1;
    for (const std::int32_t continuous : {0, 1}) {
        world.settings().Continuous = continuous;
        world.start(PlayMode::Alpha);
        world.run_for(400'000);
        EXPECT_EQ(world.played(), (Log{"Only.mid", "Only.mid", "Only.mid"}));
    }
}

TEST(PlayOrder, ASongThatLeavesTheListLeavesTheOrderOfTheOthersAsItIs) {
    World world{"A.mid", "B.mid", "C.mid"};
    world.settings().Continuous = 1;
    world.start(PlayMode::Alpha);
    world.form.Command9.click();
    world.click("C.mid");  // which is also the next by the order
    world.engine->order.drop("C.mid");
    world.form.Command9.click();
    EXPECT_EQ(world.played(), (Log{"A.mid", "B.mid", "C.mid", "A.mid"}));
}

TEST(PlayOrder, ASongWhoseFileIsGoneGivesWayWholeToTheOneThatBeginsLikeIt) {
    World world{"A.mid", "A.mid.mid"};
    world.start(PlayMode::Alpha);
    world.form.List1.set_items({{"A.mid", {}}});
    world.form.File1.remove(0);
    world.form.Command9.click();
    EXPECT_EQ(world.program.CurrentSongPath, world.path(world.program.CurrentSongName));
}

TEST(PlayOrder, AListThatHasShrunkUnderAContinuousCycleGoesOnFromItsEnd) {
    for (const std::int32_t reverse : {0, 1}) {
        World world{"A.mid", "B.mid", "C.mid", "D.mid", "E.mid"};
        world.settings().Continuous = 1;
        world.settings().Reverse = reverse;
        world.start(PlayMode::Alpha);
        while (world.program.OrderIndex != 4) world.form.Command9.click();
        for (int i = 0; i < 3; ++i) world.form.List1.remove(world.form.List1.count() - 1);
        world.played();
        for (int i = 0; i < 3; ++i) world.form.Command9.click();
        EXPECT_EQ(world.played(), (Log{"B.mid", "A.mid", "B.mid"}));
    }
}

TEST(PlayOrder, EntriesOfOneNameInTwoFoldersBothPlay) {
    World world{"Same.mid"};
    world.files.add_file("/disk/Same.mid");
    world.start_playlist(PlayMode::Alpha, {"Same.mid|/music/", "Same.mid|/disk"});
    EXPECT_EQ(world.program.CurrentSongPath, "/disk/Same.mid");
    EXPECT_EQ(World::names(world.form.List1), Log{"Same.mid|/music/"});
    world.form.Command9.click();
    EXPECT_EQ(world.program.CurrentSongPath, "/music/Same.mid");
    EXPECT_EQ(world.program.CurrentSongName, "Same.mid");
}

}  // namespace
}  // namespace zephyne::test
