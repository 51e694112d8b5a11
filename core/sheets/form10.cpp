#include "core/sheets/form10.h"

#include "core/playlist_entry.h"

#include <string_view>

namespace zephyne {
namespace {

// One column, from what to do down to the keys that end it.
constexpr int kLeft = 180;
constexpr int kWidth = 5640;
constexpr int kKeyWidth = 1260;
constexpr int kKeyHeight = 345;
constexpr int kKeysTop = 5880;

ControlDesign key(std::string_view name, std::string_view caption, int left, int tab) {
    return {.name = name,
            .place = {left, kKeysTop, kKeyWidth, kKeyHeight},
            .caption = caption,
            .tab = tab,
            .stop = TabStop::yes};
}

}  // namespace

Form10::Form10(const FileSystem& files)
    : Form({.name = "Form10",
            .title = "Find All MIDI Files on drive",
            .width = kLeft + kWidth + kLeft,
            .height = 6435 + kTitleBarHeight + kLowerFrameHeight}),
      Label1(*this, {.name = "Label1", .place = {kLeft, 150, kWidth, 450}, .style = Style::notice}),
      Drive1(*this, files,
             {.name = "Drive1", .place = {kLeft, 720, 4200, 315}, .tab = 0, .stop = TabStop::yes}),
      Command2(*this, {.name = "Command2",
                       .place = {4500, 705, 1320, kKeyHeight},
                       .caption = "Find Files...",
                       .tab = 1,
                       .stop = TabStop::yes}),
      List2(
          *this, ListOrder::by_text,
          {.name = "List2", .place = {kLeft, 1170, kWidth, 4110}, .tab = 2, .stop = TabStop::yes}),
      List3(*this, ListOrder::by_entry, {.name = "List3", .shown = Shown::no}, split_entry_line),
      Label2(*this,
             {.name = "Label2", .place = {kLeft, 5340, kWidth, 240}, .caption = " 0 Files Found."}),
      Command3(*this, key("Command3", "Select All", kLeft, 3)),
      Command4(*this, key("Command4", "Clear All", kLeft + kKeyWidth + 105, 4)),
      Command1(*this, key("Command1", "Done", kLeft + kWidth - kKeyWidth, 5)) {
    List2.set_selecting(Selecting::simple);
    Drive1.set_accessible_name("Drives");
    List2.set_accessible_name("Files found");
}

}  // namespace zephyne
