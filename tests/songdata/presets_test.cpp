#include "songdata/presets.h"

#include "core/sheets/form8.h"
#include "songdata/view_presets.h"
#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

constexpr Colour kWhite = 0xFFFFFF;
constexpr Colour kRed = 0xFF0000;
constexpr Colour kGreen = 0x00FF00;

class PresetsTest : public testing::Test {
  protected:
    PresetsTest() {
        world.settings().Lowercase = 0;
        for (const char* song : {"x.mid", "y.mid"}) {
            world.files.add_file(std::string("/other/") + song);
        }
        presets.show_tooltips();
    }

    Button& key(std::size_t number) { return *world.form.presets[number - 1]; }
    void store(std::size_t number) {
        world.form.Command8.click();
        key(number).click();
    }
    void set(std::size_t number, const std::string& path, const std::string& name = "") {
        world.settings().PresetPath[number - 1] = path;
        world.settings().PresetFileName[number - 1] = name;
    }
    std::string preset(std::size_t number) const {
        const Settings& settings = world.program.settings;
        return settings.PresetPath[number - 1] + "|" + settings.PresetFileName[number - 1];
    }
    World world{"a.mid", "b.mid", "c.mid"};
    Presets presets{world.stage, *world.engine};
};

TEST_F(PresetsTest, ModeKeysArmBlinkAndDisarmEachOther) {
    Form1& f = world.form;
    key(3).set_latched(true);
    f.Command8.click();
    EXPECT_EQ(f.Frame2.colour(), kRed);
    EXPECT_FALSE(key(3).latched());
    world.run_for(200);
    EXPECT_EQ(f.Frame2.colour(), kWhite);
    world.run_for(200);
    EXPECT_EQ(f.Frame2.colour(), kRed);
    f.Command15.click();
    EXPECT_EQ(f.Frame2.colour(), kWhite) << "any mode key disarms first";
    world.run_for(1000);
    EXPECT_EQ(f.Frame2.colour(), kWhite);
    f.Command15.click();
    EXPECT_EQ(f.Frame2.colour(), kGreen);
}

TEST_F(PresetsTest, StoreKeepsTheFolderAndTheSelectedSong) {
    world.open_folder();
    store(1);
    EXPECT_EQ(preset(1), "/music|");
    EXPECT_EQ(key(1).tooltip(), "/music");
    EXPECT_TRUE(key(1).latched());
    EXPECT_EQ(world.form.Frame2.colour(), kWhite);
    world.click("b.mid");
    store(2);
    EXPECT_EQ(preset(2), "/music|b.mid");
    EXPECT_EQ(key(2).tooltip(), "b.mid");
    world.settings().PresetPathOnly = 1;
    store(2);
    EXPECT_EQ(preset(2), "/music|");
    EXPECT_EQ(key(12).tooltip(), "No Preset");
}

TEST_F(PresetsTest, ClearEmptiesOnePresetAndClearAllAsksFirst) {
    set(1, "/music", "a.mid");
    set(2, "/other");
    world.form.Command15.click();
    key(1).click();
    EXPECT_EQ(preset(1), "|");
    EXPECT_EQ(key(1).tooltip(), "");
    EXPECT_FALSE(key(1).latched());
    world.messages.answer = Answer::no;
    world.form.Command17.click();
    EXPECT_EQ(preset(2), "/other|");
    world.messages.answer = Answer::yes;
    world.form.Command17.click();
    EXPECT_EQ(preset(2), "|");
    EXPECT_EQ(world.said(), Log(2,
                                "message: Are you sure you want to clear all presets? "
                                "[Verify Clear All Operation]"));
}

TEST_F(PresetsTest, EmptyPresetAndWrongMomentsDoNothing) {
    world.start(PlayMode::Alpha);
    world.played();
    key(5).click();
    set(5, "/other");
    world.program.StartingUp = true;
    key(5).click();
    world.program.StartingUp = false;
    world.settings().Mode = PlayMode::Queue;
    key(5).click();
    EXPECT_FALSE(key(5).latched());
    EXPECT_EQ(world.form.Dir1.path(), "/music");
    EXPECT_TRUE(world.played().empty());
}

TEST_F(PresetsTest, FolderPresetMovesAndStartsTheCycleThere) {
    set(1, "/other");
    world.start(PlayMode::Alpha);
    world.played();
    key(1).click();
    EXPECT_EQ(World::names(world.form.File1), (Log{"x.mid", "y.mid"}));
    EXPECT_EQ(world.played(), Log{"x.mid"});
    EXPECT_FALSE(key(1).latched());
    key(1).click();
    EXPECT_TRUE(world.played().empty()) << "it is there already";
    EXPECT_EQ(world.form.File1.selected(), 0U);
    world.expect_in_one_piece();

    world.settings().Mode = PlayMode::Manual;
    set(2, "/music");
    key(2).click();
    EXPECT_EQ(world.open_song(), "");
    EXPECT_FALSE(world.form.File1.selected());
    world.expect_in_one_piece();
}

