#include "file_worlds.h"
#include "platform/files/volumes.h"

#include <signal.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace zephyne {
namespace {

using namespace test;

template <class World>
class Files : public InBothWorlds<World> {};
TYPED_TEST_SUITE(Files, Worlds);

class PosixFiles : public OnRealDisk {};

TYPED_TEST(Files, PathIsFoundAsWrittenElseByItsOnlyMatchInAnyCase) {
    this->world_.add_file("Old Songs/MYSONG.MID", "notes");
    EXPECT_EQ(this->read("Old Songs/MYSONG.MID"), "notes");
    EXPECT_EQ(this->read("old songs/Mysong.mid"), "notes");
    EXPECT_TRUE(this->world_.files.check_readable(this->world_.path("OLD SONGS/mysong.mid")));
    EXPECT_EQ(this->listed(this->world_.files.list_files(this->world_.path("OLD songs/"))),
              Names{"MYSONG.MID"});
    EXPECT_EQ(this->read("Old Songs/MYSONG.NTE"), "(File not found)");
    EXPECT_EQ(this->read("New Songs/MYSONG.MID"), "(Path not found)");
    EXPECT_EQ(this->read("Old Songs/MYSONG.MID/inside"), "(Path not found)");
}

TYPED_TEST(Files, NamesThatDifferOnlyInCaseAreTwoFiles) {
    this->world_.add_file("song.mid", "small");
    this->world_.add_file("SONG.MID", "large");
    EXPECT_EQ(this->read("song.mid"), "small");
    EXPECT_EQ(this->read("SONG.MID"), "large");
    EXPECT_EQ(this->read("Song.mid"), "(File not found)") << "which of the two?";
    EXPECT_EQ(this->write("Song.mid", "third"), "third");
    EXPECT_EQ(this->listed(this->world_.files.list_files(this->world_.root)),
              (Names{"SONG.MID", "Song.mid", "song.mid"}));
}

TYPED_TEST(Files, NamesAreBytes) {
    const Names names{
        std::string(251, 'x') + ".mid",  // as long as a name can be
        "\xC9t\xE9 \x80.mid",            // Windows-1252
        "\xC3\x89t\xC3\xA9.MID",         // UTF-8
        "a\\b:c|d\n.mid",
    };
    for (const std::string& name : names) {
        this->world_.add_file(name, name);
        EXPECT_EQ(this->read(name), name);
    }
    EXPECT_EQ(this->read("\xC3\xA9T\xC3\x89.mid"), names[2]) << "letters beyond ASCII have case";
    EXPECT_EQ(this->read("\xE9t\xE9 \x80.mid"), "(File not found)");
    Names sorted = names;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(this->listed(this->world_.files.list_files(this->world_.root)), sorted);
}

TYPED_TEST(Files, NothingButOrdinaryFilesIsListedOrOpened) {
    this->world_.add_file("song.mid", "");
    this->world_.add_folder("folder.mid");
    this->world_.add_pipe("pipe.mid");
    this->world_.add_dangling_link("link.mid");
    EXPECT_EQ(this->listed(this->world_.files.list_files(this->world_.root)), Names{"song.mid"});
    EXPECT_EQ(this->listed(this->world_.files.list_folders(this->world_.root)),
              Names{"folder.mid"});
    for (const char* name : {"pipe.mid", "folder.mid"}) {
        EXPECT_EQ(this->read(name), "(Not an ordinary file)");
        EXPECT_EQ(this->write(name, "x"), "(Not an ordinary file)");
        const auto readable = this->world_.files.check_readable(this->world_.path(name));
        ASSERT_FALSE(readable);
        EXPECT_EQ(readable.error().kind, FileErrorKind::other);
    }
    EXPECT_EQ(this->read("link.mid"), "(File not found)");
    EXPECT_EQ(this->resolved(this->world_.path("link.mid")), "(File not found)");
}

TYPED_TEST(Files, ResolvedPathIsAbsoluteAndInItsRealCase) {
    this->world_.add_file("Songs/Waltz.mid", "");
    const std::string song = this->world_.path("Songs/Waltz.mid");
    for (const char* written : {"Songs/Waltz.mid", "songs/WALTZ.MID", "./songs//../Songs/waltz.MID",
                                "Songs/./Waltz.mid"}) {
        EXPECT_EQ(this->resolved(this->world_.path(written)), song) << written;
    }
    EXPECT_EQ(this->resolved(this->world_.path("SONGS/")), this->world_.path("Songs"));
    EXPECT_EQ(this->resolved("/"), "/");
    EXPECT_EQ(this->resolved("/../"), "/");
    EXPECT_EQ(this->resolved("."), this->world_.files.current_folder());
    EXPECT_EQ(this->resolved(this->world_.path("Songs/Polka.mid")), "(File not found)");
    EXPECT_EQ(this->resolved(this->world_.path("Tunes/Waltz.mid")), "(Path not found)");
}

TYPED_TEST(Files, WritingGoesIntoTheFileThatIsThereInWhateverCase) {
    this->world_.add_file("Notes/SONG.NTE", "a long old note");
    EXPECT_EQ(this->write("notes/song.nte", "new"), "new");
    EXPECT_EQ(this->write("NOTES/other.nte", "fresh"), "fresh");
    EXPECT_EQ(this->listed(this->world_.files.list_files(this->world_.path("Notes"))),
              (Names{"SONG.NTE", "other.nte"}));
    EXPECT_EQ(this->write("Missing/song.nte", "x"), "(Path not found)");
}

TYPED_TEST(Files, ReadingStopsAtTheLimit) {
    this->world_.add_file("song.mid", "0123456789");
    const auto read = [&](std::size_t limit) {
        return *this->world_.files.read_file(this->world_.path("song.mid"), limit);
    };
    EXPECT_EQ(read(4), "0123");
    EXPECT_EQ(read(10), "0123456789");
    EXPECT_EQ(read(11), "0123456789");
    EXPECT_EQ(read(0), "");
}

TYPED_TEST(Files, PathsThatCannotBeAreNotFound) {
    this->world_.add_file("song.mid", "notes");
    const Names bad{"", this->world_.path(std::string("song.mid\0.txt", 13)),
                    this->world_.path(std::string(5000, 'x'))};
    for (const std::string& path : bad) {
        EXPECT_FALSE(this->world_.files.read_file(path, 10));
        EXPECT_FALSE(this->world_.files.resolve(path));
        EXPECT_FALSE(this->world_.files.list_files(path));
    }
}

TEST_F(PosixFiles, LinksToFilesAndFoldersCountAsWhatTheyLeadTo) {
    disk_.add_file("store/waltz.mid", "notes");
    std::filesystem::create_symlink("store/waltz.mid", disk_.path("link.mid"));
    std::filesystem::create_directory_symlink("store", disk_.path("Linked"));
    EXPECT_EQ(disk_.files.list_files(disk_.root), Names{"link.mid"});
    EXPECT_EQ(disk_.files.list_folders(disk_.root)->size(), 2U);
    EXPECT_EQ(disk_.files.read_file(disk_.path("linked/WALTZ.mid"), 100), "notes");
    EXPECT_EQ(disk_.files.resolve(disk_.path("link.mid")), disk_.path("link.mid"));
    EXPECT_EQ(disk_.files.resolve(disk_.path("Linked")), disk_.path("Linked"));
}

TEST_F(PosixFiles, ParentOfALinkedFolderIsTheOneItReallyLiesIn) {
    disk_.add_file("deep/store/waltz.mid", "");
    disk_.add_file("deep/polka.mid", "");
    std::filesystem::create_directory_symlink("deep/store", disk_.path("linked"));
    EXPECT_EQ(disk_.files.resolve(disk_.path("linked/../polka.mid")), disk_.path("deep/polka.mid"));
}

TEST_F(PosixFiles, NamesBeginningWithADotAreHiddenButCanBeOpened) {
    disk_.add_file(".secret.mid", "notes");
    disk_.add_folder(".folder");
    EXPECT_EQ(disk_.files.list_files(disk_.root), Names{});
    EXPECT_EQ(disk_.files.list_folders(disk_.root), Names{});
    EXPECT_EQ(disk_.files.read_file(disk_.path(".secret.mid"), 100), "notes");
}

TEST_F(PosixFiles, PipeIsLeftInPeaceAndSoIsASocket) {
    disk_.add_pipe("pipe.mid");
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, disk_.path("socket.mid").c_str(), sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    for (const char* name : {"pipe.mid", "socket.mid"}) {
        EXPECT_FALSE(disk_.files.check_readable(disk_.path(name))) << name;  // would hang here
        EXPECT_FALSE(disk_.files.create_file(disk_.path(name))) << name;
    }
    EXPECT_EQ(disk_.files.list_files(disk_.root), Names{});
    ::close(socket);
}

// The kernel's own files deny even the administrator, who often runs tests.
TEST_F(PosixFiles, RefusedPermissionIsCalledSo) {
    const char* write_only = "/proc/sys/vm/compact_memory";
    const char* read_only = "/proc/sys/kernel/ostype";
    if (!std::filesystem::exists(write_only) || !std::filesystem::exists(read_only)) {
        GTEST_SKIP() << "this kernel has no such file";
    }
    const auto read = disk_.files.check_readable(write_only);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().kind, FileErrorKind::permission_denied);
    EXPECT_EQ(read.error().description, "Permission denied");
    const auto written = disk_.files.create_file(read_only);
    ASSERT_FALSE(written);
    EXPECT_EQ(written.error().kind, FileErrorKind::permission_denied);
}

