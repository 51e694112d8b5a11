#include "tests/core/control_bench.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

using Act = std::function<void(ControlBench&)>;

struct EventRow {
    std::string what;
    Act act;
    Log events;
};

Act drag(std::vector<int> values) {
    return [values = std::move(values)](ControlBench& bench) {
        bench.slider.press();
        for (const int value : values) bench.slider.drag_to(value);
        bench.slider.release();
    };
}

// What the user does. All of it is silent where the control is disabled or hidden.
const std::vector<EventRow>& user_acts() {
    static const std::vector<EventRow> acts = {
        {"click a label", [](auto& b) { b.label.click(); }, {"label"}},
        {"click a key", [](auto& b) { b.key.click(); }, {"key"}},
        {"toggle a box", [](auto& b) { b.box.click(); }, {"box"}},
        {"click a picture", [](auto& b) { b.picture.click(); }, {"picture"}},
        {"press Stop", [](auto& b) { b.transport.press(TransportKey::stop); }, {"transport 2"}},
        {"type", [](auto& b) { b.text.type("x"); }, {"text"}},
        {"click a row", [](auto& b) { b.list.click(1); }, {"list"}},
        {"click it again", [](auto& b) { b.list.click(0), b.list.click(0); }, {"list", "list"}},
        {"choose a drive", [](auto& b) { b.drives.choose(1); }, {"drive"}},
        {"open a folder", [](auto& b) { b.folders.open(2); }, {"folder"}},
        {"step a slider", [](auto& b) { b.slider.step_to(10); }, {"scroll", "change"}},
        {"press a slider", [](auto& b) { b.slider.press(), b.slider.release(); }, {"down", "up"}},
        {"drag a slider",
         drag({30, 30, 75}),
         {"down", "scroll", "move", "move", "scroll", "move", "up", "change"}},
        {"drag it there and back",
         drag({30, 0}),
         {"down", "scroll", "move", "scroll", "move", "up"}},
    };
    return acts;
}

TEST(Controls, TheUsersActsRaiseTheseEvents) {
    for (const EventRow& row : user_acts()) {
        ControlBench bench;
        row.act(bench);
        EXPECT_EQ(bench.events(), row.events) << row.what;
    }
}

TEST(Controls, NothingHappensInAFrameThatIsDisabledOrHidden) {
    for (const EventRow& row : user_acts()) {
        for (const auto make_unusable : {&Control::set_enabled, &Control::set_visible}) {
            ControlBench bench;
            (bench.frame.*make_unusable)(false);
            row.act(bench);
            EXPECT_EQ(bench.events(), Log()) << row.what;
        }
    }
}

TEST(Controls, TheseActsOfTheUserAreSilent) {
    ControlBench bench;
    bench.slider.drag_to(50);
    bench.slider.release();
    bench.reading.type("x");
    bench.list.click(3);
    bench.drives.choose(0);
    bench.drives.choose(7);
    bench.folders.select(2);
    bench.folders.open(1);
    bench.folders.open(99);
    bench.transport.set_transport_enabled(false);
    bench.transport.press(TransportKey::play);
    EXPECT_EQ(bench.events(), Log());
    EXPECT_EQ(bench.slider.value(), 0);
    EXPECT_EQ(bench.reading.text(), "");
}

TEST(Controls, AChangeFromCodeRaisesTheSameEventOnceEvenWhereTheUserCannotReach) {
    const std::vector<EventRow> acts = {
        {"box", [](auto& b) { b.box.set_value(1); }, {"box"}},
        {"slider", [](auto& b) { b.slider.set_value(40); }, {"change"}},
        {"text", [](auto& b) { b.text.set_text("x"); }, {"text"}},
        {"read-only text", [](auto& b) { b.reading.set_text("x"); }, {"reading"}},
        {"selection", [](auto& b) { b.list.set_selected(2); }, {"list"}},
        {"drive", [](auto& b) { (void)b.drives.set_drive_of("/stick/x"); }, {"drive"}},
        {"folder", [](auto& b) { (void)b.folders.set_path("/music/rags"); }, {"folder"}},
    };
    for (const EventRow& row : acts) {
        ControlBench bench;
        bench.frame.set_enabled(false);
        row.act(bench);
        row.act(bench);  // no change any more
        EXPECT_EQ(bench.events(), row.events) << row.what;
    }
}

