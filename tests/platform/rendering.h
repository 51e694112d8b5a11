// A synthesizer that plays songs of a test's own, and what is heard of them.
#pragma once

#include "platform/sound/song_renderer.h"
#include "platform/sound/sound_font_search.h"
#include "platform/sound/standard_midi_file.h"
#include "platform/sound/synthesizer.h"
#include "smf_builder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace zephyne::test {

inline const std::initializer_list<std::uint8_t> kGmOn = {0x7E, 0x7F, 0x09, 0x01};
inline const std::initializer_list<std::uint8_t> kGsReset = {0x41, 0x10, 0x42, 0x12, 0x40,
                                                             0x00, 0x7F, 0x00, 0x41};
inline const std::initializer_list<std::uint8_t> kXgOn = {0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00};

inline constexpr int kOcarina = 79;  // close to a sine, and it sounds as long as its key is held

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
    using State = PlayWish::State;

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

    // {sound font, bank, program}
    std::array<int, 3> preset_of(int channel) {
        std::array<int, 3> preset{};
        fluid_synth_get_program(synthesizer_.library_object(), channel, &preset[0], &preset[1],
                                &preset[2]);
        return preset;
    }
    int bank_of(int channel) { return preset_of(channel)[1]; }
    int program_of(int channel) { return preset_of(channel)[2]; }

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

inline Track held_note() {
    return Track().program(0, kOcarina).note_on(0, 72, 100).end_at(60'000);
}

}  // namespace zephyne::test
