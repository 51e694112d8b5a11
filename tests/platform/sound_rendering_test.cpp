// What comes out of the real synthesizer when songs are played, paused and stopped.
#include "rendering.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

TEST_F(RenderingTest, AWishWaitsUntilTheSoundFontIsThere) {
    Synthesizer synthesizer;
    SongRenderer renderer(synthesizer);
    EXPECT_TRUE(renderer.idle());
    const MidiSong song = *parse_standard_midi_file(smf(0, kTicksAreMilliseconds, {held_note()}));
    renderer.submit({.number = 1, .song = &song, .song_serial = 1, .state = State::playing});
    float left[64] = {1.0F};
    float right[64] = {1.0F};
    renderer.render(left, right, 64);
    EXPECT_EQ(left[0], 0.0F);
    EXPECT_EQ(renderer.progress().number, 0U);
    EXPECT_FALSE(renderer.idle());
    renderer.set_ready();
    renderer.render(left, right, 64);
    EXPECT_EQ(renderer.progress().end_frame, 64);
}

TEST_F(RenderingTest, PlaysToTheVeryFrameAndRingsOnForAtMostThreeSeconds) {
    open({Track().program(0, 16).at(500).note_on(0, 60, 100).end_at(1000)});  // never released
    EXPECT_LT(render(500).peak(), 1e-6F);
    EXPECT_EQ(renderer_.progress().end_frame, frame_at_millisecond(500));
    EXPECT_GT(render(499).peak(), 0.01F);
    EXPECT_FALSE(renderer_.progress().finished);
    render(2);
    EXPECT_TRUE(renderer_.progress().finished);
    EXPECT_EQ(renderer_.progress().end_frame, frame_at_millisecond(1000));
    EXPECT_GT(render(100).peak(), 0.0F);
    EXPECT_FALSE(renderer_.idle());
    render(2950);
    EXPECT_TRUE(renderer_.idle());
    EXPECT_EQ(voices(), 0);
    EXPECT_EQ(render(100).peak(), 0.0F);
}

TEST_F(RenderingTest, PausingGivesSilenceAndResumingTheVeryNotes) {
    open({held_note()});
    render(300);
    const double loudness = render(200).loudness();
    const int sounding = voices();
    wish(State::paused);
    render(10);
    EXPECT_EQ(render(2000).peak(), 0.0F);
    EXPECT_TRUE(renderer_.idle());
    EXPECT_EQ(renderer_.progress().end_frame, frame_at_millisecond(500));
    EXPECT_EQ(voices(), sounding);
    wish(State::playing);
    render(10);
    EXPECT_NEAR(render(200).loudness(), loudness, loudness * 0.1);
    EXPECT_EQ(voices(), sounding);
    EXPECT_EQ(renderer_.progress().end_frame, frame_at_millisecond(710));
}

TEST_F(RenderingTest, StoppingReleasesTheNotesAlsoWhenPlayFollowsAtOnce) {
    open({held_note()});
    render(300);
    ++wish_.cut_serial;
    wish(State::stopped);
    wish(State::playing);  // before the other was seen
    render(50);
    EXPECT_EQ(voices(), 0);
    EXPECT_EQ(renderer_.progress().end_frame, frame_at_millisecond(350));
}

TEST_F(RenderingTest, StoppingAPausedSongIsNotHeardNeitherAtOnceNorWithTheNextSong) {
    for (const Milliseconds gap : {0, 1, 500}) {
        open({held_note()});
        render(300);
        wish(State::paused);
        render(20);
        const auto left_behind = told_to_all();
        wish(State::stopped);
        EXPECT_EQ(render(gap).peak(), 0.0F);
        EXPECT_EQ(voices() == 0, gap > 0);
        open({Track().end_at(1000)});
        EXPECT_LT(render(900).peak(), 0.001F) << gap;  // the note was 40 times as loud, its echo 10
        expect_told(left_behind);
    }
}

TEST_F(RenderingTest, NothingThatTheUserDoesClicks) {
    open({held_note()});
    render(500);
    const float smooth = heard_.largest_jump();
    ASSERT_GT(heard_.peak(), smooth * 4);  // so that a click would show
    for (int round = 0; round < 8; ++round) {
        render(3 * round + 1);  // at various points of the wave
        wish(State::paused);
        render(20);
        wish(State::playing);
        render(100);
        go_to(200 + 10 * round);
        wish(State::playing);
        render(50);
        const auto reset = static_cast<std::uint32_t>(100 + round);
        open({held_note(),
              Track().at(reset).exclusive(kGmOn).program(0, kOcarina).note_on(0, 74, 100)});
        render(200);
        wish(State::stopped);
        render(30);
        wish(State::playing);
        open({held_note()});
        render(200);
        renderer_.set_volume(round % 2 ? 1.0F : 0.0F, 1.0F);
    }
    EXPECT_LT(heard_.largest_jump(), smooth * 2);
}

TEST_F(RenderingTest, MasterVolumeMessagesAndTheOutputVolumeMakeItQuieter) {
    open({held_note()});
    render(500);
    const float full = render(200).peak();
    renderer_.set_volume(0.5F, 0.0F);
    render(20);
    const Sound half = render(200);
    EXPECT_NEAR(half.peak(), full / 2, full * 0.05F);
    EXPECT_EQ(*std::max_element(half.right.begin(), half.right.end()), 0.0F);
    renderer_.set_volume(1.0F, 1.0F);
    open({Track().exclusive({0x43, 0x10, 0x4C, 0, 0, 4, 64}).end_at(10), held_note()});
    render(500);
    EXPECT_NEAR(render(200).peak(), full / 4, full * 0.05F);
}

}  // namespace
}  // namespace zephyne::test
