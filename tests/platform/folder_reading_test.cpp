#include "file_worlds.h"

#include <sys/mount.h>

#include <cerrno>
#include <cstring>

namespace zephyne::test {
namespace {

class FolderReading : public InBothWorlds {};
INSTANTIATE_TEST_SUITE_P(BothWorlds, FolderReading, kBothWorlds);

class PosixFolderReading : public OnRealDisk {};

// "name", or "name/" for a folder, sorted.
Names members(const FileSystem& files, const std::string& folder) {
    const auto reader = files.read_folder(folder);
    if (!reader) return {"(" + error_of(reader) + ")"};
    Names names;
    while (const auto member = (*reader)->next()) {
        names.push_back(std::string(member->name) +
                        (member->kind == MemberKind::folder ? "/" : ""));
    }
    std::sort(names.begin(), names.end());
    return names;
}

TEST_P(FolderReading, FolderIsReadMemberByMember) {
    add_file("song.mid");
    add_file("Folder/inner.mid");
    add_pipe("pipe.mid");
    add_dangling_link("link.mid");
    EXPECT_EQ(members(files_, disk_.root), (Names{"Folder/", "song.mid"}));
    EXPECT_EQ(members(files_, path("folder")), Names{"inner.mid"});
    EXPECT_EQ(members(files_, path("song.mid")), Names{"(Path not found)"});

    const auto identity = [&](const char* name) { return files_.identify_folder(path(name)); };
    EXPECT_EQ(*identity("Folder"), *identity("FOLDER/../Folder"));
    EXPECT_EQ(identity("Folder")->volume, identity(".")->volume);
    EXPECT_NE(identity("Folder")->number, identity(".")->number);
    EXPECT_FALSE(identity("song.mid"));
    EXPECT_FALSE(identity("missing"));
}

TEST_F(PosixFolderReading, FollowsNoLinkToAFolderAndNoneToAnotherVolume) {
    disk_.add_file("store/waltz.mid");
    disk_.add_file("store/.hidden.mid");
    for (const auto& [link, target] :
         std::vector<std::pair<const char*, const char*>>{{"waltz.mid", "store/waltz.mid"},
                                                          {"Linked", "store"},
                                                          {"Loop", "."},
                                                          {"far.mid", "/proc/version"}}) {
        std::filesystem::create_symlink(target, path(link));
    }
    EXPECT_EQ(members(files_, disk_.root), (Names{"store/", "waltz.mid"}));
    EXPECT_EQ(members(files_, path("store")), Names{"waltz.mid"});
    EXPECT_EQ(*files_.identify_folder(path("Linked")), *files_.identify_folder(path("store")));
}

TEST_F(PosixFolderReading, FolderOnAnotherVolumeIsKnownBeforeItIsEntered) {
    const auto volume = [&](const std::string& folder) {
        return files_.identify_folder(folder).value().volume;
    };
    EXPECT_NE(volume("/"), volume("/proc"));
    disk_.add_folder("mounted");
    EXPECT_EQ(volume(path("mounted")), volume(disk_.root));
    if (::mount("none", path("mounted").c_str(), "tmpfs", 0, nullptr) != 0) {
        GTEST_SKIP() << "mounting is not permitted here: " << std::strerror(errno);
    }
    EXPECT_NE(volume(path("mounted")), volume(disk_.root));
    ::umount(path("mounted").c_str());
}

}  // namespace
}  // namespace zephyne::test
