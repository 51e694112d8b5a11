// The sheet of the message box.
#pragma once

#include "core/controls/form.h"
#include "core/controls/simple_controls.h"
#include "core/scheduler.h"

namespace zephyne {

struct dlgbox : Form {
    explicit dlgbox(Scheduler& scheduler)
        : Form({.name = "dlgbox", .width = 6600, .height = 2370 + 375 + 30}),
          Image1(*this, ImageList::loudspeaker, {.name = "Image1", .place = {240, 330, 690, 690}}),
          Image2(*this, ImageList::sound_waves, {.name = "Image2", .place = {975, 330, 330, 690}}),
          Label1(*this,
                 {.name = "Label1", .place = {1500, 240, 4860, 1440}, .style = Style::message}),
          Command2(*this, {.name = "Command2",
                           .place = {2085, 1815, 1170, 345},
                           .caption = "Yes",
                           .tab = 0,
                           .stop = TabStop::yes}),
          Command1(*this, {.name = "Command1",
                           .place = {2715, 1815, 1170, 345},
                           .caption = "OK",
                           .tab = 1,
                           .stop = TabStop::yes}),
          Command3(*this, {.name = "Command3",
                           .place = {3345, 1815, 1170, 345},
                           .caption = "No",
                           .tab = 2,
                           .stop = TabStop::yes}),
          Timer1(scheduler, 125) {}

    Picture Image1;  // a loudspeaker
    Picture Image2;  // sound waves, seven frames
    Label Label1;    // the message
    Button Command2;
    Button Command1;
    Button Command3;
    RepeatingTimer Timer1;  // moves the waves
};

}  // namespace zephyne
