#include "songdata/soft_karaoke.h"

#include "tests/songdata/midi_bytes.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

const std::string kSignature = bytes({3, 12}) + "Soft Karaoke";
const std::string kWords = bytes({3, 5}) + "Words";

// Header and words with a bar between; "no words" without a words track.
std::string transcript(const std::string& image) {
    SoftKaraokeReader reader(image, find_soft_karaoke(image).value());
    if (!reader.read_header()) return "no words";
    while (reader.read_words()) {
    }
    return reader.transcript().header_text + "#" + reader.transcript().words_text;
}

// From the end of the signature to the words track, and from there on.
std::string header_of(const std::string& after_signature) {
    return transcript(kSignature + after_signature + kWords);
}
std::string words_of(const std::string& after_name) {
    return transcript(kSignature + "." + kWords + after_name);
}

TEST(SoftKaraoke, IsRecognisedInTheFirst8192Bytes) {
    for (const std::size_t before : {0, 1, 8178}) {
        EXPECT_EQ(find_soft_karaoke(std::string(before, '.') + kSignature), before);
    }
    EXPECT_FALSE(find_soft_karaoke(std::string(8179, '.') + kSignature));
    EXPECT_FALSE(find_soft_karaoke(kSignature.substr(0, 13)));
    EXPECT_FALSE(find_soft_karaoke(bytes({3, 12}) + "soft karaoke"));
    EXPECT_FALSE(find_soft_karaoke(""));
}

TEST(SoftKaraoke, BecomesHeaderLinesAndWordsInLines) {
    const std::string image = karaoke_file(
        text_events({"@KMIDI KARAOKE FILE", "@V0100", "@IBy Clara", "plain"}),
        text_events({"@TCopper Moon", "@TClara", "\\Cop", "per ", "moon", "/slow", "ly"}),
        text_events({"a later track"}));
    EXPECT_EQ(transcript(image),
              "MIDI KARAOKE FILE\r\n0100\r\nBy Clara\r\nplain\r\n"
              "#Copper Moon\r\nClara\r\n\r\nCopper moon\r\nslowly");
}

TEST(SoftKaraoke, HeaderIsReadFromOneByteBehindTheSignatureAndItsLinesLoseTheirTags) {
    const std::string ab = bytes({1, 2, 'a', 'b'});
    EXPECT_EQ(header_of(ab), "#") << "a 1 in the place of the time is no event";
    EXPECT_EQ(header_of("." + ab + "."), "ab\r\n#");
    EXPECT_EQ(header_of("." + ab + bytes({1})), "ab\r\n#") << "nor is it behind a text";
    EXPECT_EQ(header_of("." + ab + "." + bytes({1, 1, 'c'}) + "."), "ab\r\nc\r\n#");
    EXPECT_EQ(header_of("." + ab + ".." + bytes({1, 1, 'c'}) + "."), "ab\r\nc\r\n#");
    EXPECT_EQ(header_of("." + ab), "no words") << "their first byte is behind a text";
    EXPECT_EQ(header_of("." + bytes({1, 200}) + std::string(200, 'x') + "."),
              std::string(200, 'x') + "\r\n#")
        << "a length is one byte";
    EXPECT_EQ(header_of("." + bytes({1, 0}) + "."), "\r\n#");
    const auto line = [](std::string_view text) { return header_of(text_events({text}) + "."); };
    EXPECT_EQ(line("@Ttitle"), "title\r\n#");
    EXPECT_EQ(line("@T"), "\r\n#");
    EXPECT_EQ(line("@"), "@\r\n#");
    EXPECT_EQ(line("a@b"), "a@b\r\n#");
    EXPECT_EQ(line("\\a"), "\\a\r\n#");
}