TEST_F(PosixFiles, FileInUseByTheSystemIsCalledAlreadyOpen) {
    const std::string program = disk_.path("sleeper");
    std::filesystem::copy_file("/bin/sleep", program);
    std::string name = "sleeper";
    std::string seconds = "60";
    char* arguments[] = {name.data(), seconds.data(), nullptr};
    pid_t child = 0;
    ASSERT_EQ(::posix_spawn(&child, program.c_str(), nullptr, nullptr, arguments, environ), 0);
    const auto written = disk_.files.create_file(program);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    if (written) GTEST_SKIP() << "this kernel lets running programs be overwritten";
    EXPECT_EQ(written.error().kind, FileErrorKind::already_open);
    EXPECT_EQ(written.error().description, "File already open");
}

TEST_F(PosixFiles, FullDiskIsReportedAndWhatWasWrittenBeforeStays) {
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const auto old_action = ::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{1000, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    const auto file = disk_.files.create_file(disk_.path("list.plf"));
    ASSERT_TRUE(file);
    EXPECT_TRUE((*file)->write(std::string(800, 'a')));
    const auto second = (*file)->write(std::string(800, 'b'));
    ::setrlimit(RLIMIT_FSIZE, &before);
    ::signal(SIGXFSZ, old_action);
    ASSERT_FALSE(second);
    EXPECT_EQ(second.error().description, "Disk full");
    EXPECT_TRUE((*file)->close());
    EXPECT_TRUE(
        disk_.files.read_file(disk_.path("list.plf"), 2000)->starts_with(std::string(800, 'a')));
}

TEST_F(PosixFiles, HomeAndSystemLeadTheVolumes) {
    const auto volumes = disk_.files.volumes();
    ASSERT_GE(volumes.size(), 2U);
    EXPECT_EQ(volumes[0].name, "Home");
    EXPECT_FALSE(volumes[0].label.empty());
    EXPECT_EQ(volumes[1], (Volume{"/", "System", ""}));
}

TEST(Volumes, OnlyWhatAPersonWouldCallADiskIsListed) {
    const char* table =
        "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
        "25 24 0:23 / /dev/shm rw - tmpfs tmpfs rw\n"
        "27 1 8:2 / / rw,relatime shared:1 - ext4 /dev/sda2 rw\n"
        "28 27 8:1 / /boot/efi rw - vfat /dev/sda1 rw\n"
        "29 27 7:3 / /snap/core/1 ro - squashfs /dev/loop3 ro\n"
        "30 27 0:40 / /var/lib/docker/overlay2/x/merged rw - overlay overlay rw\n"
        "31 27 8:33 / /run/media/clara/USB\\040STICK rw,nosuid shared:9 master:1 - vfat /dev/sdc1 "
        "rw\n"
        "32 27 8:17 / /mnt/music rw - ext4 /dev/sdb1 rw\n"
        "33 27 8:17 / /home/clara/again rw - ext4 /dev/sdb1 rw\n"
        "34 27 8:2 /etc/hosts /srv/hosts rw - ext4 /dev/sda2 rw\n"
        "35 27 0:51 / /mnt/attic rw - nfs4 server:/export/midi rw,addr=10.0.0.7\n"
        "36 27 0:60 /@archive /archive rw - btrfs /dev/sdd1 rw\n"
        "37 27 0:61 / /run/user/1000/gvfs rw - fuse.gvfsd-fuse gvfsd-fuse rw\n"
        "38 27 0:62 / /home/clara/tmp rw - tmpfs tmpfs rw\n"
        "a damaged line\n"
        "\n";
    const auto label_of = [](const std::string& device) -> std::string {
        if (device == "/dev/sdb1") return "Songs";
        return device == "/dev/sdc1" ? "USB STICK" : "";
    };
    const std::vector<Volume> expected{
        {"/archive", "archive", ""},
        {"/mnt/attic", "attic", "server:/export/midi"},
        {"/mnt/music", "music", "Songs"},
        {"/run/media/clara/USB STICK", "USB STICK", ""},
    };
    EXPECT_EQ(disks_among(table, label_of), expected);
}

TEST(MemoryFileSystem, WindowsStyleHasDrivesAndBackslashes) {
    MemoryFileSystem files(PathStyle::windows, "C:\\Midi");
    files.add_file("D:\\Songs\\Waltz.mid", "notes");
    files.add_file("Polka.mid", "here");
    EXPECT_EQ(files.read_file("d:\\SONGS\\waltz.MID", 100), "notes");
    EXPECT_EQ(files.resolve("d:\\songs\\..\\songs\\"), "D:\\Songs");
    EXPECT_EQ(files.resolve("D:\\"), "D:\\");
    EXPECT_EQ(files.resolve("polka.mid"), "C:\\Midi\\Polka.mid");
    EXPECT_EQ(files.resolve("\\midi"), "C:\\Midi");
    EXPECT_EQ(files.volumes(), (std::vector<Volume>{{"C:\\", "C:", ""}}));
}

TEST(MemoryFileSystem, FaultsComeWhereTheyWereOrdered) {
    MemoryFileSystem files(PathStyle::posix, "/m");
    for (const char* name : {"denied", "held", "gone", "locked"}) files.add_file(name, "x");
    files.deny("denied");
    files.hold_open("held");
    files.vanish("gone");
    files.deny_writing("locked");
    const auto reading = [&](const char* name) {
        const auto result = files.check_readable(name);
        return result ? "fine" : result.error().description;
    };
    EXPECT_EQ(reading("denied"), "Permission denied");
    EXPECT_EQ(reading("held"), "File already open");
    EXPECT_EQ(reading("gone"), "File not found");
    EXPECT_EQ(reading("locked"), "fine");
    EXPECT_EQ(files.create_file("locked").error().kind, FileErrorKind::permission_denied);
    EXPECT_EQ(files.contents("locked"), "x");
    EXPECT_EQ(files.list_files("/m")->size(), 4U);
    files.deny("/m");
    EXPECT_EQ(files.list_files("/m").error().kind, FileErrorKind::permission_denied);
    EXPECT_EQ(reading("/m/locked"), "Permission denied");
    files.allow("/m");

    files.fail_write_number(2);
    const auto file = files.create_file("new");
    EXPECT_TRUE((*file)->write("one "));
    EXPECT_FALSE((*file)->write("two "));
    EXPECT_TRUE((*file)->write("three"));
    EXPECT_EQ(files.contents("new"), "one three");
}

}  // namespace
}  // namespace zephyne
