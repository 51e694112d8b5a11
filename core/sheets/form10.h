// The sheet of the drive search.
#pragma once

#include "core/controls/folder_lists.h"
#include "core/controls/form.h"
#include "core/controls/list_box.h"
#include "core/controls/simple_controls.h"

namespace zephyne {

struct Form10 : Form {
    explicit Form10(const FileSystem& files);

    Label Label1;      // what to do, or that a search is running
    DriveList Drive1;  // the drive to search
    Button Command2;   // "Find Files...", "Cancel Search"
    ListBox List2;     // the names of the songs found
    ListBox List3;     // their entry lines, row by row as List2
    Label Label2;      // how many songs have been found
    Button Command3;   // "Select All"
    Button Command4;   // "Clear All"
    Button Command1;   // "Done"
};

}  // namespace zephyne
