// The sheet of the Move File window.
#pragma once

#include "core/controls/folder_lists.h"
#include "core/controls/form.h"
#include "core/controls/list_box.h"
#include "core/controls/simple_controls.h"
#include "core/controls/text_box.h"

namespace zephyne {

struct Form6 : Form {
    explicit Form6(const FileSystem& files)
        : Form({.name = "Form6",
                .title = "Move File...",
                .width = 6960,
                .height = 4815 + kTitleBarHeight + kLowerFrameHeight}),
          Frame1(*this,
                 {.name = "Frame1", .place = {180, 120, 6600, 600}, .caption = "Original File"}),
          Label1(*this, {.name = "Label1", .place = {300, 345, 6360, 255}, .frame = &Frame1}),
          Frame2(*this,
                 {.name = "Frame2", .place = {180, 840, 6600, 3180}, .caption = "Move File To..."}),
          Drive1(*this, files,
                 {.name = "Drive1",
                  .place = {300, 1080, 3120, 315},
                  .tab = 0,
                  .stop = TabStop::yes,
                  .frame = &Frame2}),
          Dir1(*this, files,
               {.name = "Dir1",
                .place = {300, 1440, 3120, 2070},
                .tab = 1,
                .stop = TabStop::yes,
                .frame = &Frame2}),
          File1(*this, ListOrder::by_text,
                {.name = "File1",
                 .place = {3540, 1080, 3120, 2430},
                 .tab = 2,
                 .stop = TabStop::yes,
                 .frame = &Frame2}),
          Text1(*this, TextLines::one, TextAccess::read_write,
                {.name = "Text1",
                 .place = {300, 3600, 6360, 285},
                 .tab = 3,
                 .stop = TabStop::yes,
                 .frame = &Frame2}),
          Command1(*this, {.name = "Command1",
                           .place = {1620, 4260, 1800, 345},
                           .caption = "OK - Move It",
                           .tab = 4,
                           .stop = TabStop::yes}),
          Command2(*this, {.name = "Command2",
                           .place = {3540, 4260, 1800, 345},
                           .caption = "Cancel - Don't Move",
                           .tab = 5,
                           .stop = TabStop::yes}) {
        Drive1.set_accessible_name("Drives");
        Dir1.set_accessible_name("Folders");
        File1.set_accessible_name("Files in the folder");
        Text1.set_accessible_name("Destination");
        set_default_button(&Command1);
        set_cancel_button(&Command2);
    }

    Frame Frame1;      // "Original File"
    Label Label1;      // its path
    Frame Frame2;      // "Move File To..."
    DriveList Drive1;  // where to
    DirList Dir1;
    ListBox File1;    // what is there
    TextBox Text1;    // the path it will have
    Button Command1;  // "OK - Move It"
    Button Command2;  // "Cancel - Don't Move"
};

}  // namespace zephyne
