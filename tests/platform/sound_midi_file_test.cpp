// The reader of Standard MIDI Files: what it makes of good files, of odd ones and of broken ones.
#include "platform/sound/standard_midi_file.h"
#include "smf_builder.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <random>
#include <sstream>

namespace zephyne::test {
namespace {

// "time in microseconds: status data data", or the bytes of an exclusive message.
std::string line(const MidiSong& song, const MidiEvent& event) {
    const bool exclusive = event.status == 0xF0;
    std::ostringstream line;
    line << event.time / 1000 << ": " << std::hex << std::uppercase << int{event.status};
    if (!exclusive) line << std::dec << ' ' << int{event.data1} << ' ' << int{event.data2};
    for (const int byte :
         exclusive ? song.message(event.message) : std::span<const std::uint8_t>()) {
        line << ' ' << std::setw(2) << std::setfill('0') << byte;
    }
    return line.str();
}

using Lines = std::vector<std::string>;

Lines lines(const MidiSong& song) {
    Lines all;
    for (const MidiEvent& event : song.events) all.push_back(line(song, event));
    return all;
}

MidiSong read(const Bytes& bytes) {
    auto song = parse_standard_midi_file(bytes);
    EXPECT_TRUE(song.has_value()) << (song ? "" : song.error());
    return song ? *song : MidiSong();
}

TEST(StandardMidiFile, TracksAreMergedInTheOrderOfTimeAndThenOfTracks) {
    const MidiSong song =
        read(smf(1, kTicksAreMilliseconds,
                 {Track().at(10).program(0, 5).at(30).note_on(0, 60, 1).end_at(40),
                  Track().at(10).program(1, 6).at(20).note_on(1, 61, 2).end_at(30),
                  Track().at(0).pitch_bend(2, 8193).end_at(100)}));
    EXPECT_EQ(lines(song), (Lines{"0: E2 1 64", "10000: C0 5 0", "10000: C1 6 0", "20000: 91 61 2",
                                  "30000: 90 60 1"}));
    EXPECT_EQ(song.length_in_milliseconds(), 100);
}

TEST(StandardMidiFile, ATempoChangeInOneTrackHoldsForAllFromThereOn) {
    const MidiSong song = read(smf(
        1, 100,
        {Track().at(100).tempo(1'000'000).at(200).tempo(250'000).end_at(200),
         Track().at(50).note_on(0, 1, 1).at(150).note_on(0, 2, 1).at(300).note_on(0, 3, 1).end_at(
             400)}));
    EXPECT_EQ(lines(song), (Lines{"250000: 90 1 1", "1000000: 90 2 1", "1750000: 90 3 1"}));
    EXPECT_EQ(song.length, 2'000'000'000);
}

TEST(StandardMidiFile, ThousandsOfTempoChangesDoNotAddUpRoundingErrors) {
    Track track;
    // A third of a microsecond is lost at every tick, unless the rest is carried on.
    for (std::uint32_t tick = 0; tick < 9000; ++tick) track.at(tick).tempo(100'000 + tick % 2);
    const MidiSong song = read(smf(0, 3, {track.end_at(9000)}));
    EXPECT_EQ(song.length, (4500LL * 100'000 + 4500LL * 100'001) * 1000 / 3);
}

TEST(StandardMidiFile, TracksOfFormat2FollowOneAnotherEachWithItsOwnTempo) {
    const MidiSong song = read(smf(2, kTicksAreMilliseconds,
                                   {Track().tempo(1'000'000).at(10).note_on(0, 1, 1).end_at(50),
                                    Track().at(10).note_on(0, 2, 1).end_at(50)}));
    EXPECT_EQ(lines(song), (Lines{"20000: 90 1 1", "110000: 90 2 1"}));
    EXPECT_EQ(song.length_in_milliseconds(), 150);
}

TEST(StandardMidiFile, SmpteDivisionsCountFramesAndKnowNoTempo) {
    for (const int frames : {24, 25, 29, 30}) {
        const int division = (256 - frames) << 8 | 40;
        const auto ticks = static_cast<std::uint32_t>(3600 * frames * 40);
        const MidiSong song = read(smf(0, division, {Track().tempo(123).end_at(ticks)}));
        EXPECT_EQ(song.length, frames == 29 ? 3480LL * 1'001'000'000 : 3600'000'000'000) << frames;
    }
}

TEST(StandardMidiFile, RunningStatusIsKeptAcrossMetaEventsAndExclusives) {
    Track track;
    track.note_on(3, 60, 1).raw({61, 2}).text("in between").raw({62, 3}).exclusive({0x7D, 1});
    track.raw({63, 4}).raw({0xC3, 7}).raw({8});
    const Bytes file = smf(0, kTicksAreMilliseconds, {track.end_at(1)});
    EXPECT_EQ(lines(read(file)), (Lines{"0: 93 60 1", "0: 93 61 2", "0: 93 62 3", "0: F0 7D 01",
                                        "0: 93 63 4", "0: C3 7 0", "0: C3 8 0"}));
}

TEST(StandardMidiFile, ExclusiveMessagesMayComeInPacketsOrUnfinishedOrEscaped) {
    Track track;
    track.at(1).raw({0xF0, 2, 0x41, 0x10}).at(2).raw({0xF7, 1, 0x42});
    track.at(3).raw({0xF7, 2, 0x12, 0xF7});  // done here
    track.at(4).raw({0xF0, 2, 0x43, 0x10});  // never finished
    track.at(5).note_on(0, 1, 1);
    track.at(6).raw({0xF7, 4, 0xF0, 0x7E, 0x7F, 0xF7});  // escaped, whole
    track.at(7).raw({0xF7, 2, 0xF3, 1}).raw({0xF0, 0});  // something else; nothing at all
    const Bytes file = smf(0, kTicksAreMilliseconds, {track.end_at(8)});
    EXPECT_EQ(lines(read(file)),
              (Lines{"3000: F0 41 10 42 12", "4000: F0 43 10", "5000: 90 1 1", "6000: F0 7E 7F"}));
}

TEST(StandardMidiFile, ARiffWrapperIsLookedThroughWhereverTheDataChunkIs) {
    const Bytes inner = smf(0, kTicksAreMilliseconds, {Track().note_on(0, 1, 1).end_at(5)});
    const auto little = [](const std::string& name, const Bytes& contents) {
        Bytes bytes(name.begin(), name.end());
        const Bytes size = big_endian(static_cast<std::uint32_t>(contents.size()), 4);
        bytes.insert(bytes.end(), size.rbegin(), size.rend());
        append(bytes, contents);
        return bytes;
    };
    Bytes contents{'R', 'M', 'I', 'D'};
    append(contents, little("DISP", {1, 0, 0, 0, 'x', 'y'}));
    append(contents, little("data", inner));
    append(contents,
           little("LIST", {'I', 'N', 'F', 'O', 'M', 'T', 'r', 'k', 0, 0, 0, 3, 0, 0x90, 9, 9}));
    EXPECT_EQ(lines(read(little("RIFF", contents))), Lines{"0: 90 1 1"});
}

TEST(StandardMidiFile, ALengthOfATrackThatIsWrongLosesNoTrack) {
    const Bytes first = Track().note_on(0, 1, 1).at(4).note_off(0, 1).end_at(5).bytes();
    const Bytes second = Track().note_on(1, 2, 2).end_at(6).bytes();
    const auto right = static_cast<std::uint32_t>(first.size());
    for (const std::uint32_t claimed :
         {0U, 1U, 5U, right - 1, right, right + 1, right + 4, right + 8, right + 8 + 3,
          static_cast<std::uint32_t>(right + 8 + second.size()), 100'000U, 0xFFFFFFFFU}) {
        Bytes file = header(1, 2, kTicksAreMilliseconds);
        append(file, chunk("MTrk", first, claimed));
        append(file, chunk("MTrk", second));
        EXPECT_EQ(lines(read(file)), (Lines{"0: 90 1 1", "0: 91 2 2", "4000: 80 1 64"})) << claimed;
    }
}

TEST(StandardMidiFile, NeitherTheTrackCountNorUnknownChunksNorAMissingEndOfTrackMatter) {
    for (const int claimed : {0, 1, 2, 9, 65535}) {
        Bytes file = header(0, claimed, kTicksAreMilliseconds);
        append(file, chunk("XFIH", {0, 0x90, 1, 1, 'M', 'T', 'r', 'k'}));
        append(file, chunk("MTrk", Track().at(3).note_on(0, 1, 1).bytes()));
        append(file, chunk("MTrk", Track().at(4).note_on(1, 2, 2).end_at(5).bytes()));
        append(file, chunk("XFKM", {'a', 'b', 'c'}));
        append(file, chunk("MTrk", Track().at(9).text("the end").bytes()));
        const MidiSong song = read(file);
        EXPECT_EQ(lines(song), (Lines{"3000: 90 1 1", "4000: 91 2 2"})) << claimed;
        EXPECT_EQ(song.length_in_milliseconds(), 9) << claimed;
    }
}

TEST(StandardMidiFile, ATrackIsReadUpToTheFirstThingThatMakesNoSense) {
    const std::vector<Track> broken = {
        Track().at(2).note_on(0, 1, 1).raw({0x90, 0x90, 0x90}),     // status for data
        Track().at(2).note_on(0, 1, 1).raw({0xFF, 0x01, 99, 'x'}),  // text beyond the end
        Track().at(2).note_on(0, 1, 1).raw({0xF0, 99, 0x41}),       // exclusive as well
        Track().at(2).note_on(0, 1, 1).raw({0xFF, 0x01, 0xFF, 0xFF, 0xFF, 0xFF, 0}),  // length
    };
    for (const Track& track : broken) {
        const MidiSong song =
            read(smf(1, kTicksAreMilliseconds, {track, Track().at(8).note_on(1, 2, 2).end_at(10)}));
        EXPECT_EQ(lines(song), (Lines{"2000: 90 1 1", "8000: 91 2 2"}));
    }
    const MidiSong no_status = read(smf(0, kTicksAreMilliseconds, {Track().at(1).raw({60, 64})}));
    EXPECT_EQ(lines(no_status), Lines{});
}

TEST(StandardMidiFile, WhatIsNoMidiFileIsRefusedInWords) {
    const auto error = [](const Bytes& bytes) {
        const auto song = parse_standard_midi_file(bytes);
        return song ? std::string("none") : song.error();
    };
    EXPECT_EQ(error({}), "it is not a MIDI file");
    EXPECT_EQ(error({'R', 'I', 'F', 'F', 4, 0, 0, 0, 'W', 'A', 'V', 'E'}), "it is not a MIDI file");
    EXPECT_EQ(error({'M', 'T', 'h', 'd', 0, 0, 0, 6, 0, 1}),
              "the MIDI file breaks off in its header");
    EXPECT_EQ(error(header(1, 1, 480)), "the MIDI file has no track");
    for (const int division : {0, 0xE700}) {
        EXPECT_EQ(error(smf(0, division, {Track().end_at(1)})),
                  "the MIDI file does not say how it counts time");
    }
}

TEST(StandardMidiFile, EnormousTimesStayInOrderAndWithinBounds) {
    Track track;
    track.tempo(0xFFFFFF);
    std::uint32_t tick = 0;
    for (int i = 0; i < 40; ++i) track.at(tick += 0x0FFFFFFF).text("far away");
    track.note_on(0, 1, 1).at(tick += 0x0FFFFFFF).note_off(0, 1);
    const MidiSong song = read(smf(0, 1, {track}));
    ASSERT_EQ(song.events.size(), 2U);
    EXPECT_GE(song.events[0].time, 0);
    EXPECT_LE(song.events[0].time, song.events[1].time);
    EXPECT_LE(song.events[1].time, song.length);
}

Bytes rich_file() {
    Track notes;
    notes.program(0, 9).at(3).note_on(0, 60, 1).raw({61, 2}).at(200).note_off(0, 60);
    Track packets;
    packets.at(1).raw({0xF0, 1, 0x41}).at(2).raw({0xF7, 2, 1, 0xF7}).pitch_bend(3, 99);
    return smf(1, 96,
               {Track().tempo(400'000).text("a name").exclusive({0x7E, 0x7F, 9, 1}).end_at(500),
                notes.end_at(300), packets.end_at(9)});
}

TEST(StandardMidiFile, AFileThatBreaksOffAnywhereGivesWhatIsThere) {
    const Bytes whole = rich_file();
    std::size_t most = 0;
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        // A buffer of just that size, so that a sanitizer sees every step beyond it.
        const Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        const auto song = parse_standard_midi_file(part);
        EXPECT_EQ(song.has_value(), size >= 14 + 8) << size;
        if (!song) continue;
        EXPECT_GE(song->events.size(), most) << size;
        most = song->events.size();
    }
    EXPECT_EQ(most, 7U);
}

TEST(StandardMidiFile, DamagedBytesNeverHarmTheReader) {
    const Bytes whole = rich_file();
    std::mt19937 random(4711);
    for (int round = 0; round < 20'000; ++round) {
        Bytes bytes = whole;
        for (int i = 0; i < 4; ++i)
            bytes[random() % bytes.size()] = static_cast<std::uint8_t>(random());
        const auto song = parse_standard_midi_file(bytes);
        if (!song) continue;
        Nanoseconds last = 0;
        for (const MidiEvent& event : song->events) {
            ASSERT_GE(event.time, last);
            last = event.time;
            ASSERT_GE(event.status, 0x80);
            ASSERT_LE(event.status, 0xF0);
            ASSERT_LE(event.data1 | event.data2, 127);
            if (event.status == 0xF0) {
                ASSERT_LE(song->message(event.message).size(), bytes.size());
            }
        }
        ASSERT_GE(song->length, last);
    }
}

}  // namespace
}  // namespace zephyne::test
