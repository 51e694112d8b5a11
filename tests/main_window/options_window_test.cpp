// What the Options window shows and does while it is open.
#include "shell/help_topics.h"
#include "tests/main_window/options_world.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <tuple>

namespace zephyne::test {
namespace {

// The names of the boxes and options that are set.
std::set<std::string> set_controls(const Form2& form) {
    std::set<std::string> names;
    for (const Control* control : form.controls()) {
        const bool set = control->kind() == ControlKind::check_box
                             ? static_cast<const CheckBox*>(control)->value() == 1
                         : control->kind() == ControlKind::option_button
                             ? static_cast<const OptionButton*>(control)->selected()
                             : false;
        if (set) names.insert(control->name());
    }
    return names;
}

TEST(OptionsWindow, ShowsTheSettings) {
    using Names = std::set<std::string>;
    // Settings, what is set, and the texts: the preview's seconds and the delay.
    const std::vector<std::tuple<std::string, Names, std::string>> table = {
        {"ShowTray=0\r\nShowBar=1\r\nPreviewTime=0\r\nLowercase=1\r\n",
         {"Option1", "Option4(2)", "Option5(3)", "Option7", "Option10", "Check10", "Check11",
          "Check12", "Check13", "Check14", "Check15", "Check17"},
         "5, 2"},
        {"Mode=Alpha\r\nReverse=1\r\nContinuous=1\r\nAutoReset=1\r\nAutoRepeat=1\r\nAutoHide=1\r\n"
         "AutoNotes=1\r\nAllowWav=1\r\nExtended=0\r\nAnimated=0\r\nConfirmExit=0\r\nShowTips=0\r\n"
         "Beeps=0\r\nPresetPathOnly=1\r\nResetType=2\r\nDisplay=2\r\nPlaylist=1\r\nAutoDelay=1\r\n"
         "AutoDelayTime=2.5\r\nPreviewTime=17\r\nShowTray=1\r\nShowBar=0\r\n",
         {"Option2", "Check7", "Check6", "Check1", "Check2", "Check3", "Check8", "Check9",
          "Option4(1)", "Option5(2)", "Option9", "Option11", "Check4", "Check16"},
         "17, 2.5"},
    };
    for (const auto& [settings, names, shown] : table) {
        OptionsWorld world(settings);
        world.open([&set = names, &texts = shown](Form2& f) {
            EXPECT_EQ(set_controls(f), set);
            EXPECT_EQ(f.text2.text() + ", " + f.Text1.text(), texts);
            EXPECT_EQ(f.Text1.enabled(), set.contains("Check4"));
        });
    }
}

TEST(OptionsWindow, LoadingLeavesOnlyTheMarksOfTooltipsTaskbarAndTray) {
    const auto marks = [](const OptionsMarks& m) {
        return std::vector<int>{m.tooltips,    m.taskbar,    m.tray,         m.play_mode,
                                m.continuous,  m.colour,     m.base_mode,    m.large_display,
                                m.media_types, m.lower_case, m.tips_at_start};
    };
    OptionsWorld on("ShowTray=1\r\nShowBar=1\r\nAllowWav=1\r\nContinuous=1\r\nLowercase=1\r\n");
    on.tips = true;
    on.open([&](Form2&) {
        EXPECT_EQ(marks(on.options.marks()), (std::vector<int>{1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0}));
    });
    OptionsWorld off("ShowTray=0\r\nShowBar=1\r\nShowTips=0\r\n");
    off.open([&](Form2&) {
        EXPECT_EQ(marks(off.options.marks()), (std::vector<int>{0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    });
}

TEST(OptionsWindow, EachPlaybackModeEnablesWhatItNeeds) {
    const auto enabled = [](Form2& f) {
        std::string names;
        for (const Control* c : std::initializer_list<const Control*>{
                 &f.Check7, &f.Label3, &f.text2, &f.Label2, &f.Check6, &f.Label4}) {
            if (c->usable()) names += c->name() + " ";
        }
        return names;
    };
    OptionsWorld world;
    world.open([&](Form2& f) {
        EXPECT_EQ(enabled(f), "Check6 Label4 ") << "Random, as loaded";
        f.Option2.click();
        EXPECT_EQ(enabled(f), "Check7 Label3 Check6 Label4 ");
        f.Option3.click();
        EXPECT_EQ(enabled(f), "");
        f.Option6.click();
        EXPECT_EQ(enabled(f), "text2 Label2 Check6 Label4 ");
        f.Option1.click();
        EXPECT_EQ(enabled(f), "Check6 Label4 ");
        f.Check4.click();
        EXPECT_TRUE(f.Text1.usable() && f.Label1.usable());
        f.Check4.click();
        EXPECT_FALSE(f.Text1.usable() || f.Label1.usable());
    });
}

TEST(OptionsWindow, OnlyNumbersCanBeTyped) {
    OptionsWorld world;
    world.open([&](Form2& f) {
        for (const char32_t key : std::u32string(U"0123456789.\b")) {
            EXPECT_TRUE(f.Text1.press_key(key));
            EXPECT_EQ(f.text2.press_key(key), key != U'.');
        }
        EXPECT_EQ(world.happened(), Log{"beep"}) << "for the point in the preview's seconds";
        for (const char32_t key : std::u32string(U"-,a \x20AC")) {
            EXPECT_FALSE(f.Text1.press_key(key));
            EXPECT_FALSE(f.text2.press_key(key));
        }
        EXPECT_EQ(world.happened(), Log(10, "beep"));
    });
}

TEST(OptionsWindow, TrayIconAndTaskbarButtonCannotBothGo) {
    const std::string message = "message: One or both of these items must be checked [Error]";
    OptionsWorld world("ShowTray=1\r\nShowBar=0\r\n");
    world.open([&](Form2& f) {
        f.Check16.click();
        EXPECT_EQ(world.happened(), Log{message});
        EXPECT_EQ(f.Check16.value(), 1);
        f.Check17.click();
        f.Check16.click();
        EXPECT_EQ(world.happened(), Log()) << "the other one is on";
        f.Check17.click();
        EXPECT_EQ(world.happened(), Log{message});
        EXPECT_EQ(f.Check17.value(), 1);
        EXPECT_EQ(f.Check16.value(), 0);
        EXPECT_EQ(world.options.marks().taskbar, 1);
    });
}

TEST(OptionsWindow, TheKillCommandsAskFirstAndDeleteOnlyTheirKind) {
    const auto kept = [](const OptionsWorld& world) {
        std::string names;
        for (const char* name : {"a.mid", "a.nte", "B.NTE", "a.vol", "nte", "a.nte.txt"}) {
            if (world.files.exists(world.path(name))) names += std::string(name) + " ";
        }
        return names;
    };
    enum class Kind { notes, volumes };
    struct Row {
        Kind kind;
        Answer answer;
        std::string kept;
        Log then;
    };
    const std::string done = "message: Deletion Complete. [Done.]";
    const std::vector<Row> rows = {
        {Kind::notes, Answer::no, "a.mid a.nte B.NTE a.vol nte a.nte.txt ", {}},
        {Kind::notes, Answer::yes, "a.mid a.vol nte a.nte.txt ", {"notes closed", done}},
        {Kind::volumes, Answer::yes, "a.mid a.nte B.NTE nte a.nte.txt ", {done}}};
    for (const Row& row : rows) {
        OptionsWorld world;
        for (const char* name : {"a.nte", "B.NTE", "a.vol", "nte", "a.nte.txt"}) {
            world.files.add_file(world.path(name));
        }
        world.messages.answer = row.answer;
        const bool notes = row.kind == Kind::notes;
        world.open([&](Form2& f) { (notes ? f.Command5 : f.Command6).click(); });
        Log log = world.happened();
        EXPECT_TRUE(log.at(0).starts_with(
            notes ? "message: You are about to kill all notes you have entered ('Note...'"
                  : "message: You are about to kill all volume settings you have saved"));
        EXPECT_TRUE(log.at(0).ends_with("Are you sure you want to continue? [Please verify...]"));
        log.erase(log.begin());
        EXPECT_EQ(log, row.then);
        EXPECT_EQ(kept(world), row.kept);
    }
    OptionsWorld elsewhere;
    elsewhere.files.add_file(elsewhere.path("a.nte"));
    elsewhere.files.add_file("/other/b.nte");
    elsewhere.messages.while_open = [&] {  // the tray's menu goes to a song of another folder
        const FlagGuard switching(elsewhere.program.SwitchingSong);
        ASSERT_TRUE(elsewhere.form.Dir1.set_path("/other"));
    };
    elsewhere.open([](Form2& f) { f.Command5.click(); });
    EXPECT_EQ(kept(elsewhere), "a.mid ") << "the question was about this folder";
    EXPECT_TRUE(elsewhere.files.exists("/other/b.nte"));

    OptionsWorld playlist("Playlist=1\r\n");
    playlist.files.add_file(playlist.path("a.nte"));
    playlist.open([](Form2& f) { f.Command5.click(), f.Command6.click(); });
    EXPECT_EQ(playlist.happened(),
              Log(2,
                  "message: This command only works in the folder-based mode.  Switch to that "
                  "mode and try again. [Error]"));
    EXPECT_TRUE(playlist.files.exists(playlist.path("a.nte")));
}

TEST(OptionsWindow, HelpAndAboutLeadOutOfIt) {
    OptionsWorld world;
    world.services.show_about = [&] { world.log.push_back("about"); };
    world.services.ask_whats_this = [&] { world.log.push_back("what's this?"); };
    world.open([&](Form2& f) {
        f.Command4.click();
        f.Command2.click();
        EXPECT_EQ(world.happened(), (Log{"what's this?", "about"}));
    });
}

TEST(OptionsWindow, TheGuideExplainsEverythingThatTabReaches) {
    std::ifstream file(ZEPHYNE_DATA "/help/zephyne.hlp");
    const std::string guide{std::istreambuf_iterator<char>(file), {}};
    OptionsWorld world;
    world.services.help_text = [&](std::string_view topic) { return help_topic(guide, topic); };
    world.open([](Form2& f) {
        for (const Control* control : f.controls()) {
            if (control->tab_stop() == TabStop::no) continue;
            EXPECT_GT(control->help().size(), 20U) << control->name();
        }
        EXPECT_EQ(f.Label4.help(), f.Check6.help());
        EXPECT_TRUE(f.Option5_2.help().starts_with("GS: "));
        EXPECT_TRUE(f.Check7.help().starts_with("Reverse: "));
    });
}

}  // namespace
}  // namespace zephyne::test