TEST_F(PresetsTest, SongPresetPlaysItsSongAndBuildsANewCycleAroundIt) {
    set(1, "/other", "y.mid");
    world.start(PlayMode::Alpha);
    world.played();
    key(1).click();
    EXPECT_EQ(world.played(), Log{"y.mid"});
    EXPECT_EQ(world.form.File1.selected(), 1U);
    EXPECT_EQ(World::names(world.form.List1), Log{"x.mid"});
    EXPECT_EQ(world.form.Label2.caption() + " " + world.form.Label4.caption(), "2 1");
    EXPECT_EQ(world.program.CurrentSongPath, "/other/y.mid");
    EXPECT_EQ(world.program.RecentSongs[0].name, "a.mid");
    world.expect_in_one_piece();
    world.midi.finish();
    world.run_for(1000);
    EXPECT_EQ(world.played(), Log{"x.mid"});

    world.midi.lengths["y.mid"] = 0;
    world.start(PlayMode::Alpha);
    key(1).click();
    world.run_for(2000);
    EXPECT_EQ(world.open_song(), "x.mid") << "the other has ended at once";
    world.expect_flags_at_rest();

    world.settings().Mode = PlayMode::Manual;
    set(2, "/music", "c.mid");
    world.form.List1.clear();
    key(2).click();
    EXPECT_EQ(world.open_song(), "c.mid");
    EXPECT_TRUE(world.form.List1.empty());
}

TEST_F(PresetsTest, PresetTellsSongsApartThatDifferInCase) {
    world.settings().Lowercase = 1;
    world.files.add_file("/music/A.MID");
    world.open_folder();
    world.click("A.MID");
    store(1);
    EXPECT_EQ(preset(1), "/music|A.MID");
    world.click("b.mid");
    store(2);
    EXPECT_EQ(preset(2), "/music|B.mid") << "as it is listed, where that is enough";
    world.played();
    key(1).click();
    EXPECT_EQ(world.played(), Log{"A.MID"});
}

TEST_F(PresetsTest, VanishedFolderClearsThePresetAndBringsBackTheOldPlace) {
    set(1, "/gone", "x.mid");
    world.start(PlayMode::Alpha);
    world.said();
    key(1).click();
    EXPECT_EQ(world.said(),
              Log{"message: Path Not Found for this Preset - Clearing Preset [Error]"});
    EXPECT_EQ(preset(1), "|");
    EXPECT_EQ(world.form.Dir1.path(), "/music");
    EXPECT_EQ(world.form.File1.selected(), 0U);
    EXPECT_EQ(world.open_song(), "a.mid");
    world.expect_flags_at_rest();
}

TEST_F(PresetsTest, SongThatEndsUnderTheMessageIsFollowedByTheNext) {
    set(1, "/gone");
    set(2, "/other", "gone.mid");
    for (const std::size_t number : {1U, 2U}) {
        world.start(PlayMode::Alpha);
        world.messages.while_open = [this] {
            world.midi.finish();
            world.run_for(1000);
        };
        key(number).click();
        world.messages.while_open = nullptr;
        EXPECT_EQ(world.open_song(), number == 1 ? "b.mid" : "y.mid");
        world.expect_in_one_piece();
    }
}

TEST_F(PresetsTest, VanishedSongLeavesItsFolder) {
    struct Case {
        std::int32_t mode;
        const char* folder;
        Log played;
    };
    for (const auto& [mode, folder, played] :
         {Case{PlayMode::Alpha, "/other", {"x.mid"}}, Case{PlayMode::Manual, "/other", {}},
          Case{PlayMode::Alpha, "/music", {}}}) {
        ASSERT_TRUE(world.form.Dir1.set_path("/music"));
        world.start(mode);
        set(1, folder, "gone.mid");
        world.said();
        world.played();
        key(1).click();
        EXPECT_EQ(world.said(),
                  Log{"message: File Not Found for this Preset - Setting to path only [Error]"});
        EXPECT_EQ(preset(1), std::string(folder) + "|");
        EXPECT_EQ(world.form.Dir1.path(), folder);
        EXPECT_EQ(world.played(), played);
        world.expect_in_one_piece();
    }
}

TEST_F(PresetsTest, ViewStoresWhatIsTypedOnlyWithOk) {
    FakeWindows windows;
    const ViewPresets view(world.stage, windows);
    set(2, "/other", "x.mid");
    for (Button Form8::*key : {&Form8::Command2, &Form8::Command1}) {
        windows.on_modal = [&](Form& form) {
            auto& shown = dynamic_cast<Form8&>(form);
            EXPECT_EQ(shown.Text1[1]->text() + "|" + shown.text2[1]->text(), "/other|x.mid");
            EXPECT_EQ(world.program.CurrentForm, FormNumber::ViewPresets);
            shown.Command3.click();
            shown.Text1[0]->set_text("/anything at all");
            shown.text2[0]->set_text("a.mid");
            shown.text2[4]->set_text("without a path.mid");
            (shown.*key).click();
            EXPECT_FALSE(shown.loaded());
        };
        world.form.Command16.click();
        EXPECT_EQ(preset(1) + preset(2) + preset(5),
                  key == &Form8::Command2 ? "|/other|x.mid|" : "/anything at all|a.mid||");
    }
}

}  // namespace
}  // namespace zephyne::test
