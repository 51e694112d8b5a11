// What the deck shows of the time: clock, length, percentage, blinking, preview and slider.
#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

class TheClock : public testing::Test {
  protected:
    TheClock() { world.settings().AutoReset = 0; }

    void play(Milliseconds length) {
        world.midi.lengths["A.mid"] = length;
        world.open_folder();
        world.click("A.mid");
    }
    // The digits as they stand there: "_" for a dark one.
    std::string digits() const {
        std::string text;
        for (const Picture* picture :
             {&world.form.Tens, &world.form.Ones, &world.form.Tenths, &world.form.Hundredths}) {
            const int display = world.program.settings.Display;
            const int digit = picture->image() - digit_image(display, 0);
            text += picture->image() == blank_image(display) ? '_' : static_cast<char>('0' + digit);
        }
        return text;
    }
    int status() const {
        return world.form.Image1.image() - status_image(world.program.settings.Display, 0);
    }

    // The status picture as it blinks in the next second.
    std::vector<int> blinks() {
        std::vector<int> frames;
        for (int i = 0; i < 4; ++i) {
            world.run_for(250);
            frames.push_back(status());
        }
        return frames;
    }

    World world{"A.mid", "B.mid"};
};

TEST_F(TheClock, ShowsLengthsBelowAnHourOnly) {
    const std::vector<std::pair<Milliseconds, std::string>> table = {
        {0, "00:00"},         {999, "00:00"},        {205'999, "03:25"},
        {3'599'999, "59:59"}, {3'600'000, "1+ Hr."}, {36'000'000, "1+ Hr."}};
    for (const auto& [length, text] : table) {
        play(length);
        EXPECT_EQ(world.form.Label6.caption(), text);
    }
}

TEST_F(TheClock, ShowsTheTimePlayedOrTheTimeThatRemains) {
    play(240'000);
    EXPECT_EQ(digits(), "0000");
    world.run_for(83'400);
    EXPECT_EQ(digits(), "0123");
    EXPECT_EQ(world.form.Slider1.value(), 34);
    EXPECT_EQ(world.form.Label13.caption(), " 34%");
    for (Picture* key : {&world.form.Tens, &world.form.Ones, &world.form.Tenths,
                         &world.form.Hundredths, &world.form.Image1}) {
        key->click();
        EXPECT_EQ(digits(), "0237");
        key->click();
        EXPECT_EQ(digits(), "0123");
    }
    world.settings().TimeMethod = 1;
    play(240'000);
    EXPECT_EQ(digits(), "0400");
    EXPECT_EQ(world.form.Label13.caption(), "") << "no percentage before the first";
}

TEST_F(TheClock, StandsStillBeyondNinetyNineMinutesWhileTheSliderGoesOn) {
    play(12'000'000);
    world.settings().TimeMethod = 1;
    world.form.Slider1.step_to(10);
    EXPECT_EQ(digits(), "1000") << "of 180 minutes the first and the last figure";
    world.form.Tens.click();
    world.run_for(5'940'000 - 1'200'000);
    EXPECT_EQ(digits(), "9900");
    world.run_for(600'000);
    EXPECT_EQ(digits(), "9900");
    EXPECT_EQ(world.form.Slider1.value(), 54);
    EXPECT_EQ(world.form.Label13.caption(), " 54%");
}

TEST_F(TheClock, RedrawsOnlyTheDigitsThatChange) {
    play(240'000);
    world.run_for(10'000);
    world.form.Tens.set_image(blank_image(0));
    world.run_for(1000);
    EXPECT_EQ(digits(), "_011");
    world.form.MMControl1.press(TransportKey::pause);
    EXPECT_EQ(digits(), "0011") << "a pause draws all of them";
}

TEST_F(TheClock, ShowsNothingOfASongWithoutLength) {
    play(0);
    EXPECT_EQ(world.form.Label13.caption(), "");
    world.run_for(15);
    EXPECT_FALSE(world.form.Timer3.enabled());
    world.run_for(5000);
    EXPECT_EQ(world.form.title(), "Zephyne") << "it has ended and waits";
    world.expect_flags_at_rest();
}

TEST_F(TheClock, BlinksTheColonWhilePausedAndTheStatusWhileStopped) {
    world.settings().Display = 2;
    play(240'000);
    world.run_for(1000);
    world.form.MMControl1.press(TransportKey::pause);
    EXPECT_EQ(world.form.Timer3.interval(), 250);
    EXPECT_EQ(blinks(), (std::vector<int>{2, 1, 2, 1}));
    EXPECT_EQ(digits(), "0001");

    world.run_for(250);
    world.form.MMControl1.press(TransportKey::stop);
    EXPECT_EQ(status(), 1);
    EXPECT_EQ(digits(), "0000");
    EXPECT_EQ(blinks(), (std::vector<int>{4, 3, 4, 3})) << "the phase goes on where it was";
    world.form.MMControl1.press(TransportKey::play);
    EXPECT_EQ(status(), 1);
}

TEST_F(TheClock, BlinksInTheLastTenSecondsNotInTheEleventh) {
    play(60'000);
    world.run_for(49'990);
    EXPECT_FALSE(world.form.Timer3.enabled()) << "eleven seconds are shown to remain";
    world.run_for(20);
    EXPECT_TRUE(world.form.Timer3.enabled());
    EXPECT_EQ(world.form.Timer3.interval(), 500);
    world.run_for(490);
    EXPECT_EQ(digits(), "____");
    EXPECT_EQ(status(), 2);
    world.run_for(500);
    EXPECT_EQ(digits(), "0051");
    EXPECT_EQ(status(), 1);
    world.run_for(10'000);
    EXPECT_FALSE(world.form.Timer3.enabled());
    EXPECT_EQ(digits(), "0000");

    play(3'670'000);
    world.run_for(7000);
    EXPECT_FALSE(world.form.Timer3.enabled()) << "61:03 remain";
}

TEST_F(TheClock, MovesTheNoteRollWhileASongPlaysOrIsPaused) {
    play(240'000);
    world.run_for(200);
    const int first = world.form.Image2.image();
    world.run_for(3000);
    EXPECT_EQ(world.form.Image2.image(), first) << "thirty frames, and the first again";
    world.form.MMControl1.press(TransportKey::pause);
    world.run_for(100);
    EXPECT_NE(world.form.Image2.image(), first);
    world.settings().Animated = 0;
    world.run_for(100);
    EXPECT_EQ(world.form.Image2.image(), 1);
}

TEST_F(TheClock, EndsEachPreviewAtTheFirstTickAfterItsTime) {
    const std::vector<std::pair<std::int32_t, Milliseconds>> table = {
        {5, 6000}, {0, 1000}, {58, 59'000}, {59, 60'000}, {75, 60'000}};
    for (const auto& [seconds, end] : table) {
        world.settings().PreviewTime = seconds;
        world.start(PlayMode::Preview);
        world.program.RecentCount = 0;
        world.run_for(end - 10);
        EXPECT_EQ(world.played(), Log{"A.mid"}) << seconds;
        world.run_for(510);
        EXPECT_EQ(world.played(), Log{"B.mid"}) << seconds;
        EXPECT_EQ(world.program.RecentCount, 0) << "a preview is not remembered";
    }
}

TEST_F(TheClock, LetsAPreviewThatWasPausedPlayToItsEnd) {
    world.start(PlayMode::Preview);
    world.run_for(3000);
    world.form.MMControl1.press(TransportKey::pause);
    world.run_for(100'000);
    world.form.MMControl1.press(TransportKey::play);
    world.run_for(176'000);
    EXPECT_EQ(world.played(), (Log{"A.mid", "A.mid"})) << "started, and resumed";
    world.run_for(1100);
    EXPECT_EQ(world.played(), Log{"B.mid"});
    world.run_for(6600);
    EXPECT_EQ(world.played(), Log{"A.mid"}) << "the next preview is short again";
}

class ThePositionSlider : public TheClock {
  protected:
    ThePositionSlider() {
        play(200'000);
        world.run_for(20'200);
        world.happened();
    }
    Slider& slider = world.form.Slider1;
};

TEST_F(ThePositionSlider, SeeksWhenTheDragEnds) {
    slider.press();
    slider.drag_to(60);
    slider.drag_to(75);
    world.run_for(2000);
    EXPECT_EQ(slider.value(), 75) << "the song does not pull it away";
    EXPECT_EQ(world.form.Label13.caption(), " 10%");
    EXPECT_EQ(world.happened(), Log{});
    slider.release();
    EXPECT_EQ(world.happened(), Log{"play A.mid from 150000"});
    EXPECT_TRUE(world.form.MMControl1.focused());
    EXPECT_EQ(digits(), "0230");
    world.run_for(49'900);
    EXPECT_EQ(world.happened(), Log{});
    world.run_for(200);
    EXPECT_EQ(world.form.title(), "Zephyne") << "the song ends where it always does";
    world.expect_in_one_piece();
}

TEST_F(ThePositionSlider, FollowsTheKeysAtOnce) {
    slider.step_to(40);
    EXPECT_EQ(world.happened(), Log{"play A.mid from 80000"});
    EXPECT_EQ(world.form.Label13.caption(), " 40%");
    slider.step_to(100);
    world.run_for(1000);
    EXPECT_EQ(world.form.title(), "Zephyne");
}

TEST_F(ThePositionSlider, LeavesAPausedSongPaused) {
    world.form.MMControl1.press(TransportKey::pause);
    world.happened();
    slider.press();
    slider.drag_to(50);
    slider.release();
    EXPECT_EQ(world.happened(), (Log{"play A.mid from 100000", "pause A.mid"}));
    EXPECT_EQ(world.device.Mode(), DeviceMode::paused);
    EXPECT_EQ(digits(), "0140");
    EXPECT_TRUE(world.form.Timer3.enabled());
    EXPECT_EQ(world.form.title(), "Zephyne - Paused");
}

TEST_F(ThePositionSlider, GoesBackToTheStartOfASongThatIsStopped) {
    world.form.MMControl1.press(TransportKey::stop);
    world.happened();
    slider.step_to(30);
    EXPECT_EQ(slider.value(), 0);
    slider.press();
    slider.drag_to(75);
    slider.release();
    EXPECT_EQ(slider.value(), 0);
    EXPECT_EQ(world.form.Label13.caption(), "");
    EXPECT_EQ(world.happened(), Log{});
    world.expect_flags_at_rest();
}

TEST_F(ThePositionSlider, DoesNotTakeItsPlaceIntoASongThatBeginsMeanwhile) {
    world.pump.arrive_in(1, [&] { world.click("B.mid"); });
    slider.step_to(50);
    EXPECT_EQ(world.happened(), (Log{"close A.mid", "open B.mid", "play B.mid"}));
    EXPECT_EQ(world.device.Position(), 0);
    world.expect_title_tells_the_truth();
}

TEST_F(ThePositionSlider, HeldWhileTheNextSongBeginsSeeksNothingInIt) {
    slider.press();
    slider.drag_to(60);
    world.click("B.mid");
    world.run_for(3000);
    world.happened();
    slider.release();
    EXPECT_EQ(world.happened(), Log{});
    EXPECT_EQ(world.device.Position(), 3000);
}

}  // namespace
}  // namespace zephyne::test
