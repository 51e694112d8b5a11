// Where sound fonts are looked for, and which system exclusive messages we understand ourselves.
#include "platform/sound/exclusive_message.h"
#include "platform/sound/sound_font_search.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

namespace zephyne {
namespace {

namespace fs = std::filesystem;

TEST(SoundFontSearch, TakesFontsInTheOrderOfThePlacesAndEachOnce) {
    const fs::path folder =
        fs::temp_directory_path() / ("zephyne-fonts-" + std::to_string(getpid()));
    fs::create_directories(folder / "folder.sf2");
    for (const char* name : {"b.SF2", "a.sf3", "c.txt", "default.sf2"})
        std::ofstream(folder / name);
    const auto fonts =
        sound_fonts_in({{(folder / "missing.sf2").string(), (folder / "none").string(),
                         (folder / "default.sf2").string(), folder.string()}});
    const auto path = [&](const char* name) { return (folder / name).string(); };
    EXPECT_EQ(fonts, (std::vector{path("default.sf2"), path("a.sf3"), path("b.SF2")}));
    fs::remove_all(folder);
}

TEST(ExclusiveMessage, ResetsAreKnownByTheirBytesAndTheirCheckSum) {
    struct Case {
        std::vector<std::uint8_t> message;
        std::optional<BankMode> mode;
    };
    for (const Case& c : std::vector<Case>{
             {{0x7E, 0x7F, 0x09, 0x01}, BankMode::gm},
             {{0x7E, 0x10, 0x09, 0x03}, BankMode::gm},  // General MIDI 2
             {{0x7E, 0x7F, 0x09, 0x02}, std::nullopt},  // off
             {{0x7E, 0x05, 0x09, 0x01}, std::nullopt},  // for another device
             {{0x41, 0x10, 0x42, 0x12, 0x40, 0x00, 0x7F, 0x00, 0x41}, BankMode::gs},
             {{0x41, 0x10, 0x42, 0x12, 0x40, 0x00, 0x7F, 0x7F, 0x42}, BankMode::gm},
             {{0x41, 0x10, 0x42, 0x12, 0x40, 0x00, 0x7F, 0x00, 0x40}, std::nullopt},  // sum
             {{0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00}, BankMode::xg},
             {{0x43, 0x10, 0x4C, 0x00, 0x00, 0x7F, 0x00}, BankMode::xg},
             {{0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x01}, std::nullopt},
             {{0x43, 0x10}, std::nullopt},
             {{}, std::nullopt}}) {
        EXPECT_EQ(reset_in(c.message), c.mode) << testing::PrintToString(c.message);
    }
    for (const BankMode mode : {BankMode::gm, BankMode::gs, BankMode::xg}) {
        EXPECT_EQ(reset_in(reset_message(mode)), mode);
    }
}

TEST(ExclusiveMessage, MasterVolumeIsUnderstoodInAllThreeTongues) {
    struct Case {
        std::vector<std::uint8_t> message;
        std::optional<float> volume;
    };
    for (const Case& c :
         std::vector<Case>{{{0x7F, 0x7F, 0x04, 0x01, 0x7F, 0x7F}, 1.0F},
                           {{0x7F, 0x7F, 0x04, 0x01, 0x00, 0x00}, 0.0F},
                           {{0x7F, 0x7F, 0x04, 0x02, 0x00, 0x00}, std::nullopt},  // balance
                           {{0x41, 0x10, 0x42, 0x12, 0x40, 0x00, 0x04, 0x7F, 0x3D}, 1.0F},
                           {{0x41, 0x10, 0x42, 0x12, 0x40, 0x00, 0x04, 0x7F, 0x3E}, std::nullopt},
                           {{0x43, 0x10, 0x4C, 0x00, 0x00, 0x04, 0x00}, 0.0F}}) {
        EXPECT_EQ(master_volume_in(c.message), c.volume) << testing::PrintToString(c.message);
    }
    const std::vector<std::uint8_t> half = {0x7F, 0x7F, 0x04, 0x01, 0x00, 0x40};
    EXPECT_NEAR(*master_volume_in(half), 0.25F, 0.001F);
}

}  // namespace
}  // namespace zephyne
