// The sheet of the quick tip window.
#pragma once

#include "core/controls/form.h"
#include "core/controls/simple_controls.h"

namespace zephyne {

struct Quick_Tip : Form {
    Quick_Tip();

    Picture Image1;              // a light bulb
    Label Label1;                // "Did You Know..."
    Label tiplabel;              // the tip
    CheckBox show_tip;           // "Show Tips at Startup"
    Decoration Line1;            // above the keys
    Button Next_Tip_Button;      // "&Next Tip"
    Button Command2;             // "&Previous Tip"
    Button Command1;             // "&Copy to Clipboard"
    Button Quick_Tip_;           // "&Help"
    Button Quick_Tip_OK_Button;  // "OK"

    // Makes the window as high as a tip needs whose text is so high, in twips; never lower than
    // the design.
    void make_room(int text_height);
};

}  // namespace zephyne
