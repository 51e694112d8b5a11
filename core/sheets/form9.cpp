#include "core/sheets/form9.h"

#include <string_view>

namespace zephyne {
namespace {

// Folders and songs at the left, the playlist at the right, and between them what goes over.
constexpr int kListWidth = 3630;
constexpr int kPlaylistLeft = 5190;
constexpr int kListsEnd = 4980;
constexpr int kSongsTop = 2100;
constexpr int kBetween = 3930;
constexpr int kKeyWidth = 1140;
constexpr int kKeyHeight = 345;
constexpr int kLowestKeys = 5550;

ControlDesign key(std::string_view name, std::string_view caption, int left, int top, int tab) {
    return {.name = name,
            .place = {left, top, kKeyWidth, kKeyHeight},
            .caption = caption,
            .tab = tab,
            .stop = TabStop::yes};
}

}  // namespace

Form9::Form9(const FileSystem& files)
    : Form({.name = "Form9",
            .title = "Edit Playlist",
            .width = 9000,
            .height = 6105 + kTitleBarHeight + kLowerFrameHeight}),
      Drive1(*this, files,
             {.name = "Drive1",
              .place = {180, 180, kListWidth, 315},
              .tab = 0,
              .stop = TabStop::yes}),
      Dir1(*this, files,
           {.name = "Dir1",
            .place = {180, 540, kListWidth, 1440},
            .tab = 1,
            .stop = TabStop::yes}),
      List1(*this, ListOrder::by_text,
            {.name = "List1",
             .place = {180, kSongsTop, kListWidth, kListsEnd - kSongsTop},
             .tab = 2,
             .stop = TabStop::yes}),
      Label10(*this, {.name = "Label10", .place = {180, 5010, kListWidth, 240}}),
      Command2(*this, key("Command2", "Add", kBetween, kSongsTop, 4)),
      Command7(*this, key("Command7", "Add All", kBetween, kSongsTop + 390, 5)),
      Command8(*this, key("Command8", "Find All", kBetween, kSongsTop + 780, 6)),
      Command3(*this, key("Command3", "Remove", kBetween, kListsEnd - 735, 7)),
      Command6(*this, key("Command6", "Remove All", kBetween, kListsEnd - kKeyHeight, 8)),
      List2(*this, ListOrder::by_text,
            {.name = "List2",
             .place = {kPlaylistLeft, 180, kListWidth, kListsEnd - 180},
             .tab = 9,
             .stop = TabStop::yes}),
      Label11(*this, {.name = "Label11", .place = {kPlaylistLeft, 5010, kListWidth, 240}}),
      Line1(*this, ControlKind::line, {.name = "Line1", .place = {180, 5355, 8640, 30}}),
      MMControl1(*this, {.name = "MMControl1",
                         .place = {180, 5510, 1545, 420},
                         .tab = 3,
                         .stop = TabStop::yes}),
      Command5(*this, key("Command5", "Open", kPlaylistLeft, kLowestKeys, 10)),
      Command4(*this, key("Command4", "Save", kPlaylistLeft + 1245, kLowestKeys, 11)),
      Command1(*this, key("Command1", "Done", kPlaylistLeft + 2490, kLowestKeys, 12)) {
    List1.set_selecting(Selecting::extended);
    List2.set_selecting(Selecting::extended);
    Drive1.set_accessible_name("Drives");
    Dir1.set_accessible_name("Folders");
    List1.set_accessible_name("Songs");
    List2.set_accessible_name("Playlist");
    MMControl1.set_accessible_name("Audition");
    set_cancel_button(&Command1);
}

}  // namespace zephyne
