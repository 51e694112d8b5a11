#include "core/sheets/quick_tip.h"

#include <algorithm>
#include <array>

namespace zephyne {
namespace {

constexpr int kWidth = 6840;
constexpr int kTextTop = 795;
constexpr int kTextHeight = 1350;

// From the end of the text down.
constexpr int kBoxBelow = 180;
constexpr int kLineBelow = 555;
constexpr int kKeysBelow = 705;
constexpr int kEndBelow = 1245;

constexpr int kKeyHeight = 345;
constexpr int kBelow = kTextTop + kTextHeight;

ControlDesign key(std::string_view name, std::string_view caption, int tab, int left, int width) {
    return {.name = name,
            .place = {left, kBelow + kKeysBelow, width, kKeyHeight},
            .caption = caption,
            .tab = tab,
            .stop = TabStop::yes};
}

}  // namespace

Quick_Tip::Quick_Tip()
    : Form({.name = "Quick_Tip",
            .title = "Zephyne Quick Tip",
            .width = kWidth,
            .height = kBelow + kEndBelow + kTitleBarHeight + kLowerFrameHeight}),
      Image1(*this, ImageList::light_bulb, {.name = "Image1", .place = {270, 240, 690, 690}}),
      Label1(*this, {.name = "Label1",
                     .place = {1230, 60, 5400, 675},
                     .caption = "Did You Know...",
                     .style = Style::message}),
      tiplabel(*this, {.name = "tiplabel",
                       .place = {1230, kTextTop, 5400, kTextHeight},
                       .style = Style::message}),
      show_tip(*this, {.name = "show_tip",
                       .place = {1230, kBelow + kBoxBelow, 2400, 255},
                       .caption = "Show Tips at Startup",
                       .tab = 5,
                       .stop = TabStop::yes}),
      Line1(*this, ControlKind::line,
            {.name = "Line1", .place = {180, kBelow + kLineBelow, kWidth - 360, 30}}),
      Next_Tip_Button(*this, key("Next_Tip_Button", "&Next Tip", 1, 180, 1110)),
      Command2(*this, key("Command2", "&Previous Tip", 2, 1395, 1245)),
      Command1(*this, key("Command1", "&Copy to Clipboard", 3, 2745, 1635)),
      Quick_Tip_(*this, key("Quick_Tip_", "&Help", 4, 4485, 1035)),
      Quick_Tip_OK_Button(*this, key("Quick_Tip_OK_Button", "OK", 0, 5625, 1035)) {
    tiplabel.set_font_points(10);
    set_default_button(&Quick_Tip_OK_Button);
    set_cancel_button(&Quick_Tip_OK_Button);
}

void Quick_Tip::make_room(int text_height) {
    const int height = std::max(kTextHeight, text_height);
    const int below = kTextTop + height;
    tiplabel.set_height(height);
    show_tip.set_top(below + kBoxBelow);
    Line1.set_top(below + kLineBelow);
    for (Button* button : std::array<Button*, 5>{&Next_Tip_Button, &Command2, &Command1,
                                                 &Quick_Tip_, &Quick_Tip_OK_Button}) {
        button->set_top(below + kKeysBelow);
    }
    const Place& now = place();
    set_place(
        {now.left, now.top, now.width, below + kEndBelow + kTitleBarHeight + kLowerFrameHeight});
}

}  // namespace zephyne
