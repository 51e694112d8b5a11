// The sheet of the Information window.
#pragma once

#include "core/controls/form.h"
#include "core/controls/simple_controls.h"
#include "core/controls/text_box.h"

#include <array>

namespace zephyne {

struct Form3 : Form {
    Form3();

    Picture Image1;  // banner
    Label Label3;    // "File:"
    TextBox text2;   // the song
    Label Label12;   // "MIDI Type:"
    Label Label13;   // file format
    Label Label1;    // "File Size:"
    Label Label2;    // bytes
    Label Label4;    // "Number of Tracks:"
    Label Label5;    // tracks
    Label Label6;    // headings of the six boxes
    Label Label7;
    Label Label8;
    Label Label9;
    Label Label10;
    Label Label11;
    std::array<TextBox, 6> Text1;  // general, copyright, tracks, instruments, lyrics, markers
    Button Command1;               // "OK"

    TextBox& box(int number) { return Text1[static_cast<std::size_t>(number - 1)]; }  // 1..6
};

}  // namespace zephyne
