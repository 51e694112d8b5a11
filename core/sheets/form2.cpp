#include "core/sheets/form2.h"

#include "core/program.h"

namespace zephyne {
namespace {

constexpr int kRowHeight = 255;
constexpr int kBoxHeight = 285;

// A box to check or an option.
ControlDesign row(std::string_view name, std::string_view caption, int left, int top, int width,
                  int tab, Control* frame = nullptr) {
    return {.name = name,
            .place = {left, top, width, kRowHeight},
            .caption = caption,
            .tab = tab,
            .stop = TabStop::yes,
            .frame = frame};
}

// What stands beside a box.
ControlDesign word(std::string_view name, std::string_view caption, int left, int top, int width,
                   int tab, Control* frame = nullptr) {
    ControlDesign design = row(name, caption, left, top, width, tab, frame);
    design.stop = TabStop::no;
    return design;
}

ControlDesign number_box(std::string_view name, int left, int top, int width, int tab,
                         Control* frame = nullptr) {
    ControlDesign design = row(name, "", left, top, width, tab, frame);
    design.place.height = kBoxHeight;
    return design;
}

ControlDesign key(std::string_view name, std::string_view caption, const Place& place, int tab) {
    return {.name = name, .place = place, .caption = caption, .tab = tab, .stop = TabStop::yes};
}

ControlDesign lamp(std::string_view name, int top) {
    return {.name = name, .place = {4290, top, 120, 120}};
}

}  // namespace

Form2::Form2()
    : Form({.name = "Form2",
            .title = "Zephyne Options",
            .width = 7260,
            .height = 4890 + kTitleBarHeight + kLowerFrameHeight}),
      Frame1(*this, {.name = "Frame1",
                     .place = {180, 120, 2220, 1830},
                     .caption = "Playback Modes",
                     .tab = 0}),
      Option1(*this, row("Option1", "Random", 300, 345, 900, 1, &Frame1)),
      Option2(*this, row("Option2", "Alpha", 300, 600, 900, 2, &Frame1)),
      Check7(*this, row("Check7", "", 1230, 600, 225, 3, &Frame1)),
      Label3(*this, word("Label3", "Reverse", 1515, 600, 840, 4, &Frame1)),
      Option3(*this, row("Option3", "Manual", 300, 855, 900, 5, &Frame1)),
      Option6(*this, row("Option6", "Preview", 300, 1110, 990, 6, &Frame1)),
      text2(*this, TextLines::one, TextAccess::read_write,
            number_box("text2", 1320, 1095, 435, 7, &Frame1)),
      Label2(*this, word("Label2", "Sec.", 1830, 1110, 480, 8, &Frame1)),
      Check6(*this, row("Check6", "", 300, 1500, 225, 9, &Frame1)),
      Label4(*this, word("Label4", "Continuous Play", 600, 1500, 1700, 10, &Frame1)),
      Frame2(
          *this,
          {.name = "Frame2", .place = {180, 2040, 2220, 825}, .caption = "Base Mode", .tab = 11}),
      Option10(*this, row("Option10", "Folder-Based", 300, 2265, 1980, 12, &Frame2)),
      Option11(*this, row("Option11", "Playlist-Based", 300, 2520, 1980, 13, &Frame2)),
      Frame3(*this, {.name = "Frame3",
                     .place = {180, 2955, 2220, 675},
                     .caption = "Reset Methods",
                     .tab = 14}),
      Option5_3(*this, row("Option5(3)", "GM", 300, 3210, 645, 15, &Frame3)),
      Option5_1(*this, row("Option5(1)", "XG", 990, 3210, 645, 16, &Frame3)),
      Option5_2(*this, row("Option5(2)", "GS", 1680, 3210, 645, 17, &Frame3)),
      Box1(*this, {.name = "Box1", .place = {2520, 120, 2220, 2340}}),
      Check1(*this, row("Check1", "Auto-Reset", 2640, 345, 1980, 18)),
      Check2(*this, row("Check2", "Auto-Repeat", 2640, 600, 1980, 19)),
      Check8(*this, row("Check8", "Auto-Notes", 2640, 855, 1980, 20)),
      Check9(*this, row("Check9", "More Media Types", 2640, 1110, 1980, 21)),
      Check12(*this, row("Check12", "Lowercase Files", 2640, 1365, 1980, 22)),
      Check4(*this, row("Check4", "Delay Between Songs", 2640, 1620, 1980, 23)),
      Text1(*this, TextLines::one, TextAccess::read_write,
            number_box("Text1", 2940, 1890, 555, 24)),
      Label1(*this, word("Label1", "Second(s)", 3570, 1905, 1050, 25)),
      Frame4(*this, {.name = "Frame4",
                     .place = {2520, 2550, 2220, 1080},
                     .caption = "LED Display Color",
                     .tab = 26}),
      Option7(*this, row("Option7", "Green", 2640, 2775, 1500, 27, &Frame4)),
      Option8(*this, row("Option8", "Orange", 2640, 3030, 1500, 28, &Frame4)),
      Option9(*this, row("Option9", "Red", 2640, 3285, 1500, 29, &Frame4)),
      Lamp1(*this, ControlKind::shape, lamp("Lamp1", 2842)),
      Lamp2(*this, ControlKind::shape, lamp("Lamp2", 3097)),
      Lamp3(*this, ControlKind::shape, lamp("Lamp3", 3352)),
      Box2(*this, {.name = "Box2", .place = {4860, 120, 2220, 2595}}),
      Check10(*this, row("Check10", "Large Display", 4980, 345, 1980, 30)),
      Check11(*this, row("Check11", "Animation", 4980, 600, 1980, 31)),
      Check14(*this, row("Check14", "Show Tooltips", 4980, 855, 1980, 32)),
      Check5(*this, row("Check5", "Show Tips at Startup", 4980, 1110, 1980, 33)),
      Check15(*this, row("Check15", "Msg Box Beeps", 4980, 1365, 1980, 34)),
      Check13(*this, row("Check13", "Confirm Program Exit", 4980, 1620, 1980, 35)),
      Check3(*this, row("Check3", "Auto-Hide", 4980, 1875, 1980, 36)),
      Check16(*this, row("Check16", "System Tray Icon", 4980, 2130, 1980, 37)),
      Check17(*this, row("Check17", "Show in Taskbar", 4980, 2385, 1980, 38)),
      Frame5(*this, {.name = "Frame5",
                     .place = {4860, 2805, 2220, 825},
                     .caption = "Preset Button Options",
                     .tab = 39}),
      Option4_2(*this, row("Option4(2)", "Path/Name", 4980, 3030, 1980, 40, &Frame5)),
      Option4_1(*this, row("Option4(1)", "Path", 4980, 3285, 1980, 41, &Frame5)),
      Command5(*this, key("Command5", "Kill Note Files", {180, 3780, 2220, 315}, 42)),
      Command6(*this, key("Command6", "Kill Vol.Settings Files", {2520, 3780, 2220, 315}, 43)),
      Command2(*this, key("Command2", "About Zephyne...", {4860, 3780, 2220, 315}, 44)),
      Line1(*this, ControlKind::line, {.name = "Line1", .place = {180, 4215, 6900, 30}}),
      Label5(*this, {.name = "Label5",
                     .place = {180, 4350, 3150, 420},
                     .caption = "Click \"Help,\" then click an option for detailed help.",
                     .tab = 45,
                     .style = Style::notice}),
      Command1(*this, key("Command1", "OK", {3855, 4365, 1035, 345}, 46)),
      Command3(*this, key("Command3", "Cancel", {4950, 4365, 1035, 345}, 47)),
      Command4(*this, key("Command4", "Help", {6045, 4365, 1035, 345}, 48)) {
    Check7.set_accessible_name(Label3.caption());
    Check6.set_accessible_name(Label4.caption());
    text2.set_accessible_name("Preview seconds");
    Text1.set_accessible_name("Delay seconds");
    Lamp1.set_colour(led_colour(0));
    Lamp2.set_colour(led_colour(1));
    Lamp3.set_colour(led_colour(2));
    set_default_button(&Command1);
    set_cancel_button(&Command3);
}

}  // namespace zephyne