TEST(SoftKaraoke, WordsAreReadFromTheTenthByteOfTheirTrackName) {
    const std::string ab = bytes({1, 2, 'a', 'b'});
    EXPECT_EQ(words_of(".." + ab), "#") << "the first event is the language";
    EXPECT_EQ(words_of("..." + ab), "#ab");
    EXPECT_EQ(words_of("..." + ab + "." + ab), "#ab") << "two bytes behind a text are skipped";
    EXPECT_EQ(words_of("..." + ab + ".." + ab), "#abab");
    EXPECT_EQ(words_of("..." + ab + "..." + ab), "#abab");
    EXPECT_EQ(words_of("..." + ab + bytes({1, 1, 1, 1, 'c'})), "#abc");
    EXPECT_EQ(words_of("..." + bytes({1, 0xC8}) + std::string(200, 'x')),
              "#" + std::string(200, 'x'));
}

TEST(SoftKaraoke, WordsEndWithTheirTrack) {
    const std::string a = bytes({1, 1, 'a'});
    EXPECT_EQ(words_of("..." + a + "...MTrk" + a), "#a");
    EXPECT_EQ(words_of("..." + a + ".MTrk" + a), "#a") << "the second byte behind a text counts";
    EXPECT_EQ(words_of("..." + a + "MTrk." + a), "#aa") << "the first does not";
    EXPECT_EQ(words_of("...MTrk" + a), "#");
    EXPECT_EQ(words_of(""), "#");
    EXPECT_EQ(words_of("..." + bytes({1})), "#");
    EXPECT_EQ(words_of("..." + bytes({1, 50}) + "cut"), "#cut");
}

TEST(SoftKaraoke, SyllablesAreMarkedAndShownInTheirOwnEncodingWithoutControlCharacters) {
    const auto word = [](std::string_view text) {
        return words_of("..." + text_events({text}).substr(2));
    };
    EXPECT_EQ(word("\\new"), "#\r\nnew");
    EXPECT_EQ(word("/new"), "#\r\nnew");
    EXPECT_EQ(word("a/b\\"), "#a/b\\");
    EXPECT_EQ(word("//x"), "#\r\n/x");
    EXPECT_EQ(word("@Ttitle"), "#title\r\n");
    EXPECT_EQ(word("@T/title"), "#\r\ntitle\r\n");
    EXPECT_EQ(word("@T"), "#\r\n");
    EXPECT_EQ(word("@"), "#@");
    EXPECT_EQ(word("\\"), "#\r\n");
    EXPECT_EQ(word(""), "#");
    EXPECT_EQ(word("caf\xC3\xA9"), "#caf\xC3\xA9");
    EXPECT_EQ(word("caf\xE9"), "#caf\xC3\xA9");
    EXPECT_EQ(word("\x80"), "#\xE2\x82\xAC");
    EXPECT_EQ(word("a\tb\r\n\x7F" + bytes({0})), "#ab\r\n");
    EXPECT_EQ(header_of(text_events({"@T\xE9\x1B"}) + "."), "\xC3\xA9\r\n#");
}

TEST(SoftKaraoke, WithoutWordsTrackIsNoTranscript) {
    EXPECT_EQ(transcript(kSignature), "no words");
    EXPECT_EQ(transcript(kSignature + kWords), "no words") << "no time before the words track";
    EXPECT_EQ(transcript(kSignature + text_events({"@Ttitle"})), "no words");
    EXPECT_EQ(transcript(kSignature + "." + bytes({1, 255}) + "short" + kWords), "no words")
        << "a text that runs over the words track";
}

TEST(SoftKaraoke, WordsComeTenSyllablesAtATime) {
    const auto parts = [](int syllables) {
        std::string image = kSignature + "." + kWords + "..";
        for (int i = 0; i < syllables; ++i) image += text_events({"la"});
        SoftKaraokeReader reader(image, 0);
        EXPECT_TRUE(reader.read_header());
        std::vector<std::size_t> lengths;
        while (reader.read_words()) lengths.push_back(reader.transcript().words_text.size());
        lengths.push_back(reader.transcript().words_text.size());
        return lengths;
    };
    using Lengths = std::vector<std::size_t>;
    EXPECT_EQ(parts(0), (Lengths{0}));
    EXPECT_EQ(parts(9), (Lengths{18}));
    EXPECT_EQ(parts(10), (Lengths{20, 20}));
    EXPECT_EQ(parts(25), (Lengths{20, 40, 50}));
}

}  // namespace
}  // namespace zephyne::test
