// The sheet of the main window: every control with its place, caption and tab order. The order is
// the order of painting, later ones on top. The design is the wide layout for a folder; what the
// other layouts write is in ui/main_window_layout.cpp.
#pragma once

#include "core/controls/folder_lists.h"
#include "core/controls/form.h"
#include "core/controls/list_box.h"
#include "core/controls/simple_controls.h"
#include "core/controls/slider.h"
#include "core/controls/text_box.h"
#include "core/scheduler.h"

#include <array>
#include <memory>
#include <utility>

namespace zephyne {

struct Form1 : Form {
    Form1(const FileSystem& files, Scheduler& scheduler);

    Decoration Glass1;     // behind the clock
    Decoration Shape2;     // behind the counters
    Decoration Line1;      // between deck and lists
    Decoration Line2;      // under the deck
    Decoration Line3;      // between list keys and program keys
    Decoration Line4;      // under the presets
    Picture Tens;          // minutes, tens
    Picture Ones;          // minutes, ones
    Picture Image1;        // the colon, which tells the status
    Picture Tenths;        // seconds, tens
    Picture Hundredths;    // seconds, ones
    Picture Image2;        // the note roll
    Slider Slider1;        // position in the song
    Transport MMControl1;  // Play, Pause, Stop
    Button SSCommand1;     // resets the synthesizer
    Button Command14;      // "RemVol": remembers the volume
    CheckBox Check1;       // ties the volume sliders together
    Label Label16;         // "vol lock"
    Label Brand;           // the name on the faceplate
    Slider Slider2;        // left volume
    Slider Slider3;        // right volume
    Label Label9;          // "Mode:"
    Label Label10;         // play mode
    Label Label1;          // "Total:"
    Label Label2;          // songs in the list
    Label Label3;          // "Remaining:"
    Label Label4;          // songs still to play
    Label Label12;         // "Played:"
    Label Label13;         // how much of the song has played
    Label Label5;          // "Length:"
    Label Label6;          // length of the song
    Button Command9;       // "Next"
    Button Command6;       // "Reset List", "Cancel Dly"
    Button Command1;       // "Options..."
    Button Command10;      // "Help"
    Button Command21;      // "Tips..."
    Button Command12;      // "Web Links"
    Button Command11;      // "Hide"
    Button Command2;       // "Quit"
    DriveList Drive1;      // drives
    DirList Dir1;          // folders
    Picture Image5;        // banner of the playlist layout
    Button Command13;      // opens the playlist editor
    Button Command20;      // loads a playlist
    Label Label8;          // "Find:"
    TextBox text2;         // what to find
    ListBox File1;         // the song list
    Frame Frame2;          // the presets
    std::array<std::unique_ptr<Button>, 12> presets;
    Button& preset(int number) { return *presets[static_cast<std::size_t>(number - 1)]; }  // 1..12
    Button Command8;                                                                       // "M +"
    Button Command15;                                                                      // "M -"
    Button Command16;                                                                      // "View"
    Button Command17;  // "Clr All"
    Label Label14;     // notice of the playlist layout
    Button Command18;  // "Rename"
    Button Command4;   // "Delete"
    Button Command5;   // "Move"
    Button Command24;  // "Explore"
    Button Command3;   // "Song Information..."
    Button Command7;   // "Note..."
    Label Label7;      // "Song Information"
    TextBox Text1;     // summary of the song
    Button Command22;  // "Folder" of the queue player
    Button Command23;  // "Explore" of the queue player
    Button Command19;  // "Next" of the queue player
    ListBox List1;     // RemainingList: the songs still to play in this cycle
    ListBox List2;     // the hand-over queue of full paths
    ListBox List3;     // entry lines of the playlist, row by row as File1
    Label Label15;     // where another copy leaves a song

    RepeatingTimer Timer1;  // end of the pause between songs
    RepeatingTimer Timer2;  // blinks the presets' caption
    RepeatingTimer Timer3;  // blinks the clock
    RepeatingTimer Timer4;  // note roll
    RepeatingTimer Timer5;  // looks whether another copy has left a song
    RepeatingTimer Timer6;  // looks whether the volume has been changed elsewhere
};

}  // namespace zephyne
