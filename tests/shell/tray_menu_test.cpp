#include "shell/tray_menu.h"

#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

class Tray : public testing::Test {
  protected:
    Tray() {
        world.settings().AutoReset = 0;
        world.settings().ShowTray = 1;
        world.settings().AllowWav = 1;
        menu.show_about = [this] { world.log.push_back("about"); };
        menu.put_away = [this] { put_away(); };
        world.form.load();
        world.form.set_visible(true);
        windows.create(world.form);
        menu.load();
    }

    // The main window's way off the screen, which needs the icon.
    void put_away() {
        world.log.push_back("put away");
        if (menu.reachable()) return world.form.set_visible(false);
        world.form.set_visible(true);
        world.form.set_state(WindowState::minimized);
    }
    void play_alpha() {
        world.start(PlayMode::Alpha);
        world.run_for(1200);
        world.happened();
    }
    std::string state() const {
        return World::shown(world.tray.mnuPause) + ", " + World::shown(world.tray.mnuStop);
    }
    void left_click() { area.release(MouseMessage::LeftButtonUp); }

    World world{"A.mid", "B.mid", "C.wav", "D.mid"};
    FakeWindows windows;
    FakeNotificationArea area{world.log};
    TrayMenu menu{world.stage, *world.engine, windows, area};
};

