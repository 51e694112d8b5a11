#include "songdata/midi_text_scanner.h"

#include "tests/songdata/midi_bytes.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

using Steps = std::vector<std::string>;

std::string shown(const MidiTextItem& item) {
    return std::to_string(item.meta_type) + ":" + item.text + (item.line_break ? "|" : "");
}

Steps steps_of(std::string_view image) {
    Steps steps;
    MidiTextScanner scanner(image);
    MidiTextItem item;
    for (ScanStep step; (step = scanner.next(item)) != ScanStep::end;) {
        steps.push_back(step == ScanStep::pause ? "pause" : shown(item));
        if (step == ScanStep::pause) continue;
        EXPECT_EQ(image.substr(item.offset, 2), bytes({0xFF, item.meta_type}));
    }
    EXPECT_EQ(scanner.next(item), ScanStep::end) << "the end is not the end";
    return steps;
}

TEST(MidiTextScanner, FindsTheTextTypesAndNoOtherEvents) {
    std::string image;
    for (int type = 0; type <= 16; ++type) image += bytes({0}) + meta(type, "abc");
    image += meta(0x2F, "") + meta(0x51, bytes({7, 0xA1, 0x20})) + bytes({0xFF, 0xFF, 0x91});
    EXPECT_EQ(steps_of(image),
              (Steps{"1:abc", "2:abc", "3:abc", "4:abc", "5:abc", "6:abc", "7:abc", "8:abc",
                     "9:abc", "10:abc", "11:abc", "12:abc", "13:abc", "14:abc", "15:abc"}));
}

