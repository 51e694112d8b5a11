#include "file_worlds.h"

#include <signal.h>
#include <sys/resource.h>

namespace zephyne {
namespace {

using namespace test;

template <class World>
class FileChanges : public InBothWorlds<World> {};
TYPED_TEST_SUITE(FileChanges, Worlds);

class PosixFileChanges : public OnRealDisk {};

TYPED_TEST(FileChanges, ReplacedFileIsWholeAndKeepsItsName) {
    this->world_.add_file("SONG.NTE", "a long old note");
    ASSERT_TRUE(this->world_.files.replace_file(this->world_.path("SONG.NTE"), "new"));
    ASSERT_TRUE(this->world_.files.replace_file(this->world_.path("other.nte"), "fresh"));
    EXPECT_EQ(this->read("SONG.NTE"), "new");
    EXPECT_EQ(this->listed(this->world_.files.list_files(this->world_.root)),
              (Names{"SONG.NTE", "other.nte"}))
        << "and nothing is left beside it";
    ASSERT_TRUE(this->world_.files.replace_file(this->world_.path("song.nte"), "a namesake"));
    EXPECT_EQ(this->read("SONG.NTE"), "new");
    EXPECT_EQ(this->world_.files.replace_file(this->world_.path("Missing/x.nte"), "").error().kind,
              FileErrorKind::not_found);
    this->world_.add_pipe("pipe.nte");
    EXPECT_FALSE(this->world_.files.replace_file(this->world_.path("pipe.nte"), ""));
}

TYPED_TEST(FileChanges, RemovingAndRenamingTouchExactlyTheFileOfThatName) {
    auto& files = this->world_.files;
    const auto path = [&](const char* name) { return this->world_.path(name); };
    this->world_.add_file("song.mid", "small");
    this->world_.add_file("SONG.MID", "large");
    EXPECT_FALSE(files.remove_file(path("Song.mid"))) << "which of the two?";
    ASSERT_TRUE(files.rename_file(path("SONG.MID"), path("waltz.mid")));
    EXPECT_EQ(this->read("waltz.mid"), "large");
    ASSERT_TRUE(files.rename_file(path("waltz.mid"), path("Waltz.MID"))) << "a new case alone";
    ASSERT_TRUE(files.remove_file(path("SONG.mid"))) << "its only match now";
    EXPECT_EQ(this->listed(files.list_files(this->world_.root)), Names{"Waltz.MID"});
    EXPECT_EQ(files.remove_file(path("gone.mid")).error().description, "File not found");
}

TYPED_TEST(FileChanges, RenamingAndMovingNeverDestroyAnotherFile) {
    auto& files = this->world_.files;
    const auto path = [&](const char* name) { return this->world_.path(name); };
    this->world_.add_file("song.mid", "song");
    this->world_.add_file("Other.mid", "other");
    this->world_.add_folder("Folder");
    this->world_.add_folder("store");
    for (const char* taken : {"Other.mid", "OTHER.MID", "Folder"}) {
        EXPECT_EQ(files.rename_file(path("song.mid"), path(taken)).error().kind,
                  FileErrorKind::already_exists);
        EXPECT_EQ(files.move_file(path("song.mid"), path(taken)).error().kind,
                  FileErrorKind::already_exists);
    }
    EXPECT_EQ(files.move_file(path("song.mid"), path("SONG.mid")).error().description,
              "Permission denied");
    EXPECT_FALSE(files.move_file(path("song.mid"), path("nowhere/song.mid")));
    EXPECT_EQ(this->read("song.mid") + this->read("Other.mid"), "songother");
    ASSERT_TRUE(files.move_file(path("SONG.MID"), path("STORE/Song.mid")));
    EXPECT_EQ(this->read("store/Song.mid"), "song");
    EXPECT_EQ(this->read("song.mid"), "(File not found)");
}

TYPED_TEST(FileChanges, CurrentFolderFollowsTheUser) {
    const std::string before = this->world_.files.current_folder();
    this->world_.add_file("Store/waltz.mid", "notes");
    ASSERT_TRUE(this->world_.files.set_current_folder(this->world_.path("store")));
    EXPECT_EQ(this->world_.files.current_folder(), this->world_.path("Store"));
    EXPECT_EQ(*this->world_.files.read_file("waltz.mid", 10), "notes");
    EXPECT_FALSE(this->world_.files.set_current_folder(this->world_.path("nowhere")));
    EXPECT_TRUE(this->world_.files.set_current_folder(before));
}

TEST_F(PosixFileChanges, FileWithoutWritePermissionIsKept) {
    disk_.add_file("song.mid", "notes");
    std::filesystem::permissions(disk_.path("song.mid"), std::filesystem::perms::owner_read);
    EXPECT_EQ(disk_.files.remove_file(disk_.path("song.mid")).error().description,
              "Permission denied");
    EXPECT_EQ(disk_.files.replace_file(disk_.path("song.mid"), "x").error().description,
              "Permission denied");
    EXPECT_EQ(*disk_.files.read_file(disk_.path("song.mid"), 100), "notes");
}

TEST_F(PosixFileChanges, ReplacedLinkStaysALinkAndTheModeStaysToo) {
    disk_.add_file("store/song.nte", "old");
    std::filesystem::permissions(disk_.path("store/song.nte"), std::filesystem::perms(0640));
    std::filesystem::create_symlink("store/song.nte", disk_.path("song.nte"));
    ASSERT_TRUE(disk_.files.replace_file(disk_.path("song.nte"), "new"));
    EXPECT_TRUE(std::filesystem::is_symlink(disk_.path("song.nte")));
    EXPECT_EQ(*disk_.files.read_file(disk_.path("store/song.nte"), 100), "new");
    EXPECT_EQ(std::filesystem::status(disk_.path("store/song.nte")).permissions(),
              std::filesystem::perms(0640));
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
    EXPECT_TRUE(disk_.files.move_file(disk_.path("song.mid"), other + "/Song.mid"));
    EXPECT_FALSE(std::filesystem::exists(disk_.path("song.mid")));
    EXPECT_EQ(*disk_.files.read_file(other + "/Song.mid", 1'000'000), notes);

    disk_.add_file("song.mid", "another");
    EXPECT_EQ(disk_.files.move_file(disk_.path("song.mid"), other + "/SONG.MID").error().kind,
              FileErrorKind::already_exists);
    EXPECT_EQ(*disk_.files.read_file(disk_.path("song.mid"), 100), "another");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(other), {}), 1);
    std::filesystem::remove_all(other);
}

TEST_F(PosixFileChanges, FullDiskLeavesTheOldFileAndNothingBesideIt) {
    disk_.add_file("song.nte", "old");
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const auto old_action = ::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{1000, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    const auto replaced = disk_.files.replace_file(disk_.path("song.nte"), std::string(2000, 'b'));
    ::setrlimit(RLIMIT_FSIZE, &before);
    ::signal(SIGXFSZ, old_action);
    ASSERT_FALSE(replaced);
    EXPECT_EQ(replaced.error().description, "Disk full");
    EXPECT_EQ(*disk_.files.read_file(disk_.path("song.nte"), 100), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(disk_.root), {}), 1);
}

}  // namespace
}  // namespace zephyne
