// The sheet of the About box.
#pragma once

#include "core/controls/form.h"
#include "core/controls/simple_controls.h"

namespace zephyne {

struct Form5 : Form {
    Form5()
        : Form({.name = "Form5",
                .title = "About Zephyne",
                .width = 5760,
                .height = 4200 + kTitleBarHeight + kLowerFrameHeight}),
          Image1(*this, ImageList::banner, {.name = "Image1", .place = {180, 180, 5400, 600}}),
          Image2(*this, ImageList::emblem, {.name = "Image2", .place = {240, 990, 960, 960}}),
          Panel1(*this, {.name = "Panel1", .place = {1440, 990, 4140, 300}, .style = Style::brand}),
          Panel2(*this,
                 {.name = "Panel2", .place = {1440, 1320, 4140, 255}, .style = Style::strong}),
          Panel3(*this,
                 {.name = "Panel3", .place = {1440, 1620, 4140, 420}, .style = Style::notice}),
          Label1(*this, {.name = "Label1",
                         .place = {1440, 2160, 4140, 240},
                         .caption = "Made with",
                         .style = Style::heading}),
          Panel4(*this,
                 {.name = "Panel4", .place = {1440, 2415, 4140, 1020}, .style = Style::notice}),
          Command1(*this, {.name = "Command1",
                           .place = {2295, 3645, 1170, 345},
                           .caption = "OK",
                           .tab = 0,
                           .stop = TabStop::yes}) {
        set_default_button(&Command1);
        set_cancel_button(&Command1);
    }

    Picture Image1;   // banner
    Picture Image2;   // the program's emblem
    Label Panel1;     // name
    Label Panel2;     // version
    Label Panel3;     // what it is
    Label Label1;     // "Made with"
    Label Panel4;     // libraries in use, a line each
    Button Command1;  // "OK"
};

}  // namespace zephyne