TEST(Controls, TheseChangesFromCodeAreSilent) {
    ControlBench bench;
    bench.list.set_selected(0);
    bench.events();
    bench.list.set_selected(std::nullopt);
    bench.list.set_selected(3);
    bench.list.add({"0", {}});
    bench.list.remove(1);
    bench.list.set_items({{"x", {}}});
    bench.list.clear();
    bench.drives.follow("/stick/blues");
    bench.drives.refresh();
    bench.folders.refresh();
    EXPECT_FALSE(bench.drives.set_drive_of("relative"));
    EXPECT_FALSE(bench.folders.set_path("/nowhere"));
    EXPECT_EQ(bench.events(), Log());
    EXPECT_EQ(bench.drives.drive().name, "Stick");
    EXPECT_EQ(bench.folders.path(), "/music");
}

TEST(Controls, ASliderKeepsToItsRangeAndABoxToTwoValues) {
    ControlBench bench;
    bench.slider.set_value(250);
    EXPECT_EQ(bench.slider.value(), Slider::highest);
    bench.slider.step_to(-3);
    EXPECT_EQ(bench.slider.value(), Slider::lowest);
    bench.box.set_value(-7);
    EXPECT_EQ(bench.box.value(), 1);
}

TEST(Controls, AKeyThatNothingListensToIsShownDisabled) {
    ControlBench bench;
    Button mute(bench, {.name = "mute"});
    EXPECT_TRUE(mute.enabled());
    EXPECT_FALSE(mute.usable());
    mute.click();
    mute.set_on_click(bench.event("mute"));
    EXPECT_TRUE(mute.usable());
}

TEST(Controls, TheAccessibleNameIsTheCaptionThenTheSheetsThenTheLastTooltip) {
    ControlBench bench;
    Label value(bench, {.name = "value"});
    EXPECT_EQ(value.accessible_name(), "");
    value.set_tooltip("Length of current song");
    value.set_tooltip("");  // tooltips are switched off
    EXPECT_EQ(value.accessible_name(), "Length of current song");
    value.set_caption("03:25");
    EXPECT_EQ(value.accessible_name(), "03:25");

    bench.text.set_accessible_name("Find");
    bench.text.set_tooltip("Enter filename to find in list");
    EXPECT_EQ(bench.text.accessible_name(), "Find");
}

std::string changed(const std::string& who, Property property) {
    return who + " " + std::to_string(static_cast<int>(property));
}

struct Watcher final : ControlObserver {
    Watcher(Log& log, std::string name) : log_(log), name_(std::move(name)) {}
    void property_changed(Property property) override { log_.push_back(changed(name_, property)); }
    void subject_gone() override { log_.push_back(name_ + " gone"); }

    Log& log_;
    std::string name_;
};

TEST(Controls, AnObserverHearsOfEachChangeOnceAndOfTheEnd) {
    Log log;
    Watcher form(log, "form");
    Watcher key(log, "key");
    Watcher outside(log, "outside");
    {
        ControlBench bench;
        bench.observe(&form);
        bench.key.observe(&key);
        bench.reading.observe(&outside);
        bench.key.set_caption("Play");
        bench.key.set_caption("Play");
        bench.key.set_left(0);
        bench.frame.set_enabled(false);  // felt by what is in the frame
        bench.frame.set_visible(false);
        bench.set_title("Zephyne");
        bench.set_title("Zephyne");
        bench.reading.observe(nullptr);
        EXPECT_EQ(log, (Log{changed("key", Property::caption), changed("key", Property::enabled),
                            changed("key", Property::visible), changed("form", Property::title)}));
        log.clear();
    }
    EXPECT_EQ(log, (Log{"key gone", "form gone"}));
}

}  // namespace
}  // namespace zephyne::test
