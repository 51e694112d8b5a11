// The sheet of the Options window.
#pragma once

#include "core/controls/form.h"
#include "core/controls/option_button.h"
#include "core/controls/simple_controls.h"
#include "core/controls/text_box.h"

namespace zephyne {

struct Form2 : Form {
    Form2();

    Frame Frame1;  // "Playback Modes"
    OptionButton Option1;
    OptionButton Option2;
    CheckBox Check7;  // "Reverse", which Label3 says
    Label Label3;
    OptionButton Option3;
    OptionButton Option6;
    TextBox text2;  // seconds of a preview
    Label Label2;   // "Sec."
    CheckBox Check6;
    Label Label4;  // "Continuous Play", of Check6
    Frame Frame2;  // "Base Mode"
    OptionButton Option10;
    OptionButton Option11;
    Frame Frame3;  // "Reset Methods"
    OptionButton Option5_3;
    OptionButton Option5_1;
    OptionButton Option5_2;
    Frame Box1;  // around the playing habits
    CheckBox Check1;
    CheckBox Check2;
    CheckBox Check8;
    CheckBox Check9;
    CheckBox Check12;
    CheckBox Check4;  // "Delay Between Songs"
    TextBox Text1;    // its seconds
    Label Label1;     // "Second(s)"
    Frame Frame4;     // "LED Display Color"
    OptionButton Option7;
    OptionButton Option8;
    OptionButton Option9;
    Decoration Lamp1;  // one in each colour
    Decoration Lamp2;
    Decoration Lamp3;
    Frame Box2;  // around the window's habits
    CheckBox Check10;
    CheckBox Check11;
    CheckBox Check14;
    CheckBox Check5;
    CheckBox Check15;
    CheckBox Check13;
    CheckBox Check3;
    CheckBox Check16;
    CheckBox Check17;
    Frame Frame5;  // "Preset Button Options"
    OptionButton Option4_2;
    OptionButton Option4_1;
    Button Command5;   // "Kill Note Files"
    Button Command6;   // "Kill Vol.Settings Files"
    Button Command2;   // "About Zephyne..."
    Decoration Line1;  // above the answers
    Label Label5;      // how to get help
    Button Command1;   // "OK"
    Button Command3;   // "Cancel"
    Button Command4;   // "Help"
};

}  // namespace zephyne
