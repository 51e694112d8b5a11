// What comes out of the real synthesizer when songs are played, paused, stopped and sought in.
#include "platform/sound/song_renderer.h"
#include "platform/sound/sound_font_search.h"
#include "platform/sound/standard_midi_file.h"
#include "platform/sound/synthesizer.h"
#include "smf_builder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zephyne {
namespace {

using namespace test;
using State = PlayWish::State;

const std::initializer_list<std::uint8_t> kGmOn = {0x7E, 0x7F, 0x09, 0x01};
const std::initializer_list<std::uint8_t> kGsReset = {0x41, 0x10, 0x42, 0x12, 0x40,
                                                      0x00, 0x7F, 0x00, 0x41};
const std::initializer_list<std::uint8_t> kXgOn = {0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00};

constexpr int kOcarina = 79;  // close to a sine, and it sounds as long as its key is held

struct Sound {
    std::vector<float> left;
    std::vector<float> right;

    float peak() const {
        float peak = 0;
        for (const float sample : left) peak = std::max(peak, std::fabs(sample));
        return peak;
    }
    double loudness() const {  // root mean square
        double sum = 0;
        for (const float sample : left) sum += double{sample} * sample;
        return std::sqrt(sum / static_cast<double>(left.size()));
    }
    float largest_jump() const {
        float jump = 0;
        for (std::size_t i = 1; i < left.size(); ++i) {
            jump = std::max(
                {jump, std::fabs(left[i] - left[i - 1]), std::fabs(right[i] - right[i - 1])});
        }
        return jump;
    }
};

class RenderingTest : public testing::Test {
  protected:
    void SetUp() override {
        const auto fonts = sound_fonts_in(usual_sound_font_places());
        if (fonts.empty()) GTEST_SKIP() << "this machine has no sound font";
        ASSERT_TRUE(synthesizer_.open());
        ASSERT_TRUE(synthesizer_.load_sound_font(fonts.front()));
        renderer_.set_ready();
    }

    // Opens a song of these tracks, whose ticks are milliseconds, and wishes that state.
    void open(const std::vector<Track>& tracks, State state = State::playing) {
        auto song = parse_standard_midi_file(smf(1, kTicksAreMilliseconds, tracks));
        ASSERT_TRUE(song.has_value());
        songs_.push_back(std::make_unique<MidiSong>(std::move(*song)));
        wish_.song = songs_.back().get();
        ++wish_.song_serial;
        wish(state);
    }

    void wish(State state) {
        wish_.state = state;
        ++wish_.number;
        renderer_.submit(wish_);
    }

    void go_to(Milliseconds time) {
        wish_.seek_frame = frame_at_millisecond(time);
        ++wish_.seek_serial;
    }

    // Renders on, adding to `heard`; in pieces of odd sizes.
    Sound render(Milliseconds time) {
        Sound sound;
        const auto frames = static_cast<std::size_t>(frame_at_millisecond(time));
        sound.left.resize(frames);
        sound.right.resize(frames);
        for (std::size_t done = 0; done < frames;) {
            const auto piece = std::min<std::size_t>(frames - done, 317);
            renderer_.render(sound.left.data() + done, sound.right.data() + done,
                             static_cast<int>(piece));
            done += piece;
        }
        heard_.left.insert(heard_.left.end(), sound.left.begin(), sound.left.end());
        heard_.right.insert(heard_.right.end(), sound.right.begin(), sound.right.end());
        return sound;
    }

    int voices() { return fluid_synth_get_active_voice_count(synthesizer_.library_object()); }

    int bank_of(int channel) {
        int font = 0, bank = 0, program = 0;
        fluid_synth_get_program(synthesizer_.library_object(), channel, &font, &bank, &program);
        return bank;
    }
    int program_of(int channel) {
        int font = 0, bank = 0, program = 0;
        fluid_synth_get_program(synthesizer_.library_object(), channel, &font, &bank, &program);
        return program;
    }

