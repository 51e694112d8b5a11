#include "shell/quick_tips.h"

#include "shell/profile_strings.h"
#include "tests/support/world.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>

namespace zephyne::test {
namespace {

constexpr const char* kOwn = "/zephyne/QUICKTIP.INI";
constexpr const char* kSupplied = "/usr/share/zephyne/QUICKTIP.INI";

class Tips : public testing::Test {
  protected:
    void SetUp() override { world.program.folders.installed = "/usr/share/zephyne"; }

    // The tip window that is open; null when none is.
    Quick_Tip* window() const { return dynamic_cast<Quick_Tip*>(windows.find("Quick_Tip")); }
    std::string open() {
        tips.show();
        return window()->tiplabel.caption();
    }
    std::string press(Button& key) {
        key.click();
        return window()->tiplabel.caption();
    }
    std::string next() { return press(window()->Next_Tip_Button); }
    std::string previous() { return press(window()->Command2); }
    // What the keys show one after the other: "n" is Next, "p" Previous.
    Log pressed(const std::string& keys) {
        Log texts;
        for (const char key : keys) texts.push_back(key == 'n' ? next() : previous());
        return texts;
    }
    std::string file() const { return world.files.contents(kOwn).value_or("no file"); }
    void write(const std::string& text) { world.files.add_file(kOwn, text); }

