#include "tests/support/program_world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <tuple>

namespace zephyne::test {
namespace {

// "Command2.left" and so on, of every control and of the window itself.
using State = std::map<std::string, std::string>;

State state_of(const Form1& form) {
    State state;
    const auto put_place = [&](const std::string& name, const Place& place) {
        state[name + ".left"] = std::to_string(place.left);
        state[name + ".top"] = std::to_string(place.top);
        state[name + ".width"] = std::to_string(place.width);
        state[name + ".height"] = std::to_string(place.height);
    };
    put_place("Form1", form.place());
    for (const Control* control : form.controls()) {
        put_place(control->name(), control->place());
        state[control->name() + ".visible"] = control->visible() ? "yes" : "no";
        state[control->name() + ".enabled"] = control->enabled() ? "yes" : "no";
        state[control->name() + ".caption"] = control->caption();
    }
    return state;
}

const State kWide = {{"Drive1.width", "6030"}, {"Dir1.width", "6030"},   {"File1.width", "6030"},
                     {"text2.width", "5535"},  {"Text1.visible", "yes"}, {"Label7.visible", "yes"},
                     {"Form1.width", "9000"}};

const State kNarrow = {{"Drive1.width", "3510"}, {"Dir1.width", "3510"},  {"File1.width", "3510"},
                       {"text2.width", "3015"},  {"Text1.visible", "no"}, {"Label7.visible", "no"},
                       {"Form1.width", "6500"}};

const State kFolder = {
    {"Command13.visible", "no"},   {"Command20.visible", "no"}, {"Image5.visible", "no"},
    {"Label14.visible", "no"},     {"Label8.top", "1760"},      {"text2.top", "1760"},
    {"File1.top", "2040"},         {"File1.height", "2205"},    {"Dir1.visible", "yes"},
    {"Drive1.visible", "yes"},     {"Frame2.visible", "yes"},   {"Line4.visible", "yes"},
    {"Frame2.caption", "Presets"}, {"Command4.enabled", "yes"}, {"Command5.enabled", "yes"},
    {"Command18.enabled", "yes"},  {"Command24.enabled", "yes"}};

const State kPlaylist = {
    {"Command13.visible", "yes"}, {"Command20.visible", "yes"}, {"Image5.visible", "yes"},
    {"Label14.visible", "yes"},   {"Label8.top", "720"},        {"text2.top", "720"},
    {"File1.top", "1010"},        {"File1.height", "3180"},     {"Dir1.visible", "no"},
    {"Drive1.visible", "no"},     {"Frame2.visible", "no"},     {"Line4.visible", "no"},
    {"Frame2.caption", ""},       {"Command4.enabled", "no"},   {"Command5.enabled", "no"},
    {"Command18.enabled", "no"},  {"Command24.enabled", "no"}};

const State kQueue = {
    {"Form1.width", "2740"},    {"Form1.height", "4140"},  {"Command19.visible", "yes"},
    {"Label3.visible", "no"},   {"Label4.visible", "no"},  {"Line1.visible", "no"},
    {"Line3.visible", "no"},    {"Shape2.visible", "no"},  {"Label5.visible", "no"},
    {"Label6.visible", "no"},   {"Label12.visible", "no"}, {"Label13.visible", "no"},
    {"Label1.visible", "no"},   {"Label2.visible", "no"},  {"Label9.visible", "no"},
    {"Label10.visible", "no"},  {"Command4.left", "240"},  {"Command4.top", "3090"},
    {"Command5.left", "240"},   {"Command5.top", "3400"},  {"Command19.left", "1670"},
    {"Command19.top", "3090"},  {"Command2.left", "1670"}, {"Command2.top", "3400"},
    {"Command2.height", "285"}, {"Command2.width", "660"}, {"Command22.visible", "yes"},
    {"Command22.left", "980"},  {"Command22.top", "3090"}, {"Command23.visible", "yes"},
    {"Command23.left", "980"},  {"Command23.top", "3400"}};

TEST(Layout, EachWritesItsRowsAndNothingElse) {
    struct Step {
        std::string name;
        void (MainWindowLayout::*apply)();
        State written;
    };
    using Layout = MainWindowLayout;
    ProgramWorld world;
    for (const Step& step :
         std::vector<Step>{{"wide, as designed", &Layout::wide, kWide},
                           {"folder, as designed", &Layout::folder_based, kFolder},
                           {"narrow", &Layout::narrow, kNarrow},
                           {"playlist", &Layout::playlist_based, kPlaylist},
                           {"wide with a playlist", &Layout::wide, kWide},
                           {"folder after playlist", &Layout::folder_based, kFolder},
                           {"queue", &Layout::compact, kQueue}}) {
        State expected = state_of(world.form);
        const State design = expected;
        for (const auto& [property, value] : step.written) {
            ASSERT_TRUE(expected.contains(property)) << property;
            expected[property] = value;
        }
        (world.layout.*step.apply)();
        EXPECT_EQ(state_of(world.form), expected) << step.name;
        const bool is_design = step.name.ends_with("as designed");
        EXPECT_EQ(expected == design, is_design) << step.name;
    }
}

TEST(Layout, TheWindowSnapsBackToItsSizeWhereItStands) {
    ProgramWorld world;
    world.load("Left=100\r\nTop=200\r\nMode=Manual\r\n");
    world.form.user_resized(12'000, 300);
    EXPECT_EQ(world.form.place(), (Place{100, 200, 9000, 6510}));
    world.settings().Extended = 0;
    world.form.user_changed_state(WindowState::minimized);
    world.form.user_changed_state(WindowState::normal);
    EXPECT_EQ(world.form.place(), (Place{100, 200, 6500, 6510}));
    EXPECT_FALSE(world.form.Text1.visible());

    ProgramWorld queue;
    queue.load("", "/music/a.mid");
    queue.form.user_moved(100, 200);
    queue.form.user_resized(12'000, 300);
    EXPECT_EQ(queue.form.place(), (Place{100, 200, 2740, 4140}));
    EXPECT_TRUE(queue.form.Text1.visible()) << "not the wide layout's business";
}

// The window is put away: by its key, or by the window manager, which also knows a third state.
enum class PutAway { by_key, minimised, maximised };

void put_away(ProgramWorld& world, PutAway how) {
    if (how == PutAway::by_key) return world.form.Command11.click();
    world.form.user_changed_state(how == PutAway::minimised ? WindowState::minimized
                                                            : WindowState::maximized);
}

TEST(Layout, AWindowThatIsPutAwayLeavesAWayBack) {
    const std::vector<std::tuple<std::string, bool, std::string>> table = {
        {"ShowBar=1\r\n", true, "minimised with button"},
        {"ShowBar=0\r\n", true, "hidden"},
        {"ShowBar=0\r\n", false, "minimised with button"}};
    for (const auto& [settings, tray_host, window] : table) {
        for (const PutAway how : {PutAway::by_key, PutAway::minimised, PutAway::maximised}) {
            ProgramWorld world;
            world.has_tray_host = tray_host;
            world.load("Mode=Alpha\r\n" + settings);
            put_away(world, how);
            const bool stays = how == PutAway::maximised && settings == "ShowBar=1\r\n";
            EXPECT_EQ(world.window(), stays ? "shown with button" : window)
                << settings << tray_host;
            EXPECT_EQ(world.device.Mode(), DeviceMode::playing);
            world.hand_over.on_bring_forward();
            put_away(world, PutAway::by_key);
            EXPECT_EQ(world.window(), window) << "as often as you like";
        }
    }
}

TEST(Layout, AWindowWhoseTrayIconHasGoneIsNotLost) {
    for (const PutAway how : {PutAway::by_key, PutAway::minimised}) {
        ProgramWorld world;
        world.load("Mode=Manual\r\nShowBar=0\r\n");
        world.windows.has_icon = false;  // the desktop's panel has crashed
        world.happened();
        put_away(world, how);
        EXPECT_EQ(world.window(), "minimised with button");
        const Log log = world.happened();
        EXPECT_NE(std::find(log.begin(), log.end(), "window hidden"), log.end())
            << "a new style counts from the next time that the window is shown";
        world.windows.has_icon = true;
        world.hand_over.on_bring_forward();
        world.layout.put_away();
        EXPECT_EQ(world.window(), "hidden");
        world.hand_over.on_bring_forward();
        EXPECT_EQ(world.window(), "shown") << "the icon is enough again";
    }
}

TEST(Layout, AllLedTextsTakeTheColour) {
    ProgramWorld world;
    Form1& f = world.form;
    const std::map<std::int16_t, Colour> colours = {
        {0, 0x00FF00}, {1, 0xFF9900}, {2, 0xFF0000}, {3, 0x000000}, {-1, 0x000000}};
    for (const auto& [display, colour] : colours) {
        world.settings().Display = display;
        world.layout.led_colour();
        for (const Control* control :
             std::vector<Control*>{&f.Text1, &f.Label5, &f.Label12, &f.Label1, &f.Label3, &f.Label9,
                                   &f.Label6, &f.Label13, &f.Label2, &f.Label4, &f.Label10}) {
            EXPECT_EQ(control->colour(), colour) << control->name() << " " << display;
        }
        EXPECT_EQ(f.Label8.colour(), 0U);
    }
}

}  // namespace
}  // namespace zephyne::test