TEST_F(Tray, TheIconComesWithItsRecordAndGoes) {
    EXPECT_EQ(world.happened(), Log{"icon added"});
    EXPECT_EQ(area.icon.cbSize, 88U);
    EXPECT_EQ(area.icon.uFlags, 7U);
    EXPECT_EQ(area.icon.uID, 1U);
    EXPECT_EQ(area.icon.uCallbackMessage, 512U);
    EXPECT_EQ(area.icon.tip(), "Zephyne");
    EXPECT_EQ(std::string(area.icon.szTip.data() + 7, 3), std::string("\0  ", 3));
    EXPECT_EQ(area.entries(),
              "Next Song, Pause (off), Stop (off), -, Raise Volume, Lower Volume, -, *Show*, Hide, "
              "-, About..., -, Quit Zephyne");
    world.form.on_unload = [&] { world.log.push_back("quit"); };
    world.tray.mnuAbout.click();
    world.tray.mnuQuit.click();
    menu.unload();
    world.run_for(60'000);
    area.release(MouseMessage::RightButtonUp);
    EXPECT_EQ(world.happened(), (Log{"about", "quit", "icon removed"}));
}

TEST_F(Tray, OneClickOpensTheMenuLaterAndTwoShowTheWindow) {
    world.form.set_visible(false);
    left_click();
    world.run_for(299);
    EXPECT_FALSE(area.menu_open);
    world.run_for(1);
    EXPECT_EQ(world.happened(), (Log{"icon added", "menu"}));
    EXPECT_FALSE(world.form.visible());

    left_click();
    world.run_for(299);
    left_click();
    world.run_for(3000);
    EXPECT_EQ(world.happened(), Log{}) << "no menu";
    EXPECT_TRUE(world.form.visible());
    EXPECT_EQ(windows.raised, Log{"Form1"});

    area.release(MouseMessage::RightButtonUp);
    EXPECT_EQ(world.happened(), Log{"menu"}) << "at once";
    for (const std::uint32_t ignored : {512U, 513U, 515U, 516U, 518U, 0U}) area.release(ignored);
    area.on_message(513, MouseMessage::RightButtonUp);
    world.run_for(1000);
    EXPECT_EQ(world.happened(), Log{});

    int clicks = 0;
    world.pump.on_pump = [&] {
        if (++clicks == 1) left_click();
    };
    left_click();
    left_click();
    world.run_for(300);
    EXPECT_EQ(world.happened(), Log{"menu"}) << "a click while the window is shown begins anew";
}

TEST_F(Tray, ShowBringsTheWindowOverTheMainOneForwardToo) {
    Form options({.name = "Form2", .width = 3000, .height = 3000});
    options.load();
    windows.create(options);
    world.program.CurrentForm = FormNumber::Options;
    world.form.set_visible(false);
    world.form.set_state(WindowState::minimized);
    options.set_state(WindowState::minimized);
    world.tray.mnuActivate.click();
    EXPECT_EQ(world.form.state(), WindowState::normal);
    EXPECT_EQ(options.state(), WindowState::normal);
    EXPECT_TRUE(options.visible());
    EXPECT_EQ(windows.raised, (Log{"Form1", "Form2"}));

    // A box over it has closed and left the number of the main window.
    world.program.CurrentForm = FormNumber::Main;
    windows.modal = &options;
    world.tray.mnuActivate.click();
    EXPECT_EQ(windows.raised, (Log{"Form1", "Form2", "Form1", "Form2"}));

    // What it names may be gone by the time that events have run.
    windows.modal = nullptr;
    world.pump.on_pump = [&] { windows.destroy(options); };
    world.program.CurrentForm = FormNumber::Options;
    world.tray.mnuActivate.click();
    EXPECT_EQ(windows.raised.back(), "Form1");
}

TEST_F(Tray, AWindowIsNotHiddenWhereNothingShowsTheIcon) {
    world.tray.mnuHide.click();
    EXPECT_FALSE(world.form.visible());
    area.host = false;
    world.run_for(1200);
    EXPECT_EQ(world.form.state(), WindowState::minimized);
    world.run_for(10'000);
    EXPECT_EQ(world.happened(), (Log{"icon added", "put away", "put away"}));
    area.host = true;
    world.tray.mnuHide.click();
    EXPECT_FALSE(world.form.visible());
    area.host = false;
    menu.unload();
    EXPECT_FALSE(menu.reachable());
}

TEST_F(Tray, TheTooltipTellsWhatPlaysAndHowFarTheRoundIs) {
    const auto tip = [&] {
        world.run_for(1200);
        return area.icon.tip();
    };
    EXPECT_EQ(tip(), "Zephyne - Stopped");
    EXPECT_EQ(area.icon.uFlags, 4U);
    world.start(PlayMode::Alpha);
    EXPECT_EQ(tip(), "Zephyne - Playing A.mid (1 of 4)");
    world.tray.mnuPause.click();
    EXPECT_EQ(tip(), "Zephyne - Paused");
    world.tray.mnuPause.click();
    world.tray.mnuStop.click();
    EXPECT_EQ(tip(), "Zephyne - Stopped");
    for (int i = 0; i < 3; ++i) world.tray.mnuNext.click();
    EXPECT_EQ(tip(), "Zephyne - Playing D.mid") << "the last one of the round";
    EXPECT_FALSE(world.tray.mnuNext.enabled);
    world.settings().Continuous = 1;
    world.start(PlayMode::Alpha);
    EXPECT_EQ(tip(), "Zephyne - Playing A.mid (Continuous)");
    EXPECT_TRUE(world.tray.mnuNext.enabled);
    world.start(PlayMode::Manual);
    EXPECT_EQ(tip(), "Zephyne - Playing A.mid");
}

TEST_F(Tray, ALongNameIsCutToTheRecordAndNoCharacterIsTorn) {
    play_alpha();
    for (const std::size_t length : {44, 45}) {
        const std::string start(length, 'x');
        world.program.CurrentSongName = start + "\xC3\xA9tude.mid";
        world.run_for(1200);
        EXPECT_EQ(area.icon.tip(), "Zephyne - Playing " + start + (length == 44 ? "\xC3\xA9" : ""));
    }
    EXPECT_EQ(area.icon.szTip.back(), '\xC3');
}

TEST_F(Tray, PauseAndStopDoWhatTheirCaptionsSay) {
    play_alpha();
    world.run_for(8'800);
    EXPECT_EQ(state(), "Pause, Stop");
    world.tray.mnuPause.click();
    EXPECT_EQ(state(), "Play, Stop (off)");
    EXPECT_TRUE(world.program.PausedByUser);
    world.tray.mnuStop.click();
    world.run_for(60'000);
    world.expect_title_tells_the_truth();
    world.tray.mnuPause.click();
    EXPECT_EQ(state(), "Pause, Stop");
    EXPECT_TRUE(world.form.MMControl1.transport_enabled());
    world.run_for(1000);
    EXPECT_EQ(world.device.Position(), 11'000);
    EXPECT_EQ(world.happened(), (Log{"pause A.mid", "play A.mid"}));

    world.tray.mnuStop.click();
    EXPECT_EQ(state(), "Pause (off), Play");
    EXPECT_EQ(world.form.Slider1.value(), 0);
    EXPECT_EQ(world.form.Label6.caption(), "");
    EXPECT_EQ(world.program.BlinkReason, Blink::Stopped);
    EXPECT_TRUE(world.form.Timer3.enabled());
    world.tray.mnuPause.click();
    world.run_for(3'600'000);
    world.expect_title_tells_the_truth();
    world.tray.mnuStop.click();
    EXPECT_EQ(state(), "Pause, Stop");
    EXPECT_EQ(world.form.Label6.caption(), "03:00");
    world.expect_title_tells_the_truth();
    world.run_for(180'000);
    EXPECT_EQ(world.happened(), (Log{"close A.mid", "open A.mid", "pause A.mid", "play A.mid",
                                     "close A.mid", "open B.mid", "play B.mid"}));
    world.expect_flags_at_rest();
}

TEST_F(Tray, StopOfASongWhoseFileIsGoneLeavesNothingOpen) {
    play_alpha();
    world.files.vanish(world.path("A.mid"));
    world.midi.broken.insert("A.mid");
    world.tray.mnuStop.click();
    EXPECT_EQ(state(), "Pause (off), Stop (off)");
    EXPECT_EQ(world.open_song(), "");
    world.expect_in_one_piece();
}

TEST_F(Tray, AMenuThatIsNewShowsThePlayerAsItIs) {
    play_alpha();
    world.run_for(180'000);
    menu.unload();
    world.form.MMControl1.press(TransportKey::pause);
    menu.load();
    EXPECT_EQ(state(), "Play, Stop (off)");
    EXPECT_EQ(World::shown(world.tray.mnuSong(5)), "A.mid");
    EXPECT_TRUE(world.tray.mnuSong(5).visible);
    menu.unload();
    world.form.MMControl1.press(TransportKey::stop);
    menu.load();
    EXPECT_EQ(state(), "Pause (off), Play");

    left_click();
    menu.unload();
    menu.load();
    left_click();
    EXPECT_EQ(windows.raised, Log()) << "these are not two clicks on the same icon";
}

TEST_F(Tray, NextInTheQueueTakesTheQueuesStepOnly) {
    play_alpha();
    world.settings().Mode = PlayMode::Queue;
    world.form.Command19.set_visible(true);
    world.form.List2.add({world.path("D.mid"), {}});
    world.run_for(3000);
    EXPECT_TRUE(world.tray.mnuNext.enabled);
    world.tray.mnuNext.click();
    EXPECT_EQ(world.open_song(), "D.mid");
    EXPECT_EQ(world.form.List1.count(), 3U) << "nothing of the round";
    world.run_for(3000);
    EXPECT_FALSE(world.tray.mnuNext.enabled);
}

TEST_F(Tray, VolumeMovesBothSlidersByAStepWithinTheirRange) {
    Form1& f = world.form;
    world.stage.services.setvolume = [&] {
        world.log.push_back("volume " + std::to_string(f.Slider2.value()) + " " +
                            std::to_string(f.Slider3.value()) +
                            (f.Timer6.enabled() ? " polled" : ""));
    };
    f.Timer6.set_enabled(true);
    f.Slider2.set_value(10);
    f.Slider3.set_value(75);
    world.happened();
    for (int i = 0; i < 2; ++i) world.tray.VolDown.click();
    for (int i = 0; i < 2; ++i) world.tray.VolUp.click();
    EXPECT_EQ(world.happened(),
              (Log{"volume 30 95", "volume 50 100", "volume 30 80", "volume 10 60"}));
    world.tray.VolUp.click();
    EXPECT_EQ(world.happened(), Log{"volume 0 40"});
    EXPECT_TRUE(f.Timer6.enabled());
}

TEST_F(Tray, GoesOnBehindAWindowThatStaysOpenForAnHour) {
    play_alpha();
    area.release(MouseMessage::RightButtonUp);
    world.run_for(3'600'000);
    const std::string song = world.open_song();
    EXPECT_EQ(area.icon.tip().substr(0, 18 + song.size()), "Zephyne - Playing " + song);
    EXPECT_EQ(state(), "Pause, Stop");
    world.tray.mnuNext.click();
    EXPECT_NE(world.open_song(), song);
    world.expect_flags_at_rest();
}

// Whatever the user or another program does while an action lets events run, the player ends in
// one piece.
TEST_F(Tray, ActionsThatMeetInTheMiddleLeaveThePlayerInOnePiece) {
    world.settings().AutoReset = 1;
    const std::vector<MenuItem*> items = {&world.tray.mnuNext, &world.tray.mnuPause,
                                          &world.tray.mnuStop, &world.tray.mnuSong(5),
                                          &world.tray.mnuActivate};
    for (MenuItem* outer : items) {
        for (MenuItem* inner : items) {
            for (int yield = 1; yield <= 4; ++yield) {
                SCOPED_TRACE(outer->name + " met by " + inner->name + " at " +
                             std::to_string(yield));
                world.pump.on_pump = nullptr;
                world.start(PlayMode::Alpha);
                world.run_for(180'200);
                int pumps = 0;
                world.pump.on_pump = [&] {
                    if (++pumps == yield) inner->click();
                };
                outer->click();
                world.pump.on_pump = nullptr;
                world.run_for(1200);
                world.expect_in_one_piece();
            }
        }
    }
}

}  // namespace
}  // namespace zephyne::test
