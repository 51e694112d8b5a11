// The sequencer, event by event, on a sink that writes down what it is told.
#include "platform/sound/sequencer.h"
#include "platform/sound/standard_midi_file.h"
#include "smf_builder.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

using Lines = std::vector<std::string>;

class RecordingSink final : public MidiSink {
  public:
    Lines log;

    void note_off(int channel, int key) override { write("off", {channel, key}); }
    void note_on(int channel, int key, int velocity) override {
        write("on", {channel, key, velocity});
    }
    void key_pressure(int channel, int key, int pressure) override {
        write("key pressure", {channel, key, pressure});
    }
    void controller(int channel, int number, int value) override {
        write("controller", {channel, number, value});
    }
    void program(int channel, int number) override { write("program", {channel, number}); }
    void channel_pressure(int channel, int pressure) override {
        write("pressure", {channel, pressure});
    }
    void pitch_bend(int channel, int bend) override { write("bend", {channel, bend}); }
    void system_exclusive(std::span<const std::uint8_t> message) override {
        write("exclusive", std::vector<int>(message.begin(), message.end()));
    }
    void begin_seek() override { write("begin seek", {}); }
    void end_seek() override { write("end seek", {}); }

  private:
    void write(std::string line, const std::vector<int>& numbers) {
        for (const int number : numbers) line.append(" ").append(std::to_string(number));
        log.push_back(line);
    }
};

struct SequencerTest : testing::Test {
    MidiSong song;
    RecordingSink sink;
    Sequencer sequencer{sink};

    void open(const std::vector<Track>& tracks) {
        song = *parse_standard_midi_file(smf(1, kTicksAreMilliseconds, tracks));
        sequencer.open(&song);
    }

    // Plays to its end in pieces of at most that many frames, as a renderer does, and writes the
    // frame before the events that came with it.
    void play_to_end(FrameCount largest_piece) {
        while (true) {
            const std::size_t before = sink.log.size();
            sequencer.send_due_events();
            if (sink.log.size() != before) {
                sink.log.insert(sink.log.begin() + static_cast<std::ptrdiff_t>(before),
                                std::string("at ").append(std::to_string(sequencer.frame())));
            }
            if (sequencer.at_end()) return;
            sequencer.advance(std::min(largest_piece, sequencer.frames_to_next_stop()));
        }
    }
};

TEST_F(SequencerTest, SendsEveryKindOfEventAtTheFrameOfItsTime) {
    Track track;
    track.exclusive({0x7E, 0x7F, 9, 1}).program(9, 8);
    track.at(10).controller(1, 7, 100).pitch_bend(2, 16383).channel_pressure(3, 4);
    track.at(1000).note_on(15, 60, 127).key_pressure(15, 60, 5);
    track.at(1001).note_off(15, 60).end_at(2000);
    const Lines expected = {"at 0",
                            "exclusive 126 127 9 1",
                            "program 9 8",
                            "at 441",
                            "controller 1 7 100",
                            "bend 2 16383",
                            "pressure 3 4",
                            "at 44100",
                            "on 15 60 127",
                            "key pressure 15 60 5",
                            "at 44145",
                            "off 15 60"};
    for (const FrameCount piece : {1, 64, 1000, 1'000'000}) {
        open({track});
        sink.log.clear();
        play_to_end(piece);
        EXPECT_EQ(sink.log, expected) << piece;
        EXPECT_EQ(sequencer.frame(), 88200) << piece;
    }
}

TEST_F(SequencerTest, SeekingReplaysEverythingButNotesAndOnlyWhatIsBeforeThePlace) {
    Track track;
    track.program(0, 1).at(10).note_on(0, 60, 1).controller(0, 7, 50);
    track.at(20).note_off(0, 60).exclusive({0x7D});
    track.at(30).controller(0, 7, 60).note_on(0, 62, 1).end_at(100);
    open({track, Track().tempo(250'000).end_at(0)});  // all of it twice as fast
    sequencer.seek(frame_at_millisecond(15));
    EXPECT_EQ(sink.log, (Lines{"begin seek", "program 0 1", "controller 0 7 50", "exclusive 125",
                               "end seek"}));
    sink.log.clear();
    sequencer.send_due_events();
    EXPECT_EQ(sink.log, (Lines{"controller 0 7 60", "on 0 62 1"}));
}

TEST_F(SequencerTest, SeekingBackReplaysFromTheStartAndBeyondTheEndStopsThere) {
    open({Track().program(0, 1).at(10).program(0, 2).at(20).program(0, 3).end_at(30)});
    sequencer.seek(1'000'000'000);
    EXPECT_TRUE(sequencer.at_end());
    EXPECT_EQ(sequencer.frame(), frame_at_millisecond(30));
    sink.log.clear();
    sequencer.seek(frame_at_millisecond(11));
    EXPECT_EQ(sink.log, (Lines{"begin seek", "program 0 1", "program 0 2", "end seek"}));
    sink.log.clear();
    play_to_end(64);
    EXPECT_EQ(sink.log, (Lines{"at 882", "program 0 3"}));
}

TEST_F(SequencerTest, ASongOpenedAtItsEndHasToldAllOfItButTheNotes) {
    open({Track().program(0, 1).note_on(0, 60, 1).at(30).note_off(0, 60).program(0, 2).end_at(30)});
    sequencer.open_at_end(song);
    sequencer.send_due_events();
    EXPECT_EQ(sink.log, (Lines{"program 0 1", "program 0 2"}));
    EXPECT_TRUE(sequencer.at_end());
}

TEST_F(SequencerTest, NothingToPlayIsAtItsEnd) {
    EXPECT_TRUE(sequencer.at_end());
    sequencer.send_due_events();
    open({Track().note_on(0, 1, 1).end_at(0)});
    play_to_end(64);
    EXPECT_EQ(sink.log, (Lines{"at 0", "on 0 1 1"}));
    sequencer.open(nullptr);
    EXPECT_TRUE(sequencer.at_end());
}

TEST(SampleTime, EveryMillisecondLeadsToAFrameAndBack) {
    for (Milliseconds time = 0; time < 100'000; ++time) {
        const FrameCount frame = frame_at_millisecond(time);
        ASSERT_EQ(millisecond_at(frame), time);
        ASSERT_TRUE(time == 0 || millisecond_at(frame - 1) == time - 1) << time;
    }
}

}  // namespace
}  // namespace zephyne::test
