// What the real synthesizer has been told after a seek, a song before, or a reset.
#include "rendering.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

Track eventful_song() {
    Track track;
    track.exclusive(kGsReset);
    track.exclusive({0x41, 0x10, 0x42, 0x12, 0x40, 0x12, 0x15, 0x01, 0x18});  // channel 2: drums
    track.program(0, kOcarina).controller(1, 0, 8).program(1, 4).controller(0, 7, 90);
    track.controller(0, 101, 0).controller(0, 100, 0).controller(0, 6,
                                                                 12);  // bends by 12 semitones
    track.at(100).note_on(0, 60, 100).pitch_bend(0, 9000).at(400).note_off(0, 60);
    track.at(700).controller(0, 64, 127).channel_pressure(0, 30).controller(0, 10, 20);
    track.note_on(0, 62, 100).at(900).note_off(0, 62).controller(0, 64, 0);
    track.at(4800).note_on(0, 65, 110).note_on(1, 69, 90).note_on(2, 38, 90);
    return track.end_at(7000);
}

TEST_F(RenderingTest, ASeekLeavesTheSynthesizerAsIfItHadPlayedThere) {
    open({eventful_song()});
    render(4700);
    const auto played = told_to_all();
    const double loudness = render(1000).loudness();
    EXPECT_GT(loudness, 0.001);

    go_to(800);  // back, into a note
    wish(State::playing);
    render(10);
    EXPECT_LT(render(50).peak(), 0.001F);  // which does not sound
    go_to(4700);
    wish(State::playing);
    render(1);
    expect_told(played);
    EXPECT_NEAR(render(999).loudness(), loudness, loudness * 0.05);
}

TEST_F(RenderingTest, SeekingWhilePausedStaysPausedAndSilent) {
    open({held_note()});
    render(300);
    wish(State::paused);
    render(10);
    go_to(5000);
    wish(State::paused);
    EXPECT_EQ(render(100).peak(), 0.0F);
    EXPECT_EQ(renderer_.progress().end_frame, frame_at_millisecond(5000));
    wish(State::playing);
    render(100);
    EXPECT_EQ(renderer_.progress().end_frame, frame_at_millisecond(5100));
}

// The state that a song leaves behind is part of the next one; also when that one is rewound.
TEST_F(RenderingTest, ASongBeginsWithWhatTheOneBeforeLeftBehindAndKeepsItWhenRewound) {
    open({Track()
              .exclusive(kXgOn)
              .controller(3, 7, 11)
              .controller(3, 0, 127)  // a drum channel, in XG
              .program(3, 0)
              .pitch_bend(4, 12345)
              .program(5, 55)
              .exclusive({0x7F, 0x7F, 4, 1, 0, 64})
              .end_at(10)});
    render(100);
    const auto left_behind = told_to_all();
    const float volume = synthesizer_.master_volume();
    EXPECT_LT(volume, 0.5F);

    open({Track().at(100).exclusive(kGmOn).program(5, 1).end_at(1000)});
    render(50);
    EXPECT_EQ(program_of(5), 55);
    render(100);
    EXPECT_EQ(program_of(5), 1);
    EXPECT_EQ(synthesizer_.master_volume(), 1.0F);
    go_to(50);
    wish(State::playing);
    render(1);
    expect_told(left_behind);
    EXPECT_EQ(synthesizer_.master_volume(), volume);
}

TEST_F(RenderingTest, AResetMessageResetsEverythingAndChoosesHowBanksAreSelected) {
    const auto fresh = told_to_all();
    struct Case {
        std::initializer_list<std::uint8_t> reset;
        int bank_by_0;   // the bank after controller 0 was set to 8
        int bank_by_32;  // and after controller 32 was set to 9, then
    };
    for (const Case& c : {Case{kGmOn, 0, 0}, Case{kXgOn, 0, 9}, Case{kGsReset, 8, 8}}) {
        Track dirt;
        for (int channel = 0; channel < 16; ++channel) {
            dirt.controller(channel, 0, 1).program(channel, 40).controller(channel, 7, 3);
            dirt.controller(channel, 64, 127).controller(channel, 91, 99).pitch_bend(channel, 1);
            dirt.channel_pressure(channel, 9).note_on(channel, 60, 100);
        }
        open({dirt.exclusive({0x7F, 0x7F, 4, 1, 0, 1}).end_at(10)});
        render(20);
        open({Track().exclusive(c.reset).end_at(10)});
        render(5);
        EXPECT_EQ(voices(), 0);
        EXPECT_EQ(synthesizer_.master_volume(), 1.0F);
        expect_told(fresh);
        open({Track().controller(0, 0, 8).program(0, 0).end_at(10)});
        render(20);
        EXPECT_EQ(bank_of(0), c.bank_by_0);
        open({Track().controller(0, 32, 9).program(0, 0).end_at(10)});
        render(20);
        EXPECT_EQ(bank_of(0), c.bank_by_32);
    }
}

TEST_F(RenderingTest, AModeMessageEndsTheNotesOfItsChannelAndLeavesAllChannelsAlive) {
    for (const int mode : {124, 125, 126, 127}) {
        open({Track()
                  .exclusive(kGmOn)
                  .program(0, kOcarina)
                  .program(1, kOcarina)
                  .note_on(0, 60, 100)
                  .at(100)
                  .controller(0, mode, 1)
                  .at(1000)
                  .note_on(1, 72, 100)
                  .end_at(2000)});
        render(900);
        EXPECT_EQ(voices(), 0) << mode;
        render(200);
        EXPECT_EQ(voices(), 1) << mode;
    }
}
}  // namespace
}  // namespace zephyne::test
