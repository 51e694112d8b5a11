#include "playlists/playlist_text.h"

#include "core/playlist_entry.h"
#include "playlists/playlist_lists.h"
#include "tests/support/world.h"

#include <gtest/gtest.h>

#include <random>

namespace zephyne::test {
namespace {

struct Case {
    std::string bytes;
    PlaylistState state;
    Log entry_lines;
};

TEST(PlaylistText, IsReadWithWhateverLineEndsAndHeaderField) {
    using enum PlaylistState;
    const std::string two = "a.mid|/m/\r\nb.mid|/m/\r\n";
    const Log both = {"a.mid|/m/", "b.mid|/m/"};
    const std::string long_name(10'000'000, 'x');
    for (const Case& expected : std::initializer_list<Case>{
             {"Zephyne Playlist\r\n" + two, complete, both},
             {"Zephyne Playlist\na.mid|/m/\nb.mid|/m/", complete, both},
             {"Zephyne Playlist\ra.mid|/m/\rb.mid|/m/\r", complete, both},
             {"\xEF\xBB\xBFZephyne Playlist\na.mid|/m/\r\nb.mid|/m/\r", complete, both},
             {"   Zephyne Playlist\r\n" + two, complete, both},
             {"\"Zephyne Playlist\"\r\n" + two, complete, both},
             {"\"Zephyne Playlist\" ,a.mid|/m/\r\nb.mid|/m/", complete, both},
             {"Zephyne Playlist,a.mid|/m/\r\nb.mid|/m/", complete, both},
             {"Zephyne Playlist\r\n", complete, {}},
             {"Zephyne Playlist", complete, {}},
             {"Zephyne Playlist\r\n" + long_name + "|/m/", complete, {long_name + "|/m/"}},
             {"Zephyne Playlist,abc", damaged, {}},
             {"Zephyne Playlist\r\n\r\n" + two, damaged, {}},
             {"Zephyne Playlist\r\n" + two + "no bar\r\nc|/m/", damaged, both},
             {"Zephyne Playlist\r\n" + two + "\r\n", damaged, both},
             {"zephyne playlist\r\n" + two, wrong_header, {}},
             {"Zephyne Playlist \r\n" + two, wrong_header, {}},
             {"\"Zephyne Playlist\r\n" + two, wrong_header, {}},
             {"\r\nZephyne Playlist\r\n" + two, wrong_header, {}},
             {std::string("\0\0", 2), wrong_header, {}},
             {"", empty, {}},
             {"\xEF\xBB\xBF", empty, {}},
         }) {
        const auto read = read_playlist_text(expected.bytes, PathStyle::posix);
        EXPECT_EQ(read.state, expected.state) << expected.bytes.substr(0, 60);
        EXPECT_EQ(read.entry_lines, expected.entry_lines) << expected.bytes.substr(0, 60);
    }
}

TEST(PlaylistText, TakesBytesFromTheOldPlatformForItsCodePage) {
    const std::string bytes =
        "Zephyne Playlist\r\nCaf\xE9.mid|C:\\Fran\xE7"
        "ais\\\r\nCaf\xE9.mid|/m/\r\n";
    EXPECT_EQ(read_playlist_text(bytes, PathStyle::posix).entry_lines,
              (Log{"Café.mid|C:\\Français\\", "Caf\xE9.mid|/m/"}))
        << "names here are bytes";
    EXPECT_EQ(read_playlist_text(bytes, PathStyle::windows).entry_lines[1], "Café.mid|/m/");
}

TEST(EntryLine, IsRefusedWhereItWouldNotReadBack) {
    EXPECT_EQ(entry_line("a|b.mid", "/m/"), "a|b.mid|/m/");
    EXPECT_EQ(entry_line("a.mid", "/m|n/"), "a.mid|/m|n/");
    for (const auto& [name, folder] : std::initializer_list<std::pair<const char*, const char*>>{
             {"a|C:b.mid", "/m/"}, {"a|\\b.mid", "/m/"}, {"a\nb.mid", "/m/"}, {"a.mid", "/m\r/"}}) {
        EXPECT_EQ(entry_line(name, folder), "") << name;
    }
}

// Entries of names and folders that are hard on separators, order and encoding.
TEST(PlaylistText, EveryEntryThatCanBeAddedComesBackAndStaysInStep) {
    std::mt19937 random(1998);
    const std::vector<std::string> parts = {"a", "A", ".mid", "|", "é",  "\xE9",         "C:", "\\",
                                            " ", ",", "\"",   "ß", "SS", "\xEF\xBB\xBF", "\n", "/"};
    const auto text = [&](std::size_t kinds) {
        std::string result;
        for (auto count = 1 + random() % 5; count > 0; --count) result += parts[random() % kinds];
        return result;
    };
    std::size_t refused = 0;
    for (int round = 0; round < 500; ++round) {
        Form form({.name = "Lists"});
        ListBox names(form, ListOrder::by_text, {.name = "names"});
        ListBox lines(form, ListOrder::by_entry, {.name = "lines"}, split_entry_line);
        names.set_selecting(Selecting::extended);
        VirtualClock clock;
        Scheduler scheduler(clock);
        VirtualPump pump(clock, scheduler);
        PlaylistLists lists(names, lines, pump);
        std::vector<std::string> added;
        for (auto count = random() % 30; count > 0; --count) {
            const auto line = entry_line(text(parts.size() - 1), "/" + text(parts.size()) + "/");
            if (line.empty()) ++refused;
            if (!line.empty()) added.push_back(line);
        }
        lists.add(added);
        ASSERT_TRUE(lists.in_step());
        const auto again = read_playlist_text(playlist_text_of(lines.items()), PathStyle::posix);
        ASSERT_EQ(again.state, PlaylistState::complete);
        ASSERT_EQ(again.entry_lines, World::names(lines));

        lists.Killdupes();
        ASSERT_TRUE(lists.in_step());
        for (std::size_t row = 1; row < names.count(); ++row) {
            ASSERT_NE(names.item(row).text, names.item(row - 1).text);
        }
        Log kept;
        for (std::size_t row = 0; row < names.count(); ++row) {
            if (random() % 2 == 0) {
                names.click(row, ClickWith::ctrl);
            } else {
                kept.emplace_back(lines.item(row).text);
            }
        }
        lists.remove_selected();
        ASSERT_TRUE(lists.in_step());
        ASSERT_EQ(World::names(lines), kept);
    }
    EXPECT_GT(refused, 100U) << "the names are too easy";
}

}  // namespace
}  // namespace zephyne::test
