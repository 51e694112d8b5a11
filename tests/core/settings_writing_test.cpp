#include "tests/core/settings_desk.h"

#include <gtest/gtest.h>

#include <random>

namespace zephyne::test {
namespace {

constexpr std::string_view kDefaults =
    "'Caution - the order of these entries is important.\r\n"
    "'Do not add/remove entries by hand.\r\n"
    "\r\n"
    "[Window Positions]\r\n"
    "Left=0\r\nTop=0\r\nF2Left=0\r\nF2Top=0\r\nF3Left=0\r\nF3Top=0\r\nF4Left=0\r\nF4Top=0\r\n"
    "F5Left=0\r\nF5Top=0\r\nF6Left=0\r\nF6Top=0\r\nF8Top=0\r\nF8Left=0\r\nF11Left=0\r\n"
    "F11Top=0\r\n"
    "\r\n"
    "[Directories]\r\n"
    "LastDir=/music\r\n"
    "\r\n"
    "[Options]\r\n"
    "Beeps=1\r\nVolLocked=0\r\nShowTips=1\r\nPlaylist=0\r\nLowercase=1\r\nAnimated=1\r\n"
    "Display=0\r\nExtended=1\r\nTimeMethod=0\r\nResetType=0\r\nAutoReset=1\r\nAutoHide=0\r\n"
    "AutoRepeat=0\r\nAutoNotes=0\r\nAllowWav=0\r\nContinuous=0\r\nReverse=0\r\nConfirmExit=1\r\n"
    "AutoDelay=0\r\nShowBar=0\r\nShowTray=1\r\nAutoDelayTime=2\r\nPreviewTime=5\r\nMode=Random\r\n"
    "\r\n"
    "[Presets]\r\n"
    "PresetPathOnly=0\r\n";

// What follows a key in a written file, or "(none)".
std::string value_of(const std::string& file, const std::string& key) {
    const auto at = file.find("\r\n" + key + "=");
    if (at == std::string::npos) return "(none)";
    const auto begin = at + key.size() + 3;
    return file.substr(begin, file.find("\r\n", begin) - begin);
}

TEST(WritingSettings, TheDefaultsAreThisFile) {
    EXPECT_EQ(SettingsDesk().write(), kDefaults);
}

TEST(WritingSettings, EveryFieldHasItsLineInItsPlace) {
    SettingsDesk desk;
    desk.files.add_folder("/music/rags");
    ASSERT_TRUE(desk.form.Dir1.set_path("/music/rags"));
    desk.form.Check1.set_value(1);
    desk.program.settings = full_settings();
    EXPECT_EQ(desk.write(), kFullFile);
    EXPECT_EQ(desk.log, Log());
}

TEST(WritingSettings, TimesAreWrittenShortlyAndZeroesLeftOut) {
    const std::vector<std::pair<double, std::string>> table = {
        {2, "2"},   {2.5, "2.5"},      {0.5, ".5"},   {-0.5, "-.5"},   {0.1, ".1"},
        {60, "60"}, {0.1 + 0.2, ".3"}, {0, "(none)"}, {-0.0, "(none)"}};
    for (const auto& [seconds, text] : table) {
        SettingsDesk desk;
        desk.program.settings.AutoDelayTime = seconds;
        EXPECT_EQ(value_of(desk.write(), "AutoDelayTime"), text);
    }
    SettingsDesk desk;
    desk.program.settings.PreviewTime = 0;
    const std::string file = desk.write();
    EXPECT_EQ(value_of(file, "PreviewTime"), "(none)");
    EXPECT_EQ(SettingsDesk().read(file).PreviewTime, 5) << "left out, it is the default again";
}

TEST(WritingSettings, QueueModePutsBackWhatItReplaced) {
    SettingsDesk desk;
    Settings& settings = desk.program.settings;
    settings.ShowBar = 1;
    EXPECT_EQ(value_of(desk.write(), "ShowBar"), "1") << "in no other mode";
    settings.Mode = PlayMode::Queue, settings.ShowTray = 0;
    settings.SavedMode = PlayMode::Preview, settings.SavedShowBar = 0, settings.SavedShowTray = 1;
    const std::string file = desk.write();
    EXPECT_EQ(value_of(file, "Mode"), "Preview");
    EXPECT_EQ(value_of(file, "ShowBar"), "0");
    EXPECT_EQ(value_of(file, "ShowTray"), "1");
    EXPECT_EQ(settings.Mode, PlayMode::Preview);
    EXPECT_EQ(settings.ShowTray, 1) << "the shutdown goes by it";
    settings.Mode = 9;
    EXPECT_EQ(value_of(desk.write(), "Mode"), "") << "no word for it";
}

TEST(WritingSettings, ATextWithALineBreakCannotPassForOtherSettings) {
    SettingsDesk desk;
    const std::string sly = "/music/a\nBeeps=0";
    desk.files.add_folder(sly);
    ASSERT_TRUE(desk.form.Dir1.set_path(sly));
    desk.program.settings.MoveToDir = sly;
    desk.program.settings.PresetPath[3] = "/x\rBeeps=0";
    desk.program.settings.PresetFileName[3] = sly;
    const std::string file = desk.write();
    EXPECT_EQ(value_of(file, "LastDir"), "");
    SettingsDesk next;
    EXPECT_EQ(next.read(file), Settings());
    EXPECT_EQ(next.form.Dir1.path(), "/music");
}

TEST(WritingSettings, AFailureKeepsTheLinesBeforeItAndIsTold) {
    const std::string whole(kDefaults);
    std::size_t begin_of_line = 0;
    for (int line = 1; begin_of_line < whole.size(); ++line) {
        SettingsDesk desk;
        desk.files.fail_write_number(line);
        EXPECT_EQ(desk.write(), whole.substr(0, begin_of_line)) << "line " << line;
        EXPECT_EQ(desk.log, Log{"message: Error writing ZEPHYNE.INI file! [Error]"});
        begin_of_line = whole.find("\r\n", begin_of_line) + 2;
    }
}

TEST(WritingSettings, AFileThatCannotBeWrittenStaysAsItWas) {
    SettingsDesk desk;
    desk.files.add_file(desk.path(), "Beeps=0\r\n");
    desk.files.deny_writing(desk.path());
    EXPECT_EQ(desk.write(), "Beeps=0\r\n");
    EXPECT_EQ(desk.log, Log{"message: Error writing ZEPHYNE.INI file! [Error]"});

    SettingsDesk homeless;
    homeless.files.remove("/zephyne");
    EXPECT_EQ(homeless.write(), "(no file)");
    EXPECT_EQ(homeless.log.size(), 1U);

    SettingsDesk full_disk;
    full_disk.files.fail_next_close();
    full_disk.write();
    EXPECT_EQ(full_disk.log.size(), 1U);
}

TEST(WritingSettings, TextsOfAnyBytesReadBackTheSame) {
    std::mt19937 random(19'970'101);
    const auto below = [&](unsigned end) { return static_cast<unsigned>(random() % end); };
    const auto text = [&] {
        std::string bytes(below(4) * below(8), ' ');
        for (char& c : bytes) {
            do c = static_cast<char>(below(256));
            while (c == '\r' || c == '\n');
        }
        return bytes;
    };
    for (int round = 0; round < 100; ++round) {
        SettingsDesk desk;
        Settings& settings = desk.program.settings;
        settings = full_settings();
        settings.Left = static_cast<std::int32_t>(random());
        settings.Beeps = static_cast<std::int16_t>(random());
        settings.AutoDelayTime = (1 + below(60'000)) / 1000.0;
        settings.MoveToDir = text();
        for (std::string& folder : settings.PresetPath) folder = text();
        for (std::string& name : settings.PresetFileName) name = text();
        const std::string file = desk.write();

        SettingsDesk next;
        ASSERT_EQ(next.read(file), settings) << file;
        ASSERT_EQ(next.write(), file);
    }
}

}  // namespace
}  // namespace zephyne::test
