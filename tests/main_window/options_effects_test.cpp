// What OK does beyond the settings, and the life of the window.
#include "core/window_placing.h"
#include "tests/main_window/options_world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

const std::string kBarOnly = "ShowTray=0\r\nShowBar=1\r\n";

std::vector<int> clock_images(const Form1& f) {
    return {f.Tens.image(), f.Ones.image(), f.Tenths.image(), f.Hundredths.image(),
            f.Image1.image()};
}

TEST(OptionsEffects, AnotherBaseModeForgetsTheTraysSongs) {
    OptionsWorld world("ShowTray=1\r\nShowBar=1\r\n");
    world.run_for(400'000);
    ASSERT_EQ(world.program.RecentCount, 2);
    ASSERT_TRUE(world.tray.sep1.visible);
    world.ok([](Form2& f) { f.Option11.click(); });
    EXPECT_EQ(world.program.RecentCount, 0);
    EXPECT_FALSE(world.tray.sep1.visible);
    for (int number = 1; number <= 5; ++number) {
        EXPECT_FALSE(world.tray.mnuSong(number).visible);
        EXPECT_EQ(world.tray.mnuSong(number).caption, "");
    }
    for (const MenuItem* entry : {&world.tray.mnuNext, &world.tray.mnuPause, &world.tray.mnuStop}) {
        EXPECT_FALSE(entry->enabled) << entry->name;
    }
    EXPECT_TRUE(world.form.Image5.visible()) << "the playlist layout";
    EXPECT_TRUE(world.form.File1.empty() && world.form.List1.empty() && world.form.List3.empty());
    EXPECT_EQ(world.counts(), ", ");
    EXPECT_FALSE(world.device.is_open());
}

TEST(OptionsEffects, AnotherColourRedrawsTheClockAndTheTexts) {
    OptionsWorld world(kBarOnly);
    world.run_for(65'000);
    world.ok([](Form2& f) { f.Option9.click(); });
    const auto& digits = world.program.DigitCache;
    EXPECT_EQ(
        clock_images(world.form),
        (std::vector{digit_image(2, digits[0]), digit_image(2, digits[1]),
                     digit_image(2, digits[2]), digit_image(2, digits[3]), status_image(2, 1)}));
    EXPECT_EQ(digits[1], 1) << "a minute has gone by";
    EXPECT_EQ(world.form.Label10.colour(), led_colour(2));

    world.engine->display.forget_digits();
    world.ok([](Form2& f) { f.Option8.click(); });
    EXPECT_EQ(world.form.Tens.image(), digit_image(1, 0)) << "unknown digits are no wild pictures";
}

TEST(OptionsEffects, ANarrowDisplayEmptiesTheSummaryAndAWideOneFillsIt) {
    OptionsWorld world(kBarOnly);
    world.stage.services.getsonginfo = [&] { world.form.Text1.set_text("about a.mid"); };
    world.form.Text1.set_text("about a.mid");
    world.ok([](Form2& f) { f.Check10.click(); });
    EXPECT_EQ(world.form.Text1.text(), "");
    EXPECT_EQ(world.form.place().width, 6500);
    world.ok([](Form2& f) { f.Check10.click(); });
    EXPECT_EQ(world.form.Text1.text(), "about a.mid");
    EXPECT_EQ(world.form.place().width, 9000);
}

TEST(OptionsEffects, TheOthersReachTheirPlaces) {
    OptionsWorld world(kBarOnly + "PresetPath1=/music\r\nPresetFileName1=a.mid\r\n");
    world.settings().PresetFileName[4] = "b.mid";
    world.settings().PresetPath[4] = "/music";
    world.files.remove("/zephyne/xg_reset.aut");
    ASSERT_TRUE(world.form.Timer4.enabled());
    ASSERT_NE(world.form.Command9.tooltip(), "");
    world.ok([](Form2& f) {
        f.user_moved(1234, 567);
        f.Check11.click();
        f.Check14.click();
        f.Option4_1.click();
        f.Option5_1.click();
    });
    EXPECT_EQ((Corner{world.settings().F2Left, world.settings().F2Top}), (Corner{1234, 567}));
    EXPECT_FALSE(world.form.Timer4.enabled());
    EXPECT_EQ(world.form.Image2.image(), 1);
    EXPECT_EQ(world.form.Command9.tooltip(), "");
    EXPECT_EQ(world.settings().PresetFileName[4], "");
    EXPECT_EQ(world.settings().PresetPath[4], "/music");
    EXPECT_FALSE(world.program.ResetFilePresent);
}

TEST(OptionsEffects, ManualEmptiesTheRoundAndStartsNothing) {
    OptionsWorld world(kBarOnly);
    ASSERT_FALSE(world.form.List1.empty());
    world.ok([](Form2& f) { f.Option3.click(); });
    EXPECT_TRUE(world.form.List1.empty());
    EXPECT_EQ(world.counts(), "2, N/A");
    EXPECT_EQ(world.open_song(), "a.mid") << "goes on";
}

TEST(OptionsEffects, ANewRoundBeginsAtTheStartOfItsSong) {
    OptionsWorld world(kBarOnly);
    world.run_for(60'000);
    ASSERT_GT(world.form.Slider1.value(), 0);
    world.program.ResumePosition = 60'000;
    world.program.PausedByUser = true;
    world.ok([](Form2& f) { f.Option6.click(); });
    EXPECT_EQ(world.form.Slider1.value(), 0);
    EXPECT_EQ(world.program.ResumePosition, 0);
    EXPECT_FALSE(world.program.PausedByUser);
}

TEST(OptionsEffects, ALoadedPlaylistKeepsItsSongsWhenMediaTypesChange) {
    OptionsWorld world(kBarOnly + "Playlist=1\r\nMode=Manual\r\n");
    world.open_playlist({"a.mid|/music/"});
    world.ok([](Form2& f) { f.Check9.click(); });
    const Log log = world.happened();
    EXPECT_EQ(log.back(),
              "message: Please re-create your playlist to reflect the changes in allowed media "
              "types.  Press Create/Edit/Save playlist to make changes. [Playlist Mode]");
    EXPECT_EQ(world.settings().AllowWav, 1);
    EXPECT_EQ(world.form.File1.count(), 1U);
}

TEST(OptionsLife, AfterAnOkWithoutANewRoundItIsHiddenWithItsStateAndItsMarks) {
    OptionsWorld world(kBarOnly);
    world.ok([](Form2& f) { f.Option3.click(), f.Text1.set_text("left as it is"); });
    ASSERT_TRUE(world.options.form());
    EXPECT_EQ(world.options.marks().play_mode, 1);
    EXPECT_EQ(world.program.CurrentForm, FormNumber::Main);

    world.settings().AutoRepeat = 1;
    world.ok([](Form2& f) {
        EXPECT_EQ(f.Text1.text(), "left as it is");
        EXPECT_EQ(f.Check2.value(), 0) << "not loaded again";
    });
    EXPECT_EQ(world.settings().Mode, PlayMode::Manual);
    EXPECT_EQ(world.settings().AutoRepeat, 0);
    world.expect_flags_at_rest();
}

TEST(OptionsLife, CancelAndCloseBoxChangeNothingButThePlace) {
    for (const bool by_close_box : {false, true}) {
        OptionsWorld world(kBarOnly);
        Settings before = world.settings();
        world.open([&](Form2& f) {
            EXPECT_EQ(world.program.CurrentForm, FormNumber::Options);
            for (Control* control : f.controls()) {
                if (control->kind() == ControlKind::check_box) {
                    static_cast<CheckBox*>(control)->click();
                }
            }
            f.user_moved(300, 450);
            by_close_box ? (void)f.request_unload(CloseReason::user) : f.Command3.click();
        });
        EXPECT_EQ(world.happened().back(), "dialog unloaded");
        before.F2Left = 300;
        before.F2Top = 450;
        EXPECT_EQ(world.settings(), before);
        EXPECT_EQ(world.program.CurrentForm, FormNumber::Main);
        world.open([](Form2& f) { EXPECT_EQ(f.place().left, 300); });
    }
}

TEST(OptionsLife, SongsGoOnBehindItForAnHour) {
    OptionsWorld world(kBarOnly);
    world.open([&](Form2& f) {
        world.run_for(3'600'000);
        EXPECT_GT(world.played().size(), 15U);
        world.options.show();  // nothing: it is open
        f.Check2.click();
        f.Command1.click();
    });
    EXPECT_EQ(world.settings().AutoRepeat, 1);
    world.expect_in_one_piece();
}

TEST(OptionsLife, ItsKeyIsDeafWhileOkIsAtWork) {
    OptionsWorld world(kBarOnly);
    world.ok([&](Form2& f) {
        f.Option2.click();
        world.pump.on_pump = [&] { world.options.show(); };
    });
    world.pump.on_pump = nullptr;
    EXPECT_FALSE(world.options.form());
    EXPECT_EQ(world.settings().Mode, PlayMode::Alpha);
}

TEST(OptionsLife, TheProgramMayEndWhileItIsOpenOrItsOkIsAtWork) {
    OptionsWorld open(kBarOnly);
    open.open([&](Form2&) { open.form.request_unload(CloseReason::session_end); });
    EXPECT_TRUE(open.program.Ending);

    OptionsWorld at_work(kBarOnly);
    at_work.ok([&](Form2& f) {
        f.Option2.click();
        at_work.pump.on_pump = [&] { at_work.form.request_unload(CloseReason::session_end); };
    });
    const Log log = at_work.happened();
    EXPECT_EQ(std::count(log.begin(), log.end(), "end"), 1);
    EXPECT_FALSE(at_work.device.is_open());
}

}  // namespace
}  // namespace zephyne::test