TEST(MidiTextScanner, TakesALengthOfOneByteOrTwo) {
    const std::string text(200, 'x');
    EXPECT_EQ(steps_of(bytes({0xFF, 1, 127}) + text), (Steps{"1:" + text.substr(0, 127)}));
    EXPECT_EQ(steps_of(bytes({0xFF, 1, 0x81, 0x48}) + text + "behind"), (Steps{"1:" + text}));
    EXPECT_EQ(steps_of(bytes({0xFF, 1, 0x81, 0xC8}) + text + "behind"), (Steps{"1:" + text}))
        << "there is no third length byte";
    EXPECT_EQ(steps_of(bytes({0xFF, 1, 0x80, 0x03}) + text), (Steps{"1:xxx"}));
    const std::string longest(16'383, 'y');
    EXPECT_EQ(steps_of(bytes({0xFF, 1, 0xFF, 0x7F}) + longest + "z"), (Steps{"1:" + longest}));
}

TEST(MidiTextScanner, CutsATextAtTheEndOfTheFile) {
    EXPECT_EQ(steps_of(bytes({0xFF, 1, 9}) + "four"), (Steps{"1:four"}));
    for (const std::string& empty : {bytes({0xFF, 1, 0}), bytes({0xFF, 1, 9}),
                                     bytes({0xFF, 1, 0x81}), bytes({0xFF, 1, 0x81, 0x05})}) {
        EXPECT_EQ(steps_of(empty), Steps{"1:"});
    }
    for (const std::string& no_length :
         {bytes({}), bytes({0xFF}), bytes({0xFF, 1}), bytes({0, 0xFF, 1})}) {
        EXPECT_EQ(steps_of(no_length), Steps{});
    }
}

TEST(MidiTextScanner, RejectsOrCleansCharactersByTheTypeOfTheirText) {
    struct Case {
        int type;
        std::string raw;
        Steps expected;
    };
    const Case cases[] = {
        {2, "\xA9 1996 Clara", {}},
        {5, "\xA9 1996", {"5:  1996"}},
        {6, "Verse\t2", {}},
        {5, "Verse\t2", {}},
        {3, "Piano\r\n", {"3:Piano  "}},
        {1, "\n", {"1: "}},
        {5, "\nday", {"5: day|"}},
        {5, "day\r", {"5:day "}},
        {5, "d\r\ny", {"5:d  y|"}},
        {1, " ~", {"1: ~"}},
        {1, "\x7F", {}},
        {5, "\x7F", {"5: "}},
        {5, "a\x1F", {}},
        {4, "a\x1F", {}},
        {5, bytes({'a', 0}), {}},
        {5, "\xFF\xFE\x80", {"5:   "}},
        {15, "\x80", {}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(steps_of(bytes({0}) + meta(c.type, c.raw)), c.expected)
            << "type " << c.type << ", text " << testing::PrintToString(c.raw);
    }
}

TEST(MidiTextScanner, LooksForEventsInsideOfOthersToo) {
    const std::string inner = meta(10, "0123456789");
    EXPECT_EQ(steps_of(meta(5, "a" + inner + "b")), (Steps{"5:a   0123456789b|", "10:0123456789"}));
    // What was rejected hides nothing either.
    EXPECT_EQ(steps_of(meta(1, "a" + meta(3, "Flute"))), (Steps{"3:Flute"}));
    // A 0xFF as the length of what is no event.
    EXPECT_EQ(steps_of(bytes({0xFF, 0xFF, 2, 2}) + "ab"), (Steps{"2:ab"}));
}

TEST(MidiTextScanner, PausesAtEvery21stCandidateBeforeLookingAtIt) {
    std::string image;
    Steps expected;
    for (int i = 1; i <= 43; ++i) {
        // Every other candidate is no text event, and counts all the same.
        image += i % 2 == 1 ? meta(3, std::to_string(i)) : meta(0x51, "abc");
        if (i % 21 == 0) expected.push_back("pause");
        if (i % 2 == 1) expected.push_back("3:" + std::to_string(i));
    }
    EXPECT_EQ(steps_of(image), expected);
}

TEST(MidiTextScanner, YieldsNoMoreTextThanAFewTimesTheFileFromWhateverBytes) {
    const std::string letters(40, 'a');
    const std::string patterns[] = {
        bytes({0xFF}),
        bytes({0xFF, 1, 0xFF, 0x7F}),
        bytes({0xFF, 5, 0xFF, 0x7F}),
        bytes({0xFF, 5, 0xFF, 0x7F}) + letters,
        bytes({0xFF, 10, 0xFF, 13}),
        bytes({0xFF, 10, 0xFF, 0x7F}) + letters,
        bytes({0xFF, 5, 0xFF, 0xFF, 0xFF, 10, 0xFF}),
        bytes({0xFF, 13, 10}) + letters,
    };
    for (const std::string& pattern : patterns) {
        std::string image;
        while (image.size() < 100'000) image += pattern;
        image += std::string(20'000, 'z');
        std::size_t text = 0;
        MidiTextScanner scanner(image);
        MidiTextItem item;
        for (ScanStep step; (step = scanner.next(item)) != ScanStep::end;) {
            if (step == ScanStep::item) text += item.text.size();
        }
        EXPECT_LE(text, 3 * image.size()) << testing::PrintToString(pattern);
    }
}

MidiScanResult header_of(const std::string& image) {
    return scan_midi_header({image, image.size()});
}

TEST(MidiHeader, TellsFormatAndTracksOfTheFirstHeaderAnywhere) {
    const std::string riff = "RIFF" + bytes({60, 0, 0, 0}) + "RMIDdata" + bytes({40, 0, 0, 0});
    for (const std::string& wrapper : {std::string(), riff, std::string("MTMTh")}) {
        const MidiScanResult facts = header_of(wrapper + header(1, 300) + header(0, 1));
        EXPECT_TRUE(facts.header_found);
        EXPECT_EQ(facts.format, 1);
        EXPECT_EQ(facts.track_count, 300);
    }
}

TEST(MidiHeader, LeavesOutWhatIsMissingOrDoesNotFit) {
    const auto facts = [](const std::string& image) {
        const MidiScanResult found = header_of(image);
        return std::tuple(found.header_found, found.format, found.track_count);
    };
    EXPECT_EQ(facts(""), std::tuple(false, 0, 0));
    EXPECT_EQ(facts("MTh"), std::tuple(false, 0, 0));
    EXPECT_EQ(facts(header(0x8000, 0xFFFF)), std::tuple(true, 0, 0));
    EXPECT_EQ(facts(header(2, 0x7FFF)), std::tuple(true, 2, 0x7FFF));
    EXPECT_EQ(facts(header(2, 5).substr(0, 11)), std::tuple(true, 2, 0)) << "cut off";
}

}  // namespace
}  // namespace zephyne::test
