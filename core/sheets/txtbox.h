// The sheet of the input box: a question that is answered with a line of text.
#pragma once

#include "core/controls/form.h"
#include "core/controls/simple_controls.h"
#include "core/controls/text_box.h"

namespace zephyne {

struct txtbox : Form {
    txtbox()
        : Form({.name = "txtbox",
                .width = 6600,
                .height = 1560 + kTitleBarHeight + kLowerFrameHeight}),
          Label1(*this, {.name = "Label1", .place = {180, 180, 6240, 255}}),
          Text1(*this, TextLines::one, TextAccess::read_write,
                {.name = "Text1", .place = {180, 480, 6240, 285}, .tab = 0, .stop = TabStop::yes}),
          Command1(*this, {.name = "Command1",
                           .place = {2085, 1005, 1170, 345},
                           .caption = "OK",
                           .tab = 1,
                           .stop = TabStop::yes}),
          Command2(*this, {.name = "Command2",
                           .place = {3345, 1005, 1170, 345},
                           .caption = "Cancel",
                           .tab = 2,
                           .stop = TabStop::yes}) {
        set_default_button(&Command1);
        set_cancel_button(&Command2);
    }

    Label Label1;     // the question
    TextBox Text1;    // the answer
    Button Command1;  // "OK"
    Button Command2;  // "Cancel"
};

}  // namespace zephyne
