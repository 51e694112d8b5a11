#include "songdata/song_summary.h"

#include "tests/songdata/midi_bytes.h"
#include "tests/support/world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace zephyne::test {
namespace {

using Texts = Log;

// A song of many texts, whose scan lets events run twice in its middle.
std::string many_texts(const std::string& name) {
    std::string image = header(1, 2);
    for (int i = 0; i < 45; ++i) image += meta(3, name + std::to_string(i));
    return image;
}

std::string many_syllables() {
    std::string words;
    for (int i = 0; i < 25; ++i) words += text_events({"la "});
    return karaoke_file(text_events({"@Ttitle"}), words);
}

class SongSummaryTest : public testing::Test {
  protected:
    SongSummaryTest() {
        world.settings().Extended = 1;
        world.open_folder();
        box().on_change = [this] { written.push_back(box().text()); };
        world.pump.on_pump = [this] {
            const int pump = pumps++;
            if (at_pump) at_pump(pump);
        };
    }

    World world{"a.mid", "b.mid", "c.mid", "d.mid", "e.wav"};
    SongSummary summary{world.stage};
    Texts written;
    int pumps = 0;
    std::function<void(int)> at_pump;

    TextBox& box() { return world.form.Text1; }
    void make(const std::string& name, const std::string& image) {
        world.files.add_file(world.path(name), image);
    }

    void summarise(const std::string& name) {
        world.program.CurrentSongName = name;
        world.program.CurrentSongPath = world.path(name);
        summary.getsonginfo();
    }

