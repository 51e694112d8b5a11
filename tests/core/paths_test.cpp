#include "core/paths.h"

#include "core/playlist_entry.h"
#include "core/program.h"
#include "tests/support/memory_file_system.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace zephyne {
namespace {

TEST(Paths, AFolderGetsItsSeparatorOnce) {
    EXPECT_EQ(joined("/music", "a.mid", PathStyle::posix), "/music/a.mid");
    EXPECT_EQ(joined("/", "a.mid", PathStyle::posix), "/a.mid");
    EXPECT_EQ(joined("C:", "a.mid", PathStyle::windows), "C:\\a.mid");
    EXPECT_EQ(joined("C:\\", "a.mid", PathStyle::windows), "C:\\a.mid");
    EXPECT_EQ(joined("/music\\", "a.mid", PathStyle::posix), "/music\\/a.mid");
}

TEST(Paths, SplitBehindTheirLastSeparator) {
    using Strings = std::vector<std::string>;
    const std::vector<std::pair<PathStyle, Strings>> table = {
        {PathStyle::posix, {"/music/", "a.mid"}},
        {PathStyle::posix, {"", "a.mid"}},
        {PathStyle::posix, {"/music/", "a\\b:c.mid"}},
        {PathStyle::posix, {"/music/", ""}},
        {PathStyle::posix, {"", ""}},
        {PathStyle::windows, {"C:\\music\\", "a.mid"}},
        {PathStyle::windows, {"C:", "a.mid"}}};
    for (const auto& [style, parts] : table) {
        const SplitPath split = split_path(parts[0] + parts[1], style);
        EXPECT_EQ((Strings{std::string(split.folder), std::string(split.name)}), parts);
    }
}

TEST(Paths, TheLastFourCharactersTellTheKindOfSong) {
    const std::vector<std::pair<std::string, SongKind>> table = {
        {"a.mid", SongKind::midi},    {"/x.mid/A.MID", SongKind::midi}, {"a.RmI", SongKind::midi},
        {"a.wav", SongKind::wave},    {"a.AVI", SongKind::video},       {".mid", SongKind::midi},
        {"a.midi", SongKind::none},   {"mid", SongKind::none},          {"", SongKind::none},
        {"\xE9.mid", SongKind::midi}, {"a.mid ", SongKind::none},       {"amid", SongKind::none}};
    for (const auto& [path, kind] : table) EXPECT_EQ(song_kind(path), kind) << path;
}

TEST(Paths, ASidecarReplacesTheLastFourCharacters) {
    EXPECT_EQ(sidecar_path("/music/A.MID", ".nte"), "/music/A.nte");
    EXPECT_EQ(sidecar_path("C:\\x\\song.rmi", ".vol"), "C:\\x\\song.vol");
    EXPECT_EQ(sidecar_path(".mid", ".vol"), ".vol");
    EXPECT_EQ(sidecar_path("mid", ".vol"), "");
}

TEST(EntryLines, SplitWhereAFolderBegins) {
    using Parts = std::pair<std::string_view, std::string_view>;
    const std::vector<std::pair<std::string_view, Parts>> table = {
        {"a.mid|/music/", {"a.mid", "/music/"}},
        {"a.mid|C:\\Songs\\", {"a.mid", "C:\\Songs\\"}},
        {"a.mid|\\\\server\\songs\\", {"a.mid", "\\\\server\\songs\\"}},
        {"a|b.mid|/music/", {"a|b.mid", "/music/"}},
        {"a.mid|/mu|sic/", {"a.mid", "/mu|sic/"}},
        {"a.mid|/mu|/sic/", {"a.mid", "/mu|/sic/"}},
        {"a.mid|music|old", {"a.mid", "music|old"}},
        {"a.mid|", {"a.mid", ""}},
        {"|", {"", ""}},
        {"a.mid", {"a.mid", ""}},
        {"", {"", ""}}};
    for (const auto& [line, parts] : table) EXPECT_EQ(split_entry_line(line), parts) << line;
}

TEST(ProgramFolders, AnOwnFileGoesBeforeTheInstalledOne) {
    MemoryFileSystem files(PathStyle::posix, "/");
    files.add_file("/own/tips.ini");
    files.add_file("/share/tips.ini");
    files.add_file("/share/help.hlp");
    const ProgramFolders folders{"/own", "/share"};
    EXPECT_EQ(folders.file(files, "tips.ini"), "/own/tips.ini");
    EXPECT_EQ(folders.file(files, "help.hlp"), "/share/help.hlp");
    EXPECT_EQ((ProgramFolders{"/own", ""}.file(files, "help.hlp")), "/own/help.hlp");
}

}  // namespace
}  // namespace zephyne
