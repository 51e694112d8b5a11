#include "platform/desktop/program_start.h"

#include "platform/files/posix_file_system.h"
#include "temporary_folder.h"
#include "tests/support/memory_file_system.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

class ProgramFoldersTest : public testing::Test {
  protected:
    void put_data(const std::string& folder) const { root_.add_file(folder + "/gm_reset.aut"); }
    // "own | installed", below the root of this test.
    std::string chosen() const {
        const ProgramFolders folders = program_folders(files_, surroundings_);
        EXPECT_TRUE(std::filesystem::is_directory(folders.own));
        const auto shown = [&](const std::string& folder) {
            return folder.empty() ? "none" : folder.substr(root_.root.size());
        };
        return shown(folders.own) + " | " + shown(folders.installed);
    }

    PosixFileSystem files_;
    TemporaryFolder root_;
    StartSurroundings surroundings_{.executable_folder = root_.path("usr/bin"),
                                    .user_configuration = root_.path("home/.config"),
                                    .system_data = {root_.path("opt/share")}};
};

TEST_F(ProgramFoldersTest, InstalledProgramKeepsSettingsWithTheUser) {
    EXPECT_EQ(chosen(), "/home/.config/zephyne | none");
    put_data("opt/share/zephyne");
    EXPECT_EQ(chosen(), "/home/.config/zephyne | /opt/share/zephyne");
    put_data("usr/share/zephyne");
    EXPECT_EQ(chosen(), "/home/.config/zephyne | /usr/share/zephyne");
}

TEST_F(ProgramFoldersTest, DataBesideTheExecutableMakesThatTheFolderForAllButForAHomeOfItsOwn) {
    put_data("usr/bin");
    put_data("usr/share/zephyne");
    EXPECT_EQ(chosen(), "/usr/bin | /usr/bin");
    surroundings_.home_override = root_.path("elsewhere/new");
    EXPECT_EQ(chosen(), "/elsewhere/new | /usr/bin");
}

TEST(CommandLine, ArgumentsAreJoinedAndARelativePathThatIsThereBecomesAbsolute) {
    MemoryFileSystem files(PathStyle::posix, "/m");
    files.add_file("My Song.mid");
    files.add_file("--version");
    files.add_file("-session drummer.mid");
    files.add_file("lists/party.plf");
    const auto line = [&](const std::vector<const char*>& arguments) {
        return command_line(files, arguments);
    };
    EXPECT_EQ(line({}), "");
    EXPECT_EQ(line({"My", "Song.mid"}), "/m/My Song.mid");
    EXPECT_EQ(line({"lists/PARTY.plf"}), "/m/lists/party.plf");
    EXPECT_EQ(line({"/m/lists/../My Song.mid"}), "/m/lists/../My Song.mid");
    EXPECT_EQ(line({"gone", " away.mid"}), "gone  away.mid");
    EXPECT_EQ(line({"--help"}), "--help");
    EXPECT_EQ(line({"--version"}), "/m/--version");
    EXPECT_EQ(line({"-session", "21a06dfca_1234"}), "") << "restored at log-on";
    EXPECT_EQ(line({"-session", "drummer.mid"}), "/m/-session drummer.mid");
}

}  // namespace
}  // namespace zephyne::test
