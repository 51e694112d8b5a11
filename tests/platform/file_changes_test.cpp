#include "file_worlds.h"

#include <unistd.h>

namespace zephyne::test {
namespace {

namespace fs = std::filesystem;

class FileChanges : public InBothWorlds {};
INSTANTIATE_TEST_SUITE_P(BothWorlds, FileChanges, kBothWorlds);

class PosixFileChanges : public OnRealDisk {};

TEST_P(FileChanges, ReplacedFileIsWholeAndKeepsItsName) {
    add_file("SONG.NTE", "a long old note");
    ASSERT_TRUE(files_.replace_file(path("SONG.NTE"), "new"));
    ASSERT_TRUE(files_.replace_file(path("other.nte"), "fresh"));
    EXPECT_EQ(listed(), (Names{"SONG.NTE", "other.nte"})) << "and nothing is left beside it";
    ASSERT_TRUE(files_.replace_file(path("song.nte"), "a namesake"));
    EXPECT_EQ(read("SONG.NTE"), "new");
    EXPECT_EQ(files_.replace_file(path("Missing/x.nte"), "").error().kind,
              FileErrorKind::not_found);
    add_pipe("pipe.nte");
    EXPECT_FALSE(files_.replace_file(path("pipe.nte"), ""));
}

TEST_P(FileChanges, RemovingAndRenamingTouchExactlyTheFileOfThatName) {
    add_file("song.mid", "small");
    add_file("SONG.MID", "large");
    EXPECT_FALSE(files_.remove_file(path("Song.mid"))) << "which of the two?";
    ASSERT_TRUE(files_.rename_file(path("SONG.MID"), path("waltz.mid")));
    EXPECT_EQ(read("waltz.mid"), "large");
    ASSERT_TRUE(files_.rename_file(path("waltz.mid"), path("Waltz.MID"))) << "a new case alone";
    ASSERT_TRUE(files_.remove_file(path("SONG.mid"))) << "its only match now";
    EXPECT_EQ(listed(), Names{"Waltz.MID"});
    EXPECT_EQ(error_of(files_.remove_file(path("gone.mid"))), "File not found");
}

TEST_P(FileChanges, RenamingAndMovingNeverDestroyAnotherFile) {
    add_file("song.mid", "song");
    add_file("Other.mid", "other");
    add_folder("Folder");
    add_folder("store");
    for (const char* taken : {"Other.mid", "OTHER.MID", "Folder"}) {
        EXPECT_EQ(files_.rename_file(path("song.mid"), path(taken)).error().kind,
                  FileErrorKind::already_exists);
        EXPECT_EQ(files_.move_file(path("song.mid"), path(taken)).error().kind,
                  FileErrorKind::already_exists);
    }
    EXPECT_EQ(error_of(files_.move_file(path("song.mid"), path("SONG.mid"))), "Permission denied");
    EXPECT_FALSE(files_.move_file(path("song.mid"), path("nowhere/song.mid")));
    EXPECT_EQ(read("song.mid") + read("Other.mid"), "songother");
    ASSERT_TRUE(files_.move_file(path("SONG.MID"), path("STORE/Song.mid")));
    EXPECT_EQ(read("store/Song.mid"), "song");
    EXPECT_EQ(read("song.mid"), "(File not found)");
}

TEST_P(FileChanges, CurrentFolderFollowsTheUser) {
    const std::string before = files_.current_folder();
    add_file("Store/waltz.mid", "notes");
    ASSERT_TRUE(files_.set_current_folder(path("store")));
    EXPECT_EQ(files_.current_folder(), path("Store"));
    EXPECT_EQ(test::read(files_, "waltz.mid"), "notes");
    EXPECT_FALSE(files_.set_current_folder(path("nowhere")));
    EXPECT_TRUE(files_.set_current_folder(before));
}

TEST_F(PosixFileChanges, LeaveAFileWithoutWritePermissionAloneAndALinkAndItsModeAsTheyAre) {
    fs::permissions(disk_.add_file("song.mid", "notes"), fs::perms::owner_read);
    EXPECT_EQ(error_of(files_.remove_file(path("song.mid"))), "Permission denied");
    EXPECT_EQ(error_of(files_.replace_file(path("song.mid"), "x")), "Permission denied");
    EXPECT_EQ(read("song.mid"), "notes");

    fs::permissions(disk_.add_file("store/song.nte", "old"), fs::perms(0640));
    fs::create_symlink("store/song.nte", path("song.nte"));
    ASSERT_TRUE(files_.replace_file(path("song.nte"), "new"));
    EXPECT_TRUE(fs::is_symlink(path("song.nte")));
    EXPECT_EQ(read("store/song.nte"), "new");
    EXPECT_EQ(fs::status(path("store/song.nte")).permissions(), fs::perms(0640));
}

// Shared memory is a file system of its own on every Linux machine.
TEST_F(PosixFileChanges, MovingToAnotherVolumeCopiesComparesAndOnlyThenRemoves) {
    const std::string other = "/dev/shm/zephyne-move-" + std::to_string(::getpid());
    struct stat here {};
    struct stat there {};
    if (::mkdir(other.c_str(), 0700) != 0 || ::stat(other.c_str(), &there) != 0 ||
        ::stat(disk_.root.c_str(), &here) != 0 || here.st_dev == there.st_dev) {
        GTEST_SKIP() << "there is no second volume";
    }
    const std::string notes(700'000, 'n');
    disk_.add_file("song.mid", notes);
    EXPECT_TRUE(files_.move_file(path("song.mid"), other + "/Song.mid"));
    EXPECT_FALSE(fs::exists(path("song.mid")));
    EXPECT_EQ(test::read(files_, other + "/Song.mid"), notes);

    disk_.add_file("song.mid", "another");
    EXPECT_EQ(files_.move_file(path("song.mid"), other + "/SONG.MID").error().kind,
              FileErrorKind::already_exists);
    EXPECT_EQ(read("song.mid"), "another");
    EXPECT_EQ(std::distance(fs::directory_iterator(other), {}), 1);
    fs::remove_all(other);
}

TEST_F(PosixFileChanges, FullDiskLeavesTheOldFileAndNothingBesideIt) {
    disk_.add_file("song.nte", "old");
    {
        const SmallDisk small;
        EXPECT_EQ(error_of(files_.replace_file(path("song.nte"), std::string(2000, 'b'))),
                  "Disk full");
    }
    EXPECT_EQ(read("song.nte"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(disk_.root), {}), 1);
}

}  // namespace
}  // namespace zephyne::test
