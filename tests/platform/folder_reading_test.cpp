#include "file_worlds.h"

#include <sys/mount.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace zephyne {
namespace {

using namespace test;

template <class World>
class FolderReading : public InBothWorlds<World> {};
TYPED_TEST_SUITE(FolderReading, Worlds);

class PosixFolderReading : public OnRealDisk {};

// "name", or "name/" for a folder, sorted.
Names members(const FileSystem& files, const std::string& folder) {
    const auto reader = files.read_folder(folder);
    if (!reader) return {"(" + reader.error().description + ")"};
    Names names;
    while (const auto member = (*reader)->next()) {
        names.push_back(std::string(member->name) +
                        (member->kind == MemberKind::folder ? "/" : ""));
    }
    std::sort(names.begin(), names.end());
    return names;
}

TYPED_TEST(FolderReading, FolderIsReadMemberByMember) {
    this->world_.add_file("song.mid", "");
    this->world_.add_file("Folder/inner.mid", "");
    this->world_.add_pipe("pipe.mid");
    this->world_.add_dangling_link("link.mid");
    EXPECT_EQ(members(this->world_.files, this->world_.root), (Names{"Folder/", "song.mid"}));
    EXPECT_EQ(members(this->world_.files, this->world_.path("folder")), Names{"inner.mid"});
    EXPECT_EQ(members(this->world_.files, this->world_.path("song.mid")),
              Names{"(Path not found)"});

    const auto identity = [&](const std::string& name) {
        return this->world_.files.identify_folder(this->world_.path(name));
    };
    EXPECT_EQ(*identity("Folder"), *identity("FOLDER/../Folder"));
    EXPECT_EQ(identity("Folder")->volume, identity(".")->volume);
    EXPECT_NE(identity("Folder")->number, identity(".")->number);
    EXPECT_FALSE(identity("song.mid"));
    EXPECT_FALSE(identity("missing"));
}

TEST_F(PosixFolderReading, ReadingAFolderFollowsNoLinkToAFolderAndNoneToAnotherVolume) {
    disk_.add_file("store/waltz.mid", "notes");
    disk_.add_file("store/.hidden.mid", "");
    for (const auto& [link, target] :
         std::vector<std::pair<const char*, const char*>>{{"waltz.mid", "store/waltz.mid"},
                                                          {"Linked", "store"},
                                                          {"Loop", "."},
                                                          {"far.mid", "/proc/version"}}) {
        std::filesystem::create_symlink(target, disk_.path(link));
    }
    EXPECT_EQ(members(disk_.files, disk_.root), (Names{"store/", "waltz.mid"}));
    EXPECT_EQ(members(disk_.files, disk_.path("store")), Names{"waltz.mid"});
    EXPECT_EQ(*disk_.files.identify_folder(disk_.path("Linked")),
              *disk_.files.identify_folder(disk_.path("store")));
}

TEST_F(PosixFolderReading, FolderOnAnotherVolumeIsKnownBeforeItIsEntered) {
    const auto here = disk_.files.identify_folder("/");
    const auto kernel = disk_.files.identify_folder("/proc");
    ASSERT_TRUE(here && kernel);
    EXPECT_NE(here->volume, kernel->volume);

    disk_.add_folder("mounted");
    const auto before = disk_.files.identify_folder(disk_.path("mounted"));
    if (::mount("none", disk_.path("mounted").c_str(), "tmpfs", 0, nullptr) != 0) {
        GTEST_SKIP() << "mounting is not permitted here: " << std::strerror(errno);
    }
    const auto after = disk_.files.identify_folder(disk_.path("mounted"));
    ::umount(disk_.path("mounted").c_str());
    EXPECT_EQ(before->volume, disk_.files.identify_folder(disk_.root)->volume);
    EXPECT_NE(after->volume, before->volume);
}

}  // namespace
}  // namespace zephyne