    // All that is written for a song when nothing comes between.
    Texts alone(const std::string& name) {
        at_pump = nullptr;
        box().set_text("before");
        written.clear();
        pumps = 0;
        summarise(name);
        return written;
    }
    std::string text_of(const std::string& name) { return alone(name).back(); }
};

TEST_F(SongSummaryTest, ShowsProgressThenFactsAndTexts) {
    const std::string image = "RIFF....RMIDdata...." + header(1, 12) + meta(2, "(c) 1996 Clara") +
                              meta(3, "Piano") + meta(5, "Hel") + meta(5, "lo ") + meta(5, "\nday");
    make("a.mid", image);
    const std::string size = std::to_string(image.size());
    EXPECT_EQ(alone("a.mid"),
              (Texts{"Scanning File...", "Path/Filename: /music/a.mid\r\n\r\nFile Size: " + size +
                                             " Bytes.\r\nNumber of Tracks: 12\r\n\r\n"
                                             "(c) 1996 Clara\r\nPiano\r\nHel-lo  day\r\n"}));
}

TEST_F(SongSummaryTest, LeavesOutWhatTheFileDoesNotTell) {
    const std::string path = "Path/Filename: /music/a.mid\r\n\r\n";
    make("a.mid", meta(3, "Piano"));
    EXPECT_EQ(text_of("a.mid"), path + "File Size: 8 Bytes.\r\n\r\nPiano\r\n");
    make("a.mid", header(0, 0x8000));
    EXPECT_EQ(text_of("a.mid"), path + "File Size: 14 Bytes.\r\n\r\nNo text found in file.");
    make("Loud.WAV", "1234567");
    EXPECT_EQ(alone("Loud.WAV"),
              (Texts{"Path/Filename: /music/loud.wav\r\n\r\nFile Size: 7 bytes."}));
}

TEST_F(SongSummaryTest, IsEmptyForAFileThatCannotBeReadAndNotMadeWithoutBoxSongOrList) {
    world.files.deny(world.path("a.mid"));
    EXPECT_EQ(alone("a.mid"), (Texts{"Scanning File...", ""}));
    world.files.vanish(world.path("b.mid"));
    EXPECT_EQ(alone("b.mid"), (Texts{"Scanning File...", ""}));
    world.files.vanish(world.path("e.wav"));
    EXPECT_EQ(alone("e.wav"), (Texts{""}));

    world.settings().Extended = 0;
    EXPECT_EQ(alone("c.mid"), Texts{});
    world.settings().Extended = 1;
    world.program.CurrentSongName.clear();
    summary.getsonginfo();
    world.program.CurrentSongName = "c.mid";
    world.program.CurrentSongPath.clear();
    summary.getsonginfo();
    world.form.File1.clear();
    EXPECT_EQ(alone("c.mid"), Texts{});
}

TEST_F(SongSummaryTest, IsMadeWhenASongStartsButNotWhenItGoesOn) {
    make("a.mid", meta(3, "Piano"));
    world.click("a.mid");
    EXPECT_TRUE(box().text().ends_with("Piano\r\n"));
    box().set_text("");
    world.program.ResumePosition = 1000;
    world.engine->player.PlayFile();
    EXPECT_EQ(box().text(), "");
}

TEST_F(SongSummaryTest, LetsEventsRunAtItsPlaces) {
    make("a.mid", many_texts("a"));
    alone("a.mid");
    EXPECT_EQ(pumps, 5) << "opened, loaded, 21st and 42nd candidate, shown";
    make("a.mid", many_syllables());
    alone("a.mid");
    EXPECT_EQ(pumps, 4) << "opened, recognised, 10th and 20th syllable";
}

TEST_F(SongSummaryTest, ShowsKaraokeInStages) {
    const std::string image = karaoke_file(text_events({"@KMIDI KARAOKE FILE", "@V0100"}),
                                           text_events({"@TMoon", "\\Cop", "per"}));
    make("a.mid", image);
    const std::string first = "Soft Karaoke File - Scanning...\r\n\r\n";
    const std::string second =
        first + "Path/Filename: /music/a.mid\r\n\r\nFile Size: " + std::to_string(image.size()) +
        " Bytes.\r\n\r\nMIDI KARAOKE FILE\r\n0100\r\n\r\nWords:\r\n\r\n";
    EXPECT_EQ(alone("a.mid"),
              (Texts{"Scanning File...", first, second, second + "Moon\r\n\r\nCopper"}));
    make("a.mid", meta(3, "Soft Karaoke") + text_events({"@Ttitle"}));
    EXPECT_EQ(text_of("a.mid"), first) << "there are no words";
}

TEST_F(SongSummaryTest, LooksForKaraokeInTheFirst64000BytesOnly) {
    const auto with_gap = [](std::size_t length, const std::string& words) {
        const std::string start = karaoke_file(text_events({"@Ttitle"}), text_events({"first"}));
        const std::string upto = start.substr(0, start.size() - 4);  // the track goes on
        return upto + std::string(length - upto.size(), '.') + words;
    };
    const std::string cut = bytes({1, 9}) + "nine char";
    make("a.mid", with_gap(64'000 - 6, cut) + std::string(9, '.'));
    EXPECT_TRUE(text_of("a.mid").ends_with("Words:\r\n\r\nfirstnine"));
    EXPECT_NE(box().text().find("File Size: 64014 Bytes."), std::string::npos);
    make("a.mid", with_gap(64'000, cut));
    EXPECT_TRUE(text_of("a.mid").ends_with("Words:\r\n\r\nfirst"));
}

TEST_F(SongSummaryTest, WritesNothingMoreOnceThereIsNoSong) {
    make("a.mid", many_texts("a"));
    make("b.mid", many_syllables());
    for (const std::string song : {"a.mid", "b.mid"}) {
        for (int last = 0; last < 4; ++last) {
            pumps = 0;
            at_pump = [&](int pump) {
                if (pump != last) return;
                world.program.CurrentSongPath.clear();
                box().set_text("stopped");
            };
            summarise(song);
            EXPECT_EQ(box().text(), "stopped") << song << ", pump " << last;
        }
    }
    at_pump = nullptr;
    summarise("b.mid");
    EXPECT_TRUE(box().text().ends_with("la la ")) << "the next song is summarised again";
}

// Starts songs inside each other's summaries, and one after the other inside the same, in every
// possible way: up to three songs at any of the first pumps.
TEST_F(SongSummaryTest, OnlyTheNewestSummaryWritesAndItAlwaysDoes) {
    make("a.mid", many_texts("a"));
    make("b.mid", many_syllables());
    make("c.mid", meta(3, "Piano"));
    world.files.vanish(world.path("d.mid"));
    Texts songs = {"a.mid", "b.mid", "c.mid", "d.mid", "e.wav"};
    std::map<std::string, Texts> expected;
    for (const std::string& song : songs) expected[song] = alone(song);

    constexpr int kPumps = 6;
    do {
        for (int first = 0; first < kPumps; ++first) {
            for (int second = first; second < kPumps; ++second) {
                for (int third = 0; third < kPumps; ++third) {
                    std::size_t started = 0;
                    const auto start_next = [&] {
                        box().set_text("before");
                        written.clear();
                        summarise(songs[started++]);
                    };
                    at_pump = [&](int pump) {
                        for (const int start : {first, second, third}) {
                            if (pump == start && started < songs.size()) start_next();
                        }
                    };
                    pumps = 0;
                    start_next();
                    ASSERT_EQ(written, expected[songs[started - 1]])
                        << "songs started at pumps " << first << ", " << second << ", " << third
                        << " of " << testing::PrintToString(songs);
                }
            }
        }
    } while (std::next_permutation(songs.begin(), songs.end()));
}

}  // namespace
}  // namespace zephyne::test
