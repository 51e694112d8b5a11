#include "tests/core/settings_desk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <tuple>

namespace zephyne::test {
namespace {

TEST(ReadingSettings, EveryKeyReachesItsField) {
    SettingsDesk desk;
    desk.files.add_folder("/music/rags");
    EXPECT_EQ(desk.read(std::string(kFullFile)), full_settings());
    EXPECT_EQ(desk.form.Dir1.path(), "/music/rags");
    EXPECT_EQ(desk.form.Check1.value(), 1);
    EXPECT_EQ(desk.form.Label10.caption(), "Reverse Alpha");
    EXPECT_EQ(desk.form.preset(1).tooltip(), "Maple leaf.mid");
    EXPECT_EQ(desk.form.preset(12).tooltip(), "");
}

TEST(ReadingSettings, KeysAreRecognisedInAnyLetterCaseAndLinesHoweverTheyEnd) {
    for (const bool upper : {true, false}) {
        const auto change = [&](char c) {
            const auto code = static_cast<unsigned char>(c);
            return static_cast<char>(upper ? std::toupper(code) : std::tolower(code));
        };
        SettingsDesk desk;
        std::string text = "\xEF\xBB\xBF[Nonsense]\nunknown=1\rBeeps\r\nNoBeeps=7\r\n";
        bool in_key = true;
        for (const char c : kFullFile.substr(kFullFile.find("Left="))) {
            if (c == '=') in_key = false;
            if (c == '\n') in_key = true;
            text += in_key ? change(c) : c;
        }
        EXPECT_EQ(desk.read(text), full_settings());
    }
}

TEST(ReadingSettings, WithoutAReadableFileTheDefaultsStay) {
    for (const bool missing : {true, false}) {
        SettingsDesk desk;
        desk.files.add_file(desk.path(), "Beeps=0\r\n");
        missing ? desk.files.remove(desk.path()) : desk.files.deny(desk.path());
        ReadSettings(desk.program, desk.form, desk.files);
        EXPECT_EQ(desk.program.settings, Settings());
        EXPECT_EQ(desk.form.Label10.caption(), "Random Playback");
        EXPECT_EQ(desk.log, Log());
    }
}

TEST(ReadingSettings, NumbersAreReadLenientlyAndThoseOutOfRangeAreSkipped) {
    const std::int16_t kept = 77;  // what the field holds before the line
    const std::vector<std::pair<std::string, int>> table = {
        {"", 0},           {"yes", 0},
        {"\t-7 x", -7},    {"1.5", 2},
        {"2.5", 2},        {"-1.5", -2},
        {"&H1F", 31},      {"32767", 32767},
        {"32767.5", kept}, {"-32768.5", -32768},
        {"-32769", kept},  {"70000", kept},
        {"1e999", kept},   {"&HFFFFFFFFFFFFFFFFFF", kept}};
    for (const auto& [text, expected] : table) {
        SettingsDesk desk;
        desk.program.settings.Beeps = kept;
        EXPECT_EQ(desk.read("Beeps=" + text + "\r\nF2Top=5\r\n").Beeps, expected) << text;
        EXPECT_EQ(desk.program.settings.F2Top, 5) << "the line after " << text;
    }
    SettingsDesk desk;
    EXPECT_EQ(desk.read("Left=2147483647\r\nTop=2147483648\r\n").Left, 2147483647);
    EXPECT_EQ(desk.program.settings.Top, 0);
}

TEST(ReadingSettings, ThePauseKeepsItsFraction) {
    const std::vector<std::pair<std::string, double>> table = {
        {"1.5", 1.5}, {".25", 0.25}, {"0", 0}, {"", 0}, {"3", 3}, {"1e999", 2}, {"-1", -1}};
    for (const auto& [text, expected] : table) {
        SettingsDesk desk;
        EXPECT_EQ(desk.read("AutoDelayTime=" + text).AutoDelayTime, expected) << text;
        EXPECT_EQ(desk.program.settings.AutoDelay, 0) << text;
    }
}

TEST(ReadingSettings, TheModeIsAWord) {
    constexpr std::int32_t untouched = 77;
    const std::vector<std::tuple<std::string, std::int32_t, std::string>> table = {
        {"Mode=rANDOM", PlayMode::Random, "Random Playback"},
        {"Mode=Alpha", PlayMode::Alpha, "Forward Alpha"},
        {"Mode=alphabetic\r\nReverse=1", PlayMode::Alpha, "Forward Alpha"},
        {"Reverse=1\r\nMode=Alpha", PlayMode::Alpha, "Reverse Alpha"},
        {"Mode=Manual", PlayMode::Manual, "Manual Select"},
        {"Mode=Preview", PlayMode::Preview, "Preview Mode"}};
    for (const auto& [lines, mode, caption] : table) {
        SettingsDesk desk;
        desk.form.File1.set_items({{"a.mid", {}}, {"b.mid", {}}});
        EXPECT_EQ(desk.read(lines).Mode, mode) << lines;
        EXPECT_EQ(desk.form.Label10.caption(), caption) << lines;
        const bool manual = mode == PlayMode::Manual;
        EXPECT_EQ(desk.form.Label2.caption(), manual ? "2" : "") << lines;
        EXPECT_EQ(desk.form.Label4.caption(), manual ? "N/A" : "") << lines;
    }
    for (const char* word : {"Sequential", "Random ", "Queue", "3", ""}) {
        SettingsDesk desk;
        desk.program.settings.Mode = untouched;
        EXPECT_EQ(desk.read("Mode=" + std::string(word)).Mode, untouched) << word;
        EXPECT_EQ(desk.form.Label10.caption(), "") << word;
    }
}

TEST(ReadingSettings, PresetNumbersAreTakenFromTheirTwoPlaces) {
    // A line, and the preset that it sets to a folder; 0: none.
    const std::vector<std::tuple<std::string, std::size_t, std::string>> table = {
        {"PresetPath01=C:\\X", 1, "C:\\X"},
        {"presetpath12=/a=b ", 12, "/a=b "},
        {"PresetPath09=", 9, ""},
        {"PresetPath00=C:\\X", 0, ""},
        {"PresetPath13=C:\\X", 0, ""},
        {"PresetPath-1=C:\\X", 0, ""},
        {"PresetPath7=C:\\X", 7, ":\\X"},
        {"PresetPath 4/x", 4, "x"},
        {"PresetPath", 0, ""},
        {"PresetPath1", 1, ""},
        {"PresetPathOnly=5", 0, ""}};
    for (const auto& [line, preset, path] : table) {
        SettingsDesk desk;
        desk.program.settings.PresetPath.fill("kept");
        auto expected = desk.program.settings.PresetPath;
        if (preset != 0) expected[preset - 1] = path;
        EXPECT_EQ(desk.read(line).PresetPath, expected) << line;
    }
    SettingsDesk desk;
    desk.read("PresetFileName3=rag.mid\r\nPresetFileName10=blues.mid\r\nPresetPathOnly=1\r\n");
    EXPECT_EQ(desk.program.settings.PresetFileName[2], "ag.mid");
    EXPECT_EQ(desk.form.preset(3).tooltip(), "ag.mid");
    EXPECT_EQ(desk.form.preset(10).tooltip(), "blues.mid");
    EXPECT_EQ(desk.program.settings.PresetPathOnly, 1);
}

TEST(ReadingSettings, TheFolderListsMoveWithoutPassingForTheUser) {
    SettingsDesk desk(PathStyle::windows);
    desk.files.add_volume("C:\\", "c:");
    desk.files.add_volume("D:\\", "d:");
    desk.files.add_folder("D:\\Songs");
    desk.form.Drive1.on_change = [&] {
        desk.log.push_back("drive " + desk.form.Drive1.drive().name);
        EXPECT_TRUE(desk.program.SwitchingSong);
    };
    desk.form.Dir1.on_change = [&] {
        desk.log.push_back("folder " + desk.form.Dir1.path());
        EXPECT_TRUE(desk.program.SwitchingSong);
    };
    desk.read("LastDir=d:\\songs\r\n");
    EXPECT_EQ(desk.log, (Log{"drive d:", "folder D:\\Songs"}));
    EXPECT_FALSE(desk.program.SwitchingSong);

    for (const char* nowhere : {"", "C:\\gone", "X:\\none", "relative"}) {
        SettingsDesk other(PathStyle::windows);
        other.form.Dir1.on_change = [&] { other.log.push_back("moved"); };
        other.read("LastDir=" + std::string(nowhere));
        EXPECT_EQ(other.form.Dir1.path(), "C:\\music") << nowhere;
        EXPECT_EQ(other.log, Log()) << nowhere;
    }
}

TEST(ReadingSettings, AFolderOfNoNameLeavesTheDriveAlone) {
    SettingsDesk desk;
    desk.files.add_volume("/", "System");
    desk.files.add_volume("/music", "Music");
    desk.form.Drive1.refresh();
    ASSERT_TRUE(desk.form.Drive1.set_drive_of("/music"));
    desk.form.Drive1.on_change = [&] { desk.log.push_back("drive"); };
    desk.read("LastDir=\r\n");
    EXPECT_EQ(desk.form.Drive1.drive().name, "Music");
    EXPECT_EQ(desk.log, Log());
}

TEST(ReadingSettings, FolderNamesKeepTheirBytes) {
    SettingsDesk desk;
    const std::string latin1 = "/music/\xE9t\xE9 ";
    desk.files.add_folder(latin1);
    desk.read("LastDir=" + latin1 + "\r\nMoveToDir=" + latin1 + "\r\nPresetPath02=" + latin1);
    EXPECT_EQ(desk.form.Dir1.path(), latin1);
    EXPECT_EQ(desk.program.settings.MoveToDir, latin1);
    EXPECT_EQ(desk.program.settings.PresetPath[1], latin1);
}

TEST(ReadingSettings, TheVolumeLockRunsItsHandlerOnlyWhenItChanges) {
    SettingsDesk desk;
    desk.form.Check1.set_on_click([&] { desk.log.push_back("lock"); });
    desk.read("VolLocked=0\r\nVolLocked=1\r\nVolLocked=1\r\nVolLocked=70000\r\n");
    EXPECT_EQ(desk.log, Log{"lock"});
    EXPECT_EQ(desk.form.Check1.value(), 1);
}

}  // namespace
}  // namespace zephyne::test
