#include "songdata/text_joining.h"

#include "tests/songdata/midi_bytes.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

std::string joined(std::string_view image, JoiningRule rule) {
    ShownText shown;
    MidiTextScanner scanner(image);
    MidiTextItem item;
    for (ScanStep step; (step = scanner.next(item)) != ScanStep::end;) {
        if (step == ScanStep::item) shown.append(item, rule);
    }
    return shown.text();
}

TEST(TextJoining, MakesLinesOfTextsAndWordsOfSyllables) {
    struct Case {
        std::string image;
        std::string summary;
        std::string window;
    };
    const Case cases[] = {
        {meta(5, "Hel") + meta(5, "lo ") + meta(5, "world"), "Hel-lo world-", "Hel-lo world-"},
        {meta(5, "\nday"), " day\r\n", " day-\r\n"},
        {meta(5, "day \n"), "day  \r\n", "day  \r\n"},
        {meta(5, "day\r"), "day ", "day "},
        {meta(5, ""), "-", "-"},
        {meta(3, "Piano") + meta(3, "") + meta(6, "Verse "), "Piano\r\n\r\nVerse \r\n",
         "Piano\r\n\r\nVerse \r\n"},
        {meta(1, "one\n"), "one \r\n", "one \r\n"},
        {meta(3, "Voice") + meta(5, "la"), "Voice\r\nla-", "Voice\r\nla-"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(joined(c.image, JoiningRule::summary), c.summary);
        EXPECT_EQ(joined(c.image, JoiningRule::window), c.window);
    }
}

TEST(TextJoining, EndsATextThatNoBoxCouldShow) {
    ShownText shown;
    const MidiTextItem line{.meta_type = 1, .text = std::string(998, 'x')};
    for (std::size_t i = 0; i <= ShownText::limit / 1000; ++i) shown.append(line, {});
    EXPECT_EQ(shown.text().size(), ShownText::limit + 5);
    EXPECT_TRUE(shown.text().ends_with("\r\n..."));
    shown.append("more");
    EXPECT_TRUE(shown.text().ends_with("\r\n..."));
}

}  // namespace
}  // namespace zephyne::test
