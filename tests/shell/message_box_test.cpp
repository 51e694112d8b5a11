#include "shell/message_box.h"

#include "core/sheets/dlgbox.h"
#include "tests/support/fakes.h"
#include "tests/support/virtual_time.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

class MessageBoxTest : public testing::Test {
  protected:
    MessageBoxTest() {
        windows.on_modal = [this](Form& form) {
            if (const auto act = std::exchange(next_act, {})) act(static_cast<dlgbox&>(form));
        };
    }

    // Shows a message; `act` is what the user does with the box.
    Answer show(std::string text, std::int16_t flags, std::function<void(dlgbox&)> act = {}) {
        next_act = std::move(act);
        return message_box.ShowDlgMessage(std::move(text), flags, "Title");
    }

    std::function<void(dlgbox&)> next_act;
    Log log;
    VirtualClock clock;
    Scheduler scheduler{clock};
    VirtualPump pump{clock, scheduler};
    Program program;
    FakeWindows windows;
    LoggedBeeper beeper{log};
    MessageBox message_box{program, scheduler, windows, beeper};
};

Log visible_keys(const dlgbox& box) {
    Log keys;
    for (const Button* key : {&box.Command2, &box.Command1, &box.Command3}) {
        if (key->visible()) keys.push_back(key->caption());
    }
    return keys;
}

TEST_F(MessageBoxTest, ANoticeHasOnlyOk) {
    const Answer answer = show("Done.", 0, [&](dlgbox& box) {
        EXPECT_EQ(box.title(), "Title");
        EXPECT_EQ(visible_keys(box), Log{"OK"});
        EXPECT_EQ(box.default_button(), &box.Command1);
        EXPECT_EQ(box.cancel_button(), &box.Command1);
        EXPECT_TRUE(box.Command1.focused());
        box.Command1.click();
        EXPECT_FALSE(box.visible());
    });
    EXPECT_EQ(answer, Answer::ok);
    EXPECT_EQ(static_cast<int>(answer), -1);
}

TEST_F(MessageBoxTest, AQuestionHasYesAndNoAndEnterMeansNo) {
    for (const std::int16_t flags : {1, 2, -1}) {
        const auto agree = [](dlgbox& box) {
            EXPECT_EQ(visible_keys(box), (Log{"Yes", "No"}));
            EXPECT_EQ(box.default_button(), &box.Command3);
            EXPECT_TRUE(box.Command3.focused());
            box.Command1.click();  // hidden: no answer
            EXPECT_TRUE(box.visible());
            box.Command2.click();
        };
        EXPECT_EQ(show("Really?", flags, agree), Answer::yes);
        EXPECT_EQ(show("Really?", flags, [](dlgbox& box) { box.Command3.click(); }), Answer::no);
    }
}

TEST_F(MessageBoxTest, TheCloseBoxNeverAgreesAndNobodyIsAskedWhileTheProgramEndsOrAfterTheSession) {
    const auto close = [](dlgbox& box) { EXPECT_TRUE(box.request_unload(CloseReason::user)); };
    EXPECT_EQ(show("Really?", 1, close), Answer::no);
    EXPECT_EQ(show("Done.", 0, close), Answer::ok);
    EXPECT_EQ(program.CurrentForm, FormNumber::Main);

    log.clear();
    for (bool Program::*const over : {&Program::Ending, &Program::SessionEnded}) {
        program.*over = true;
        const auto never = [](dlgbox&) { FAIL(); };
        EXPECT_EQ(show("Really?", 1, never), Answer::no);
        EXPECT_EQ(show("Done.", 0, never), Answer::ok);
        EXPECT_EQ(log, Log());
        program.*over = false;
    }
}

TEST_F(MessageBoxTest, ShortTextsAreLargeAndStartOneLineDown) {
    std::string text_79;
    for (int i = 0; i < 79; ++i) text_79 += "ä";
    const auto expect_text = [](const std::string& text, int points) {
        return [=](dlgbox& box) {
            EXPECT_EQ(box.Label1.caption(), text);
            EXPECT_EQ(box.Label1.font_points(), points);
        };
    };
    show("", 0, expect_text("\r\n", 12));
    show(text_79, 0, expect_text("\r\n" + text_79, 12));
    show(text_79 + "ä", 0, expect_text(text_79 + "ä", 10));
    show(std::string(79, '\xE9'), 0, expect_text("\r\n" + std::string(79, '\xE9'), 12));
    show(std::string(80, '\xE9'), 0, expect_text(std::string(80, '\xE9'), 10));
}

TEST_F(MessageBoxTest, StandsInTheMiddleAndGrowsWithItsText) {
    const TwipsSize screen = windows.screen();
    const auto expect_height = [&](int more) {
        return [&, more](dlgbox& box) {
            const Place place = box.place();
            EXPECT_EQ(place, (Place{(screen.width - 6600) / 2, (screen.height - 2775 - more) / 2,
                                    6600, 2775 + more}));
            EXPECT_EQ(box.Label1.place().height, 1440 + more);
            for (const Button* key : {&box.Command1, &box.Command2, &box.Command3}) {
                EXPECT_EQ(key->place().top, 1815 + more);
            }
        };
    };
    windows.height_of_text = 300;
    show("Short.", 0, expect_height(0));
    windows.height_of_text = 3000;
    show("Long.", 1, expect_height(1560));
}

TEST_F(MessageBoxTest, BeepsOnlyWhenBeepsAreOn) {
    show("Done.", 0, [&](dlgbox&) { EXPECT_EQ(log, Log{"beep"}); });
    for (const std::int16_t silent : {0, 2}) {
        log.clear();
        program.settings.Beeps = silent;
        show("Done.", 1);
        EXPECT_EQ(log, Log());
    }
}

TEST_F(MessageBoxTest, TheWavesMoveThroughSevenFramesAnEighthOfASecondEach) {
    std::string frames;
    show("Done.", 0, [&](dlgbox& box) {
        pump.run_for(124);
        EXPECT_EQ(box.Image2.image(), 1);
        pump.run_for(1);
        for (int i = 0; i < 9; ++i) {
            frames += std::to_string(box.Image2.image());
            pump.run_for(125);
        }
        box.Command1.click();
        EXPECT_FALSE(box.Timer1.enabled());
    });
    EXPECT_EQ(frames, "123456712");
    EXPECT_EQ(scheduler.next_due(), std::nullopt) << "no timer is left behind";
}

TEST_F(MessageBoxTest, OneMessageMayLieOverAnother) {
    const Answer answer = show("Outer?", 1, [&](dlgbox& outer) {
        EXPECT_EQ(program.CurrentForm, FormNumber::MessageBox);
        EXPECT_EQ(show("Inner.", 0, [](dlgbox& inner) { inner.Command1.click(); }), Answer::ok);
        EXPECT_EQ(program.CurrentForm, FormNumber::Main);
        outer.user_activated();  // it is in front again
        EXPECT_EQ(program.CurrentForm, FormNumber::MessageBox);
        outer.Command2.click();
    });
    EXPECT_EQ(answer, Answer::yes);
    EXPECT_EQ(program.CurrentForm, FormNumber::Main);
}

}  // namespace
}  // namespace zephyne::test
