// Lists and times that a patient user reaches: very many songs, very short ones, none that plays.
#include "tests/support/world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

namespace zephyne::test {
namespace {

std::string numbered(int number) {
    std::string digits = std::to_string(number);
    return "Song " + std::string(6 - digits.size(), '0') + digits + ".mid";
}

void add_songs(World& world, int count) {
    for (int i = 0; i < count; ++i) world.files.add_file(world.path(numbered(i)));
}

// How deep the stack is where a song is opened, in bytes below where the test stands.
struct StackWatch {
    explicit StackWatch(World& world) {
        world.stage.services.apply_remembered_volume = [this](const std::string&) {
            char here = 0;
            const auto address = reinterpret_cast<std::uintptr_t>(&here);
            lowest = std::min(lowest, address);
            if (songs++ == 10) lowest_of_the_first = lowest;
        };
    }
    std::uintptr_t lowest = UINTPTR_MAX;
    std::uintptr_t lowest_of_the_first = 0;
    int songs = 0;
};

TEST(Endurance, AThousandSongsThatEndAtOnceDoNotDeepenTheStack) {
    for (const std::int32_t mode : {PlayMode::Alpha, PlayMode::Random, PlayMode::Preview}) {
        for (const std::int32_t repeat : {0, 1}) {
            World world{};
            add_songs(world, 50);
            for (int i = 0; i < 50; ++i) world.midi.lengths[numbered(i)] = 0;
            world.settings().AutoRepeat = repeat;
            StackWatch stack(world);
            world.pump.on_pump = [&] { world.clock.advance_to(world.clock.now() + 25); };
            world.start(mode);
            for (int i = 0; i < 20'000 && stack.songs < 1000; ++i) world.run_for(50);
            EXPECT_GE(stack.songs, 1000);
            EXPECT_EQ(stack.lowest, stack.lowest_of_the_first);
            EXPECT_LE(world.pump.deepest(), 4);
            for (const std::string& line : world.log) {
                ASSERT_FALSE(line.starts_with("message")) << line;
            }
            world.pump.on_pump = nullptr;
            world.expect_flags_at_rest();
        }
    }
}

TEST(Endurance, AQueueFullOfMissingFilesEndsQuietly) {
    World world{"A.mid"};
    world.start_queue("A.mid");
    for (int i = 0; i < 2000; ++i) world.form.List2.add({world.path(numbered(i)), {}});
    world.finish_song();
    EXPECT_TRUE(world.form.List2.empty());
    EXPECT_EQ(world.form.title(), "Zephyne");
    EXPECT_LE(world.pump.deepest(), 2);
}

TEST(Endurance, AHundredThousandSongsAreCountedAndFound) {
    World world{};
    add_songs(world, 100'000);
    world.settings().AutoReset = 0;
    world.settings().Reverse = 1;
    world.start(PlayMode::Alpha);
    EXPECT_EQ(world.counts(), "100000, 99999");
    EXPECT_EQ(world.played(), Log{"Song 099999.mid"});
    world.form.Command9.click();
    EXPECT_EQ(world.played(), Log{"Song 099998.mid"});
    EXPECT_EQ(world.form.Label4.caption(), "99998");
    world.form.text2.type("song 04217");
    world.form.text2.press_key(13);
    EXPECT_EQ(world.played(), Log{"Song 042170.mid"});
    world.hand_over(world.path("song 077777.MID"));
    world.run_for(1500);
    EXPECT_EQ(world.played(), Log{"Song 077777.mid"});
    EXPECT_EQ(world.form.Label4.caption(), "99999");
}

}  // namespace
}  // namespace zephyne::test
