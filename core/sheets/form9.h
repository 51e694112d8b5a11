// The sheet of the playlist editor.
#pragma once

#include "core/controls/folder_lists.h"
#include "core/controls/form.h"
#include "core/controls/list_box.h"
#include "core/controls/simple_controls.h"

namespace zephyne {

struct Form9 : Form {
    explicit Form9(const FileSystem& files);

    DriveList Drive1;      // drives
    DirList Dir1;          // folders
    ListBox List1;         // the songs of the folder
    Label Label10;         // how many songs the folder has
    Button Command2;       // "Add"
    Button Command7;       // "Add All"
    Button Command8;       // "Find All"
    Button Command3;       // "Remove"
    Button Command6;       // "Remove All"
    ListBox List2;         // the playlist's names, row by row as List3 of the main window
    Label Label11;         // how many songs the playlist has
    Decoration Line1;      // above the lowest keys
    Transport MMControl1;  // auditions a song of the folder
    Button Command5;       // "Open"
    Button Command4;       // "Save"
    Button Command1;       // "Done"
};

}  // namespace zephyne
