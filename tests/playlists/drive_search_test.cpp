#include "playlists/drive_search.h"

#include "tests/support/fakes.h"
#include "tests/support/memory_file_system.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

struct SearchDesk {
    explicit SearchDesk(PathStyle style = PathStyle::posix)
        : files(style, style == PathStyle::posix ? "/" : "C:\\") {}

    void add(std::initializer_list<const char*> songs) {
        for (const char* song : songs) files.add_file(song);
    }

    // The songs in the order in which they were found.
    Log search(const std::string& root) {
        DriveSearch walk(files, settings, [&](SearchStep step) {
            items += step == SearchStep::other ? 0 : 1;
            return before_step ? before_step() : true;
        });
        whole = walk.run(root);
        Log paths;
        for (const auto& song : walk.found().songs) {
            paths.push_back(walk.found().folders[song.folder] + song.name);
        }
        return paths;
    }

    MemoryFileSystem files;
    Settings settings;
    std::function<bool()> before_step;
    int items = 0;
    bool whole = false;
};

TEST(DriveSearch, GoesFromLevelToLevelAndByTheAlphabetWithinAFolder) {
    SearchDesk desk;
    desk.add({"/b/x/deep/4.mid", "/b/x/3.mid", "/b/1.mid", "/A/z/2.rmi", "/root.MID", "/A/y/2.Mid",
              "/c/none.txt", "/folder.mid/4.mid", "/A/mid"});
    desk.files.add_file("/d/6.mid", "", FileKind::ordinary, Visibility::hidden);
    desk.files.add_file("/d/7.mid", "", FileKind::pipe);
    EXPECT_EQ(desk.search("/"), (Log{"/root.MID", "/b/1.mid", "/folder.mid/4.mid", "/A/y/2.Mid",
                                     "/A/z/2.rmi", "/b/x/3.mid", "/b/x/deep/4.mid"}));
    EXPECT_TRUE(desk.whole);
    EXPECT_EQ(desk.items, 9 + 5) << "every file, and the folders of the root";
}

TEST(DriveSearch, ListsOtherKindsOfSongsOnlyWhereTheyAreAllowed) {
    SearchDesk desk(PathStyle::windows);
    desk.add({"D:\\a.wav", "D:\\b.AVI", "D:\\c.mid", "D:\\d.mp3", "C:\\other.mid"});
    EXPECT_EQ(desk.search("D:\\"), Log{"D:\\c.mid"});
    desk.settings.AllowWav = 1;
    EXPECT_EQ(desk.search("D:\\"), (Log{"D:\\a.wav", "D:\\b.AVI", "D:\\c.mid"}));
}

TEST(DriveSearch, StaysOnItsVolumeAndVisitsNothingTwice) {
    SearchDesk desk;
    desk.add({"/a/song.mid", "/proc/self/process.mid", "/z/stick/far.mid"});
    desk.files.mount("/proc");
    desk.files.mount("/z/stick");
    desk.files.add_second_view("/a/again", "/a");
    desk.files.add_second_view("/whole", "/");
    desk.files.add_second_view("/b", "/a");
    EXPECT_EQ(desk.search("/"), Log{"/a/song.mid"});
    EXPECT_EQ(desk.search("/z/stick"), Log{"/z/stick/far.mid"});
    EXPECT_TRUE(desk.whole);
}

TEST(DriveSearch, SkipsWhatCannotBeRead) {
    SearchDesk desk;
    desk.add({"/a/1.mid", "/denied/2.mid", "/gone/3.mid", "/secret/inner/4.mid"});
    desk.files.deny("/denied");
    desk.files.vanish("/gone");
    desk.files.deny_listing("/secret");
    EXPECT_EQ(desk.search("/"), Log{"/a/1.mid"});
    EXPECT_TRUE(desk.whole);
    EXPECT_EQ(desk.search("/nowhere"), Log{});
    EXPECT_TRUE(desk.whole);
}

TEST(DriveSearch, CanBeStoppedBeforeEveryStep) {
    SearchDesk desk;
    desk.add({"/1.mid", "/a/2.mid", "/a/b/3.mid"});
    int steps = 0;
    desk.before_step = [&] { return ++steps > 0; };
    const Log all = desk.search("/");
    ASSERT_EQ(all.size(), 3U);
    for (int last = 0, most = steps; last < most; ++last) {
        steps = 0;
        desk.before_step = [&] { return ++steps <= last; };
        EXPECT_LT(desk.search("/").size(), all.size());
        EXPECT_FALSE(desk.whole);
        EXPECT_EQ(steps, last + 1) << "asked again after it was told to stop";
    }
}

TEST(DriveSearch, CopesWithADriveThatChangesUnderItsHands) {
    SearchDesk desk;
    desk.add({"/a/1.mid", "/a/2.mid", "/a/b/3.mid", "/c/4.mid"});
    int steps = 0;
    desk.before_step = [&] {
        if (++steps == 7) {  // before the first song of /a
            desk.files.remove("/a");
            desk.files.remove("/c");
            desk.files.add_file("/c");
        }
        return true;
    };
    EXPECT_EQ(desk.search("/"), (Log{"/a/1.mid", "/a/2.mid"}))
        << "what is open can be read on, and nothing else is there";
}

}  // namespace
}  // namespace zephyne::test
