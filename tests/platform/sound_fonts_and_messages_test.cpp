// Where sound fonts are looked for, and which system exclusive messages we understand ourselves.
#include "platform/sound/exclusive_message.h"
#include "platform/sound/sound_font_search.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

using Message = std::vector<std::uint8_t>;

TEST(SoundFontSearch, TakesFontsInTheOrderOfThePlacesAndEachOnce) {
    const TemporaryFolder folder;
    folder.add_folder("folder.sf2");
    for (const char* name : {"b.SF2", "a.sf3", "c.txt", "default.sf2"}) folder.add_file(name);
    const auto path = [&](const char* name) { return folder.path(name); };
    EXPECT_EQ(
        sound_fonts_in({{path("missing.sf2"), path("none"), path("default.sf2"), folder.root}}),
        (std::vector{path("default.sf2"), path("a.sf3"), path("b.SF2")}));
}

TEST(ExclusiveMessage, ResetsAreKnownByTheirBytesAndTheirCheckSum) {
    using Case = std::pair<Message, std::optional<BankMode>>;
    for (const auto& [message, mode] : std::vector<Case>{
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
        EXPECT_EQ(reset_in(message), mode) << testing::PrintToString(message);
    }
    for (const BankMode mode : {BankMode::gm, BankMode::gs, BankMode::xg}) {
        EXPECT_EQ(reset_in(reset_message(mode)), mode);
    }
}

TEST(ExclusiveMessage, MasterVolumeIsUnderstoodInAllThreeTongues) {
    using Case = std::pair<Message, std::optional<float>>;
    for (const auto& [message, volume] :
         std::vector<Case>{{{0x7F, 0x7F, 0x04, 0x01, 0x7F, 0x7F}, 1.0F},
                           {{0x7F, 0x7F, 0x04, 0x01, 0x00, 0x00}, 0.0F},
                           {{0x7F, 0x7F, 0x04, 0x02, 0x00, 0x00}, std::nullopt},  // balance
                           {{0x41, 0x10, 0x42, 0x12, 0x40, 0x00, 0x04, 0x7F, 0x3D}, 1.0F},
                           {{0x41, 0x10, 0x42, 0x12, 0x40, 0x00, 0x04, 0x7F, 0x3E}, std::nullopt},
                           {{0x43, 0x10, 0x4C, 0x00, 0x00, 0x04, 0x00}, 0.0F}}) {
        EXPECT_EQ(master_volume_in(message), volume) << testing::PrintToString(message);
    }
    EXPECT_NEAR(*master_volume_in(Message{0x7F, 0x7F, 0x04, 0x01, 0x00, 0x40}), 0.25F, 0.001F);
}

}  // namespace
}  // namespace zephyne::test