    // What a channel has been told: its controllers other than 0, and so on.
    std::string told(int channel) {
        fluid_synth_t* const synth = synthesizer_.library_object();
        std::string all;
        const auto add = [&all](const std::string& name, int value) {
            all += name + "=" + std::to_string(value) + " ";
        };
        for (int i = 0; i < 120; ++i) {
            int value = 0;
            fluid_synth_get_cc(synth, channel, i, &value);
            if (value != 0) add(std::to_string(i), value);
        }
        int bend = 0, range = 0;
        fluid_synth_get_pitch_bend(synth, channel, &bend);
        fluid_synth_get_pitch_wheel_sens(synth, channel, &range);
        fluid_preset_t* const preset = fluid_synth_get_channel_preset(synth, channel);
        add("bend", bend);
        add("range", range);
        add("bank", bank_of(channel));
        add("program", program_of(channel));
        add("sounds as bank", fluid_preset_get_banknum(preset));
        return all;
    }
    std::vector<std::string> told_to_all() {
        std::vector<std::string> all;
        for (int channel = 0; channel < 16; ++channel) all.push_back(told(channel));
        return all;
    }
    void expect_told(const std::vector<std::string>& expected) {
        for (int channel = 0; channel < 16; ++channel) {
            EXPECT_EQ(told(channel), expected[static_cast<std::size_t>(channel)]) << channel;
        }
    }

    Synthesizer synthesizer_;
    SongRenderer renderer_{synthesizer_};
    std::vector<std::unique_ptr<MidiSong>> songs_;
    PlayWish wish_;
    Sound heard_;
};

Track held_note() {
    return Track().program(0, kOcarina).note_on(0, 72, 100).end_at(60'000);
}

TEST_F(RenderingTest, AWishWaitsUntilTheSoundFontIsThere) {
    Synthesizer synthesizer;
    SongRenderer renderer(synthesizer);
    EXPECT_TRUE(renderer.idle());
    const MidiSong song = *parse_standard_midi_file(smf(0, kTicksAreMilliseconds, {held_note()}));
    renderer.submit({.number = 1, .song = &song, .song_serial = 1, .state = State::playing});
    std::array<float, 64> left{1.0F};
    std::array<float, 64> right{1.0F};
    renderer.render(left.data(), right.data(), 64);
    EXPECT_EQ(left[0], 0.0F);
    EXPECT_EQ(renderer.progress().number, 0U);
    EXPECT_FALSE(renderer.idle());
    renderer.set_ready();
    renderer.render(left.data(), right.data(), 64);
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

TEST_F(RenderingTest, StoppingAPausedSongIsNotHeard) {
    open({held_note()});
    render(300);
    wish(State::paused);
    render(10);
    wish(State::stopped);
    EXPECT_EQ(render(3100).peak(), 0.0F);
    EXPECT_TRUE(renderer_.idle());
    EXPECT_EQ(voices(), 0);
    open({Track().end_at(1000)});
    EXPECT_LT(render(1000).peak(), 0.0001F);  // nothing was left in the room
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
        open({held_note(), Track()
                               .at(static_cast<std::uint32_t>(100 + round))
                               .exclusive(kGmOn)
                               .program(0, kOcarina)
                               .note_on(0, 74, 100)
                               .end_at(60'000)});
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

Track eventful_song() {
    return Track()
        .exclusive(kGsReset)
        .exclusive({0x41, 0x10, 0x42, 0x12, 0x40, 0x12, 0x15, 0x01, 0x18})  // channel 2 has drums
        .program(0, kOcarina)
        .controller(1, 0, 8)
        .program(1, 4)
        .controller(0, 7, 90)
        .controller(0, 101, 0)
        .controller(0, 100, 0)
        .controller(0, 6, 12)  // bends go twelve semitones
        .at(100)
        .note_on(0, 60, 100)
        .pitch_bend(0, 9000)
        .at(400)
        .note_off(0, 60)
        .at(700)
        .controller(0, 64, 127)
        .channel_pressure(0, 30)
        .controller(0, 10, 20)
        .note_on(0, 62, 100)
        .at(900)
        .note_off(0, 62)
        .controller(0, 64, 0)
        .at(4800)
        .note_on(0, 65, 110)
        .note_on(1, 69, 90)
        .note_on(2, 38, 90)
        .end_at(7000);
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
}  // namespace zephyne
