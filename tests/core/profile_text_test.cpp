#include "core/text/profile_text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace zephyne {
namespace {

TEST(ProfileText, ReadsTheFirstSuchKeyOfTheSection) {
    // The text of a file, and the value found there; "-": none.
    const std::vector<std::pair<std::string, std::string>> table = {
        {"[TIP]\r\nSTART=T\r\n", "T"},
        {"[tip]\nstart=T", "T"},
        {"[Tip]\rStArT=T\rSTART=F\r", "T"},
        {"\xEF\xBB\xBF[TIP]\r\nSTART=T\r\n", "T"},
        {"  [ TIP ] \r\n\t START \t= \tT \t\r\n", "T"},
        {"[TIP]\r\nSTART=\"T\"\r\n", "T"},
        {"[TIP]\r\nSTART= ' T ' \r\n", " T "},
        {"[TIP]\r\nSTART=\"\r\n", "\""},
        {"[TIP]\r\nSTART='T\"\r\n", "'T\""},
        {"[TIP]\r\nSTART=\"\"T\"\"\r\n", "\"T\""},
        {"[TIP]\r\nSTART=a=b\r\n", "a=b"},
        {"[TIP]\r\nSTART=\r\n", ""},
        {"[A]\r\nSTART=F\r\n[TIP]\r\nSTART=T\r\n", "T"},
        {"[TIP]\r\n1=a\r\n[B]\r\nSTART=F\r\n[TIP]\r\nSTART=T\r\n", "T"},
        {"[TIP]\r\n[x=y]\r\nSTART=F\r\n", "-"},
        {"[TIP]\r\n;START=F\r\nSTART\r\nSTARTS=F\r\n", "-"},
        {"[TIP\r\nSTART=F\r\n", "-"},
        {"START=F\r\n", "-"},
        {"]\r\n[\r\n=\r\n", "-"},
        {"", "-"},
    };
    for (const auto& [text, value] : table) {
        EXPECT_EQ(profile_value(text, "TIP", " START ").value_or("-"), value) << text;
    }
}

TEST(ProfileText, WritingLeavesAllOtherBytesAlone) {
    const std::vector<std::pair<std::string, std::string>> table = {
        {"[TIP]\r\nCURRENT=1\r\n1=a\r\n", "[TIP]\r\nCURRENT= 2\r\n1=a\r\n"},
        {"[tip]\n current = 1 \n1=a", "[tip]\n current = 2\n1=a"},
        {"[TIP]\r\nCURRENT=\"7\"", "[TIP]\r\nCURRENT= 2"},
        {"\xEF\xBB\xBF;c\n\n[TIP]\r1=\xE9\rCURRENT=\r",
         "\xEF\xBB\xBF;c\n\n[TIP]\r1=\xE9\rCURRENT= 2\r"},
        {"[TIP]\r\n1=a\r\n\r\n\r\n[B]\r\nCURRENT=5\r\n",
         "[TIP]\r\n1=a\r\nCURRENT= 2\r\n\r\n\r\n[B]\r\nCURRENT=5\r\n"},
        {"[B]\n[TIP]", "[B]\n[TIP]\r\nCURRENT= 2\r\n"},
        {"[B]\nx=1\n", "[B]\nx=1\n[TIP]\r\nCURRENT= 2\r\n"},
        {"no end", "no end\r\n[TIP]\r\nCURRENT= 2\r\n"},
        {"\xEF\xBB\xBF", "\xEF\xBB\xBF[TIP]\r\nCURRENT= 2\r\n"},
        {"", "[TIP]\r\nCURRENT= 2\r\n"},
    };
    for (const auto& [before, after] : table) {
        EXPECT_EQ(with_profile_value(before, "TIP", "CURRENT", " 2"), after);
        EXPECT_EQ(profile_value(after, "tip", "current"), "2");
    }
}

TEST(ProfileText, ALineEndNeverGetsIntoALine) {
    EXPECT_EQ(with_profile_value("[A]\r\n", "A", "k", "1\r\n[B]"), "[A]\r\n");
    EXPECT_EQ(with_profile_value("[A]\r\n", "A", "k\n", "1"), "[A]\r\n");
    EXPECT_EQ(with_profile_value("[A]\r\n", "B\r", "k", "1"), "[A]\r\n");
}

}  // namespace
}  // namespace zephyne
