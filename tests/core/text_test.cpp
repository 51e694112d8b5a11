#include "core/text/letter_case.h"
#include "core/text/numbers.h"
#include "core/text/utf8.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace zephyne {
namespace {

using Strings = std::vector<std::string>;

TEST(LetterCase, IsUnicodesWhereTheTextIsUtf8) {
    EXPECT_EQ(lower_case("ÄÖÜ ÉLAN.MID"), "äöü élan.mid");
    EXPECT_EQ(upper_case("äöü élan.mid ω"), "ÄÖÜ ÉLAN.MID Ω");
    EXPECT_EQ(capitalised("ÉTUDE OP. 10.MID"), "Étude op. 10.mid");
    EXPECT_EQ(capitalised("étude"), "Étude");
    EXPECT_EQ(capitalised("10 LITTLE.MID"), "10 little.mid");
    EXPECT_EQ(capitalised(""), "");
    EXPECT_EQ(capitalised("ЖУК.MID"), "Жук.mid");
}

TEST(LetterCase, IsOnlyAsciisWhereItIsNot) {
    EXPECT_EQ(lower_case("\xC9TUDE.MID"), "\xC9tude.mid");
    EXPECT_EQ(upper_case("\xE9tude"), "\xE9TUDE");
    EXPECT_EQ(capitalised("\xE9TUDE É.MID"), "\xE9tude É.mid");
    EXPECT_EQ(capitalised("tRUNCATED \xC3"), "Truncated \xC3");
}

TEST(LetterCase, DoesNotMatterWhenNamesAreCompared) {
    EXPECT_TRUE(equal_ignoring_case("Élan.MID", "éLAN.mid"));
    EXPECT_TRUE(equal_ignoring_case("Straße", "STRASSE"));
    EXPECT_TRUE(equal_ignoring_case("ΟΔΟΣ", "οδος"));
    EXPECT_TRUE(equal_ignoring_case("\xE9 A", "\xE9 a"));
    EXPECT_FALSE(equal_ignoring_case("\xE9", "\xC9"));
    EXPECT_FALSE(equal_ignoring_case("a", "a "));
    EXPECT_TRUE(starts_with_ignoring_case("Élan.mid", "éL"));
    EXPECT_TRUE(starts_with_ignoring_case("x", ""));
    EXPECT_FALSE(starts_with_ignoring_case("é", "éa"));
}

TEST(Collation, IsByLetterCaseFoldedThenByBytes) {
    const Strings order = {"",   " a", "1",  "10", "2", "A", "a", "a b", "a.mid", "a.mid.mid",
                           "AB", "ab", "ss", "ß",  "Z", "z", "É", "é",   "ω"};
    for (std::size_t i = 1; i < order.size(); ++i) {
        EXPECT_LT(collation_key(order[i - 1]), collation_key(order[i]))
            << order[i - 1] << " before " << order[i];
    }
    for (const std::string& text : order) {
        EXPECT_TRUE(collation_key(text).starts_with(collation_prefix(upper_case(text)))) << text;
    }
}

TEST(Numbers, AreReadAsFarAsTheyGo) {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    const std::vector<std::pair<std::string, double>> table = {
        {"", 0},       {" \t12 34", 12},    {"-.5x", -.5},
        {"+7", 7},     {"+-7", 0},          {".", 0},
        {"-", 0},      {"5.", 5},           {"1.2.3", 1.2},
        {"1,5", 1},    {"2e3", 2000},       {"2E-3", .002},
        {"2e+", 2},    {"e5", 0},           {"inf", 0},
        {"nan", 0},    {"0x10", 0},         {"&H7fff", 32767},
        {"&h", 0},     {"&O777", 511},      {"&", 0},
        {"1e-999", 0}, {"1e999", infinite}, {"-1e999", -infinite}};
    for (const auto& [text, value] : table) EXPECT_EQ(leading_number(text), value) << text;
    EXPECT_EQ(leading_number("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(leading_number(std::string(400, '9') + ".5"), infinite);
}

TEST(Numbers, RoundHalvesToTheEvenNeighbour) {
    const std::vector<std::pair<double, double>> table = {
        {.5, 0}, {1.5, 2}, {2.5, 2}, {-.5, 0}, {-1.5, -2}, {-2.5, -2}, {2.49, 2}, {-2.51, -3}};
    for (const auto& [value, rounded] : table) EXPECT_EQ(round_half_even(value), rounded) << value;
}

TEST(Numbers, AreWrittenShortly) {
    const std::vector<std::pair<double, std::string>> table = {{0, "0"},
                                                               {-0.0, "0"},
                                                               {.5, ".5"},
                                                               {-.5, "-.5"},
                                                               {10, "10"},
                                                               {1.5, "1.5"},
                                                               {100000, "100000"},
                                                               {1e20, "1e+20"},
                                                               {.00025, ".00025"},
                                                               {2e-9, "2e-09"},
                                                               {1.0 / 3, ".333333333333333"}};
    for (const auto& [value, text] : table) {
        EXPECT_EQ(decimal(value), text);
        EXPECT_NEAR(leading_number(text), value, 1e-14) << text;
    }
    EXPECT_EQ(two_digits(7), "07");
    EXPECT_EQ(two_digits(123), "123");
}

TEST(OldTexts, AreReadAsWindows1252WhereTheyAreNotUtf8) {
    EXPECT_EQ(to_utf8("déjà"), "déjà");
    EXPECT_EQ(to_utf8("d\xE9j\xE0 \x80 \x93vu\x94 \x9F"), "déjà € “vu” Ÿ");
    EXPECT_EQ(to_utf8("\x81\x8D\x8F\x90\x9D"), "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(to_utf8("é\xE9"), "Ã©é") << "one reading for the whole text";
}

TEST(Utf8, IsOnlyWhatIsWellFormed) {
    for (const char* good : {"", "a", "é", "€", "𝄞", "\xEF\xBF\xBD"}) EXPECT_TRUE(is_utf8(good));
    for (const char* bad : {"\x80", "\xC3", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80",
                            "\xF4\x90\x80\x80", "a\xFF"}) {
        EXPECT_FALSE(is_utf8(bad)) << bad;
    }
    EXPECT_EQ(character_count("dé€𝄞"), 4U);
    EXPECT_EQ(character_count("d\xE9"), 2U);
    std::string_view text = "𝄞é!";
    std::string again;
    while (!text.empty()) append_character(again, take_character(text));
    EXPECT_EQ(again, "𝄞é!");
}

TEST(TextLines, EndInAnyOfThreeWays) {
    const auto lines = [](std::string_view text) {
        const auto views = text_lines(text);
        return Strings(views.begin(), views.end());
    };
    EXPECT_EQ(lines(""), Strings());
    EXPECT_EQ(lines("\r\n"), Strings{""});
    EXPECT_EQ(lines("a\r\nb\nc\rd"), (Strings{"a", "b", "c", "d"}));
    EXPECT_EQ(lines("a\n\nb\r\r"), (Strings{"a", "", "b", ""}));
    EXPECT_EQ(lines("\xEF\xBB\xBF"
                    "a\r\n\xEF\xBB\xBF"
                    "b"),
              (Strings{"a",
                       "\xEF\xBB\xBF"
                       "b"}))
        << "a mark counts at the very beginning only";
}

}  // namespace
}  // namespace zephyne
