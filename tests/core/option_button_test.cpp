#include "core/controls/option_button.h"

#include "core/controls/form.h"
#include "core/controls/simple_controls.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace zephyne::test {
namespace {

// Two groups: a, b, c in a frame, x and y on the form itself.
struct Options : Form {
    Options() : Form({.name = "Options"}) {
        for (OptionButton* option : {&a, &b, &c, &x, &y}) {
            option->on_click = [this, option] { log.push_back(option->name()); };
        }
    }

    Frame frame{*this, {.name = "frame"}};
    OptionButton c{*this, {.name = "c", .tab = 3, .frame = &frame}};
    OptionButton a{*this, {.name = "a", .tab = 1, .frame = &frame}};
    OptionButton b{*this, {.name = "b", .tab = 2, .frame = &frame}};
    OptionButton x{*this, {.name = "x", .tab = 4}};
    OptionButton y{*this, {.name = "y", .tab = 5}};
    Log log;

    Log events() { return std::exchange(log, {}); }
    std::string selected() const { return those(&OptionButton::selected); }
    std::string group_stops() const { return those(&OptionButton::is_group_stop); }

  private:
    std::string those(bool (OptionButton::*are)() const) const {
        std::string names;
        for (const OptionButton* option : {&a, &b, &c, &x, &y}) {
            if ((option->*are)()) names += option->name();
        }
        return names;
    }
};

TEST(OptionButton, OneOfAGroupIsSelectedAndOnlyThatOneClicks) {
    Options form;
    form.a.select();
    form.x.select();
    EXPECT_EQ(form.selected(), "ax");
    form.b.select();
    form.b.select();
    EXPECT_EQ(form.selected(), "bx");
    EXPECT_EQ(form.events(), (Log{"a", "x", "b"})) << "from code, once each";
    form.b.click();
    EXPECT_EQ(form.events(), Log{"b"}) << "by the user, also on the selected one";
    form.c.click();
    EXPECT_EQ(form.selected(), "cx");
    EXPECT_EQ(form.events(), Log{"c"});
    form.frame.set_enabled(false);
    form.a.click();
    EXPECT_EQ(form.selected(), "cx") << "the user cannot reach it";
    form.a.select();
    EXPECT_EQ(form.selected(), "ax") << "code can";
    EXPECT_EQ(form.events(), Log{"a"});
}

TEST(OptionButton, ArrowKeysMoveTheChoiceInTheTabOrderAndRoundItsEnds) {
    Options form;
    form.a.select();
    form.a.step(GroupStep::next);
    form.b.step(GroupStep::next);
    form.c.step(GroupStep::next);
    form.a.step(GroupStep::previous);
    EXPECT_EQ(form.events(), (Log{"a", "b", "c", "a", "c"}));
    EXPECT_TRUE(form.c.focused());

    form.a.set_enabled(false);
    form.b.set_visible(false);
    form.c.step(GroupStep::next);
    EXPECT_EQ(form.events(), Log()) << "there is nowhere to go";
    EXPECT_EQ(form.selected(), "c");
}

TEST(OptionButton, TabStopsAtTheSelectedOneOrElseTheFirst) {
    Options form;
    EXPECT_EQ(form.group_stops(), "ax");
    form.c.select();
    form.y.select();
    EXPECT_EQ(form.group_stops(), "cy");
}

}  // namespace
}  // namespace zephyne::test