    World world{"a.mid"};
    FakeWindows windows;
    FakeClipboard clipboard;
    ProfileStrings profiles{world.files};
    QuickTips tips{world.stage, windows, profiles, clipboard};
};

TEST_F(Tips, NextGoesRoundAndPreviousStopsAtTheFirst) {
    write("[TIP]\r\nSTART=T\r\nCURRENT=3\r\n1=one\r\n2=two\r\n3=three\r\n");
    EXPECT_EQ(open(), "three");
    EXPECT_EQ(file(), "[TIP]\r\nSTART=T\r\nCURRENT=1\r\n1=one\r\n2=two\r\n3=three\r\n");
    EXPECT_EQ(previous(), "one") << "not the last one, right after the round";
    EXPECT_EQ(file(), "[TIP]\r\nSTART=T\r\nCURRENT= 2\r\n1=one\r\n2=two\r\n3=three\r\n");
    EXPECT_EQ(pressed("pnpnnn"), (Log{"one", "two", "one", "two", "three", "one"}));

    tips.unload();
    EXPECT_EQ(open(), "two") << "each opening shows the next one";
}

TEST_F(Tips, OfTheProgramAreManyAndAllCanBeReached) {
    std::ifstream stream(ZEPHYNE_DATA "/tips/QUICKTIP.INI", std::ios::binary);
    const std::string supplied(std::istreambuf_iterator<char>(stream), {});
    write(supplied);
    EXPECT_TRUE(tips.tips_at_start());
    std::set<std::string> seen;
    for (std::string tip = open(); seen.insert(tip).second; tip = next()) {
        EXPECT_GT(tip.size(), 20U);
        EXPECT_LT(tip.size(), 250U) << tip;
    }
    EXPECT_GE(seen.size(), 30U);
    EXPECT_EQ(static_cast<std::ptrdiff_t>(seen.size()) + 2,
              std::count(supplied.begin(), supplied.end(), '='));
}

TEST_F(Tips, AreWhatTheFileHoldsHoweverItLooks) {
    const std::string missing = "no file";
    using Row = std::tuple<std::string, std::string, std::string>;
    const std::string longest(999, 'x');
    for (const auto& [text, shown, kept] : std::vector<Row>{
             {missing, "unknown", "[TIP]\r\nCURRENT=1\r\n"},
             {"", "unknown", "[TIP]\r\nCURRENT=1\r\n"},
             {"[TIP]\n1=a\n2=b\n4=d\ncurrent=2\n", "b", "[TIP]\n1=a\n2=b\n4=d\ncurrent=1\n"},
             {"[TIP]\n1=a\nCURRENT=none\n", "unknown", "[TIP]\n1=a\nCURRENT= 1\n"},
             {"[TIP]\n1=a\nCURRENT=1e999\n", "unknown", "[TIP]\n1=a\nCURRENT= 1\n"},
             {"[TIP]\n1=caf\xE9 \x80\nCURRENT=1", "caf\xC3\xA9 \xE2\x82\xAC",
              "[TIP]\n1=caf\xE9 \x80\nCURRENT=1"},
             {"[TIP]\n1=" + longest + std::string(4001, 'y') + "\nCURRENT=1\n", longest,
              "[TIP]\n1=" + longest + std::string(4001, 'y') + "\nCURRENT=1\n"},
         }) {
        world.files.remove("/zephyne");
        world.files.add_folder("/zephyne");
        if (text != missing) write(text);
        EXPECT_EQ(open(), shown);
        EXPECT_EQ(file(), kept);
    }
}

TEST_F(Tips, LongTipsMakeTheWindowGrow) {
    write("[TIP]\r\n1=long\r\n2=short\r\nCURRENT=1\r\n");
    windows.height_of_text = 4000;
    open();
    const int high = window()->place().height;
    EXPECT_EQ(window()->tiplabel.place().height, 4000);
    windows.height_of_text = 40'000;
    next();
    EXPECT_EQ(window()->place().height, windows.screen().height) << "its keys stay on the screen";
    EXPECT_EQ(window()->place().top, 0);
    windows.height_of_text = 300;
    next();
    EXPECT_LT(window()->place().height, high - 2000);
    const Place& key = window()->Quick_Tip_OK_Button.place();
    EXPECT_LT(key.top + key.height, window()->client_height());
}

TEST_F(Tips, GoOnFromAFileThatCannotBeWritten) {
    const std::string text = "[TIP]\r\nSTART=F\r\nCURRENT=1\r\n1=one\r\n2=two\r\n";
    write(text);
    world.files.fail_write_number(1);
    EXPECT_EQ(open(), "one");
    EXPECT_EQ(file(), text) << "the disk is full";
    world.files.deny_writing(kOwn);
    EXPECT_EQ(pressed("nnpn"), (Log{"two", "one", "one", "two"}));
    window()->Quick_Tip_OK_Button.click();
    EXPECT_EQ(file(), text);
}

TEST_F(Tips, AreTheUsersOwnCopyOnceTheyAreUsed) {
    world.files.add_file(kSupplied, "[TIP]\r\nSTART=T\r\nCURRENT=1\r\n1=one\r\n2=two\r\n");
    world.files.deny_writing(kSupplied);
    EXPECT_TRUE(tips.tips_at_start());
    EXPECT_EQ(file(), world.files.contents(kSupplied));
    EXPECT_EQ(open(), "one");
    EXPECT_EQ(pressed("nn"), (Log{"two", "one"}));
    EXPECT_EQ(world.files.contents(kSupplied),
              "[TIP]\r\nSTART=T\r\nCURRENT=1\r\n1=one\r\n2=two\r\n");
}

TEST_F(Tips, OnlyOkKeepsTheWishForTipsAtTheStart) {
    write("[TIP]\r\nSTART=\" T \"\r\n");
    open();
    EXPECT_EQ(window()->show_tip.value(), 1);
    window()->show_tip.click();
    window()->request_unload(CloseReason::user);
    EXPECT_FALSE(window());
    EXPECT_TRUE(tips.tips_at_start());

    open();
    window()->show_tip.click();
    window()->Quick_Tip_OK_Button.click();
    EXPECT_FALSE(window());
    EXPECT_FALSE(tips.tips_at_start());
    EXPECT_EQ(file(), "[TIP]\r\nSTART=F\r\nCURRENT=1\r\n");
    tips.set_tips_at_start(true);
    EXPECT_TRUE(tips.tips_at_start());
}

TEST_F(Tips, TheWindowTellsThatItIsThereAndOpensAnewFromTheKey) {
    write("[TIP]\r\n1=one\r\n2=two\r\nCURRENT=1\r\n");
    world.settings().ShowBar = 1;
    world.program.TaskbarExStyle = 7;
    world.form.Command21.click();
    EXPECT_EQ(windows.styles["Quick_Tip"], 7);
    EXPECT_EQ(windows.raised, Log{"Quick_Tip"});
    EXPECT_FALSE(window()->Quick_Tip_.usable()) << "there is no help";
    window()->user_activated();
    EXPECT_EQ(world.program.CurrentForm, FormNumber::QuickTip);
    window()->Command1.click();
    EXPECT_EQ(clipboard.text, "one");

    world.form.Command21.click();
    EXPECT_EQ(world.program.CurrentForm, FormNumber::Main);
    EXPECT_EQ(windows.open.size(), 1U);
    EXPECT_EQ(window()->tiplabel.caption(), "two");
}

}  // namespace
}  // namespace zephyne::test
