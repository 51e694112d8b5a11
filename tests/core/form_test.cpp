#include "tests/core/control_bench.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

TEST(Focus, MovesWithALossAndAGain) {
    ControlBench bench;
    bench.text.on_got_focus = bench.event("text gains");
    bench.text.on_lost_focus = bench.event("text loses");
    bench.key.on_got_focus = bench.event("key gains");
    bench.text.set_focus();
    bench.text.set_focus();
    EXPECT_TRUE(bench.text.focused());
    bench.key.set_focus();
    EXPECT_FALSE(bench.text.focused());
    bench.set_focused(nullptr);
    EXPECT_EQ(bench.events(), (Log{"text gains", "text loses", "key gains"}));
}

TEST(Focus, DoesNotGoWhereTheUserCannot) {
    ControlBench bench;
    bench.text.set_focus();
    Button mute(bench, {.name = "mute"});
    mute.set_focus();
    bench.box.set_enabled(false);
    bench.box.set_focus();
    bench.list.set_visible(false);
    bench.list.set_focus();
    EXPECT_TRUE(bench.text.focused());
    bench.frame.set_enabled(false);
    bench.key.set_focus();
    EXPECT_FALSE(bench.key.focused());
}

TEST(Focus, AHandlerMaySendItElsewhere) {
    ControlBench bench;
    bench.text.on_lost_focus = [&] { bench.list.set_focus(); };
    bench.list.on_got_focus = bench.event("list");
    bench.key.on_got_focus = bench.event("key");
    bench.text.set_focus();
    bench.key.set_focus();
    EXPECT_EQ(bench.focused(), &bench.list);
    EXPECT_EQ(bench.events(), Log{"list"}) << "the key never had it";
}

TEST(Focus, EndsWithItsControl) {
    ControlBench bench;
    {
        TextBox passing(bench, TextLines::one, TextAccess::read_write, {.name = "passing"});
        passing.set_focus();
        EXPECT_EQ(bench.find("passing"), &passing);
    }
    EXPECT_EQ(bench.focused(), nullptr);
    EXPECT_EQ(bench.find("passing"), nullptr);
}

struct ClosingForm : ControlBench {
    ClosingForm() {
        on_query_unload = [this](CloseReason reason, bool& cancel) {
            log.push_back("query " + std::to_string(static_cast<int>(reason)));
            if (while_asking) while_asking();
            cancel = keep_open;
        };
        on_unload = event("unload");
        load();
        set_visible(true);
    }
    bool keep_open = false;
    std::function<void()> while_asking;
};

TEST(ClosingAForm, CanBeCancelledAndUnloadsOnceAndHides) {
    ClosingForm form;
    form.keep_open = true;
    EXPECT_FALSE(form.request_unload(CloseReason::program));
    EXPECT_TRUE(form.visible());
    form.keep_open = false;
    EXPECT_TRUE(form.request_unload(CloseReason::user));
    EXPECT_FALSE(form.visible());
    EXPECT_FALSE(form.loaded());
    EXPECT_FALSE(form.request_unload(CloseReason::session_end));
    EXPECT_EQ(form.events(), (Log{"query 1", "query 0", "unload"}));
}

TEST(ClosingAForm, IsNotAskedTwiceAtATime) {
    ClosingForm form;
    form.keep_open = true;
    form.while_asking = [&] { EXPECT_FALSE(form.request_unload(CloseReason::user)); };
    EXPECT_FALSE(form.request_unload(CloseReason::user));
    EXPECT_EQ(form.events(), Log{"query 0"});
}

TEST(ClosingAForm, TheEndOfTheSessionDoesNotWaitForAnOpenQuestion) {
    for (const bool answer_is_no : {true, false}) {
        ClosingForm form;
        form.while_asking = [&] {
            form.while_asking = nullptr;
            form.keep_open = false;
            EXPECT_TRUE(form.request_unload(CloseReason::session_end));
            form.keep_open = answer_is_no;
        };
        EXPECT_FALSE(form.request_unload(CloseReason::user)) << "it is gone already";
        EXPECT_EQ(form.events(), (Log{"query 0", "query 2", "unload"}));
        EXPECT_FALSE(form.visible());
    }
}

TEST(AForm, TellsWhatTheWindowManagerDidAndNotWhatTheProgramDid) {
    ControlBench form;
    form.on_resize = form.event("resize");
    form.on_activate = form.event("activate");
    form.on_key_up = [&](int key) { form.log.push_back("key " + std::to_string(key)); };
    form.set_place({1, 2, 300, 400});
    form.set_state(WindowState::minimized);
    form.user_moved(10, 20);
    EXPECT_EQ(form.events(), Log());
    EXPECT_EQ(form.place(), (Place{10, 20, 300, 400}));

    form.user_changed_state(WindowState::minimized);  // known already
    form.user_changed_state(WindowState::normal);
    form.user_resized(500, 600);
    form.user_activated();
    form.user_released_key(113);
    EXPECT_EQ(form.events(), (Log{"resize", "resize", "activate", "key 113"}));
    EXPECT_EQ(form.place(), (Place{10, 20, 500, 600}));
}

}  // namespace
}  // namespace zephyne::test
