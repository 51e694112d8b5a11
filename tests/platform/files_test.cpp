#include "file_worlds.h"
#include "platform/files/volumes.h"

#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>

namespace zephyne::test {
namespace {

namespace fs = std::filesystem;

class Files : public InBothWorlds {};
INSTANTIATE_TEST_SUITE_P(BothWorlds, Files, kBothWorlds);

class PosixFiles : public OnRealDisk {};

TEST_P(Files, PathIsFoundAsWrittenElseByItsOnlyMatchInAnyCase) {
    add_file("Old Songs/MYSONG.MID", "notes");
    EXPECT_EQ(read("Old Songs/MYSONG.MID"), "notes");
    EXPECT_EQ(read("old songs/Mysong.mid"), "notes");
    EXPECT_TRUE(files_.check_readable(path("OLD SONGS/mysong.mid")));
    EXPECT_EQ(listed("OLD songs/"), Names{"MYSONG.MID"});
    EXPECT_EQ(read("Old Songs/MYSONG.NTE"), "(File not found)");
    EXPECT_EQ(read("New Songs/MYSONG.MID"), "(Path not found)");
    EXPECT_EQ(read("Old Songs/MYSONG.MID/inside"), "(Path not found)");
}

TEST_P(Files, NamesThatDifferOnlyInCaseAreTwoFiles) {
    add_file("song.mid", "small");
    add_file("SONG.MID", "large");
    EXPECT_EQ(read("song.mid"), "small");
    EXPECT_EQ(read("SONG.MID"), "large");
    EXPECT_EQ(read("Song.mid"), "(File not found)") << "which of the two?";
    EXPECT_EQ(write("Song.mid", "third"), "third");
    EXPECT_EQ(listed(), (Names{"SONG.MID", "Song.mid", "song.mid"}));
}

TEST_P(Files, NamesAreBytes) {
    Names names{
        std::string(251, 'x') + ".mid",  // as long as a name can be
        "\xC9t\xE9 \x80.mid",            // Windows-1252
        "\xC3\x89t\xC3\xA9.MID",         // UTF-8
        "a\\b:c|d\n.mid",
    };
    for (const std::string& name : names) {
        add_file(name, name);
        EXPECT_EQ(read(name), name);
    }
    EXPECT_EQ(read("\xC3\xA9T\xC3\x89.mid"), names[2]) << "letters beyond ASCII have case";
    EXPECT_EQ(read("\xE9t\xE9 \x80.mid"), "(File not found)");
    std::sort(names.begin(), names.end());
    EXPECT_EQ(listed(), names);
}

TEST_P(Files, NothingButOrdinaryFilesIsListedOrOpened) {
    add_file("song.mid");
    add_folder("folder.mid");
    add_pipe("pipe.mid");
    add_dangling_link("link.mid");
    EXPECT_EQ(listed(), Names{"song.mid"});
    EXPECT_EQ(files_.list_folders(disk_.root), Names{"folder.mid"});
    for (const char* name : {"pipe.mid", "folder.mid"}) {
        EXPECT_EQ(read(name), "(Not an ordinary file)");
        EXPECT_EQ(write(name, "x"), "(Not an ordinary file)");
        EXPECT_EQ(files_.check_readable(path(name)).error().kind, FileErrorKind::other);
    }
    EXPECT_EQ(read("link.mid"), "(File not found)");
    EXPECT_EQ(resolved(path("link.mid")), "(File not found)");
}

TEST_P(Files, ResolvedPathIsAbsoluteAndInItsRealCase) {
    add_file("Songs/Waltz.mid");
    for (const char* written : {"Songs/Waltz.mid", "songs/WALTZ.MID", "./songs//../Songs/waltz.MID",
                                "Songs/./Waltz.mid"}) {
        EXPECT_EQ(resolved(path(written)), path("Songs/Waltz.mid")) << written;
    }
    EXPECT_EQ(resolved(path("SONGS/")), path("Songs"));
    EXPECT_EQ(resolved("/"), "/");
    EXPECT_EQ(resolved("/../"), "/");
    EXPECT_EQ(resolved("."), files_.current_folder());
    EXPECT_EQ(resolved(path("Songs/Polka.mid")), "(File not found)");
    EXPECT_EQ(resolved(path("Tunes/Waltz.mid")), "(Path not found)");
}

TEST_P(Files, WritingGoesIntoTheFileThatIsThereInWhateverCase) {
    add_file("Notes/SONG.NTE", "a long old note");
    EXPECT_EQ(write("notes/song.nte", "new"), "new");
    EXPECT_EQ(write("NOTES/other.nte", "fresh"), "fresh");
    EXPECT_EQ(listed("Notes"), (Names{"SONG.NTE", "other.nte"}));
    EXPECT_EQ(write("Missing/song.nte", "x"), "(Path not found)");
}

TEST_P(Files, ReadingStopsAtTheLimitAndAtPathsThatCannotBe) {
    add_file("song.mid", "0123456789");
    EXPECT_EQ(files_.read_file(path("song.mid"), 0), "");
    EXPECT_EQ(files_.read_file(path("song.mid"), 4), "0123");
    EXPECT_EQ(files_.read_file(path("song.mid"), 10), "0123456789");
    EXPECT_EQ(files_.read_file(path("song.mid"), 11), "0123456789");
    for (const std::string& bad :
         {std::string(), path(std::string("song.mid\0.txt", 13)), path(std::string(5000, 'x'))}) {
        EXPECT_FALSE(files_.read_file(bad, 10));
        EXPECT_FALSE(files_.resolve(bad));
        EXPECT_FALSE(files_.list_files(bad));
    }
}

TEST_F(PosixFiles, LinksToFilesAndFoldersCountAsWhatTheyLeadTo) {
    disk_.add_file("deep/store/waltz.mid", "notes");
    disk_.add_file("deep/polka.mid");
    fs::create_symlink("deep/store/waltz.mid", path("link.mid"));
    fs::create_directory_symlink("deep/store", path("Linked"));
    EXPECT_EQ(files_.list_files(disk_.root), Names{"link.mid"});
    EXPECT_EQ(files_.list_folders(disk_.root)->size(), 2U);
    EXPECT_EQ(read("linked/WALTZ.mid"), "notes");
    EXPECT_EQ(files_.resolve(path("link.mid")), path("link.mid"));
    EXPECT_EQ(files_.resolve(path("Linked")), path("Linked"));
    EXPECT_EQ(files_.resolve(path("linked/../polka.mid")), path("deep/polka.mid"))
        << "the folder above a linked one is that in which it really lies";
}

TEST_F(PosixFiles, HiddenNamesPipesAndSocketsAreNotListed) {
    disk_.add_file(".secret.mid", "notes");
    disk_.add_folder(".folder");
    ::mkfifo(path("pipe.mid").c_str(), 0600);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path("socket.mid").c_str(), sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(files_.list_files(disk_.root), Names{});
    EXPECT_EQ(files_.list_folders(disk_.root), Names{});
    EXPECT_EQ(read(".secret.mid"), "notes");
    for (const char* name : {"pipe.mid", "socket.mid"}) {
        EXPECT_FALSE(files_.check_readable(path(name))) << name;  // would hang here
        EXPECT_FALSE(files_.create_file(path(name))) << name;
    }
    ::close(socket);
}

// The kernel's own files deny even the administrator, who often runs tests.
TEST_F(PosixFiles, RefusedPermissionIsCalledSo) {
    const char* write_only = "/proc/sys/vm/compact_memory";
    const char* read_only = "/proc/sys/kernel/ostype";
    if (!fs::exists(write_only) || !fs::exists(read_only)) {
        GTEST_SKIP() << "this kernel has no such file";
    }
    const auto read = files_.check_readable(write_only);
    EXPECT_EQ(error_of(read), "Permission denied");
    EXPECT_EQ(read.error().kind, FileErrorKind::permission_denied);
    EXPECT_EQ(error_of(files_.create_file(read_only)), "Permission denied");
}

TEST_F(PosixFiles, FileInUseByTheSystemIsCalledAlreadyOpen) {
    fs::copy_file("/bin/sleep", path("sleeper"));
    std::string name = "sleeper";
    std::string seconds = "60";
    char* arguments[] = {name.data(), seconds.data(), nullptr};
    pid_t child = 0;
    ASSERT_EQ(::posix_spawn(&child, path("sleeper").c_str(), nullptr, nullptr, arguments, environ),
              0);
    const auto written = files_.create_file(path("sleeper"));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    if (written) GTEST_SKIP() << "this kernel lets running programs be overwritten";
    EXPECT_EQ(written.error().kind, FileErrorKind::already_open);
    EXPECT_EQ(error_of(written), "File already open");
}

TEST_F(PosixFiles, FullDiskIsReportedAndWhatWasWrittenBeforeStays) {
    const auto file = files_.create_file(path("list.plf"));
    ASSERT_TRUE(file);
    EXPECT_TRUE((*file)->write(std::string(800, 'a')));
    {
        const SmallDisk small;
        EXPECT_EQ(error_of((*file)->write(std::string(800, 'b'))), "Disk full");
    }
    EXPECT_TRUE((*file)->close());
    EXPECT_TRUE(read("list.plf").starts_with(std::string(800, 'a')));
}

TEST_F(PosixFiles, HomeAndSystemLeadTheVolumes) {
    const auto volumes = files_.volumes();
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

}  // namespace
}  // namespace zephyne::test
