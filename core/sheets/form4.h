// The sheet of the Notes window.
#pragma once

#include "core/controls/form.h"
#include "core/controls/simple_controls.h"
#include "core/controls/text_box.h"

namespace zephyne {

struct Form4 : Form {
    Form4()
        : Form({.name = "Form4",
                .title = "Notes",
                .width = 5760,
                .height = 4110 + kTitleBarHeight + kLowerFrameHeight}),
          Image1(*this, ImageList::note_pad, {.name = "Image1", .place = {180, 120, 480, 480}}),
          Label1(*this, {.name = "Label1", .place = {810, 240, 840, 255}, .caption = "Filename:"}),
          Label2(*this,
                 {.name = "Label2", .place = {1695, 240, 3885, 255}, .style = Style::strong}),
          Text1(*this, TextLines::many, TextAccess::read_write,
                {.name = "Text1", .place = {180, 690, 5400, 2775}, .tab = 0, .stop = TabStop::yes}),
          Command1(*this, {.name = "Command1",
                           .place = {900, 3615, 1260, 345},
                           .caption = "Save",
                           .tab = 1,
                           .stop = TabStop::yes}),
          Command2(*this, {.name = "Command2",
                           .place = {2250, 3615, 1260, 345},
                           .caption = "Cancel / OK",
                           .tab = 2,
                           .stop = TabStop::yes}),
          Command3(*this, {.name = "Command3",
                           .place = {3600, 3615, 1260, 345},
                           .caption = "Delete",
                           .tab = 3,
                           .stop = TabStop::yes}) {
        Text1.set_accessible_name("Note");
        set_cancel_button(&Command2);
    }

    Picture Image1;   // note pad and pencil
    Label Label1;     // "Filename:"
    Label Label2;     // the song
    TextBox Text1;    // the note
    Button Command1;  // "Save"
    Button Command2;  // "Cancel / OK"
    Button Command3;  // "Delete"
};

}  // namespace zephyne
